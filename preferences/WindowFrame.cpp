#include "preferences/WindowFrame.h"

#include <algorithm>

namespace WindowFrame {

QRect forContent(const QRect& current, const QSize& content, const QSize& decoration) {
    return {current.topLeft(), content + decoration};
}

QRect centered(const QRect& frame, const QRect& screen) {
    return {screen.x() + std::max(0, (screen.width() - frame.width()) / 2),
            screen.y() + std::max(0, (screen.height() - frame.height()) / 2), frame.width(),
            frame.height()};
}

} // namespace WindowFrame
