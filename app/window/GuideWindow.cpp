#include "app/window/GuideWindow.h"

#include <QKeyEvent>
#include <QScreen>

using namespace Qt::StringLiterals;

namespace {

/// The width is that of its pictures.
constexpr QSize preferredSize(820, 640);
constexpr int margin = 12;

/// What a window manager puts around a window, as told by one that is open.
QSize frameOf(const QWidget* widget) {
    const auto& window = *widget->window();
    return window.frameGeometry().size() - window.size();
}

} // namespace

GuideWindow::GuideWindow(QWidget* parent) : QTextBrowser(parent) {
    setWindowFlag(Qt::Window);
    setWindowTitle(tr("Quorvel Guide"));
    setAccessibleName(tr("Guide"));
    setOpenExternalLinks(true);
    //: The guide's file, docs/guide.md, in this language; as it is where there is none.
    setSource(QUrl(u"qrc:/"_s + tr("guide.md")), QTextDocument::MarkdownResource);
    document()->setDocumentMargin(margin);
    resize(preferredSize.boundedTo(screen()->availableSize() - frameOf(parent)));
}

void GuideWindow::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Cancel) || event->matches(QKeySequence::Close)) {
        close();
        return;
    }
    QTextBrowser::keyPressEvent(event);
}
