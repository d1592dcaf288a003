#include "app/window/GuideWindow.h"

#include <QKeyEvent>
#include <QScreen>

using namespace Qt::StringLiterals;

namespace {
constexpr QSize preferredSize(760, 640);
}

GuideWindow::GuideWindow(QWidget* parent) : QTextBrowser(parent) {
    setWindowFlag(Qt::Window);
    setWindowTitle(tr("Quorvel Guide"));
    setAccessibleName(tr("Guide"));
    setOpenExternalLinks(true);
    setSource(QUrl(u"qrc:/guide.md"_s), QTextDocument::MarkdownResource);
    resize(preferredSize.boundedTo(screen()->availableSize()));
}

void GuideWindow::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Cancel) || event->matches(QKeySequence::Close)) {
        close();
        return;
    }
    QTextBrowser::keyPressEvent(event);
}
