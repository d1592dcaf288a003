#pragma once

#include <QRect>

/// Geometry of windows whose content changes its size.
namespace WindowFrame {

/// The frame of a window that is to hold `content`, where a frame is larger than its content by
/// `decoration`: the window grows or shrinks downwards and to the right, from where its top left
/// corner is in `current`.
[[nodiscard]] QRect forContent(const QRect& current, const QSize& content, const QSize& decoration);

/// The frame, moved to the middle of `screen`; to the screen's top left corner in a direction in
/// which it does not fit.
[[nodiscard]] QRect centered(const QRect& frame, const QRect& screen);

} // namespace WindowFrame
