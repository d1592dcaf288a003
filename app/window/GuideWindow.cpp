#include "app/window/GuideWindow.h"

#include "app/window/GuidePage.h"
#include "app/window/SpokenNotice.h"

#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QScreen>
#include <QShortcut>
#include <QSignalBlocker>
#include <QSplitter>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

/// Has room for the widest picture as it is.
constexpr int pageWidth = 812;
constexpr int listWidth = 200;
constexpr int preferredHeight = 640;
constexpr int margin = 12;
constexpr int markOpacity = 90;

/// What a window manager puts around a window, as told by one that is open.
QSize frameOf(const QWidget* widget) {
    const auto& window = *widget->window();
    return window.frameGeometry().size() - window.size();
}

QTextCursor cursorOf(const Guide::Match& match, QTextDocument& document) {
    QTextCursor cursor(&document);
    cursor.setPosition(static_cast<int>(match.position));
    cursor.setPosition(static_cast<int>(match.position + match.length), QTextCursor::KeepAnchor);
    return cursor;
}

/// Without a word to anybody: of a list without the focus a screen reader would hear that it has
/// it.
void choose(QListWidget& list, int row) {
    {
        const QSignalBlocker blocker(list.selectionModel());
        list.setCurrentRow(row);
    }
    list.scrollToItem(list.item(row));
    list.viewport()->update();
}

} // namespace

GuideWindow::GuideWindow(QWidget* parent)
    : QWidget(parent, Qt::Window),
      _searchField(new QLineEdit),
      _result(new QLabel),
      _spoken(new SpokenNotice(this)),
      _contents(new QListWidget),
      _matches(new QListWidget),
      _page(new GuidePage) {
    setWindowTitle(tr("Quorvel Guide"));
    setUpSearch();
    setUpLists();
    setUpPage();
    layOut();
    turnTo(0);
    resize(QSize(listWidth + pageWidth, preferredHeight)
               .boundedTo(screen()->availableSize() - frameOf(parent)));
    _contents->setFocus();
}

void GuideWindow::setUpSearch() {
    _searchField->setObjectName(u"guideSearchField"_s);
    _searchField->setAccessibleName(tr("Search"));
    _searchField->setPlaceholderText(tr("Search"));
    _searchField->setToolTip(tr("Searches all chapters (Ctrl+F). Enter goes to the next place."));
    _searchField->setClearButtonEnabled(true);
    _result->setObjectName(u"guideResult"_s);
    _result->setTextFormat(Qt::PlainText);
    _result->setWordWrap(true);
    _result->hide();
    connect(_searchField, &QLineEdit::textChanged, this, &GuideWindow::search);
    connect(_searchField, &QLineEdit::returnPressed, this, [this] { goOn(1); });
    const auto* back = new QShortcut(Qt::SHIFT | Qt::Key_Return, _searchField);
    connect(back, &QShortcut::activated, this, [this] { goOn(-1); });
    const auto* find = new QShortcut(QKeySequence::Find, this);
    connect(find, &QShortcut::activated, this, [this] {
        // First the one and then the other, or a screen reader says neither.
        _searchField->setFocus(Qt::OtherFocusReason);
        _searchField->selectAll();
    });
}

void GuideWindow::setUpLists() {
    _contents->setObjectName(u"guideContents"_s);
    _contents->setAccessibleName(tr("Contents"));
    _contents->setWordWrap(true);
    _matches->setObjectName(u"guideMatches"_s);
    _matches->setAccessibleName(tr("Places found"));
    _matches->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    _matches->setUniformItemSizes(true);
    for (const auto& chapter : _guide.chapters()) {
        _contents->addItem(chapter.title);
    }
    connect(_contents, &QListWidget::currentRowChanged, this, &GuideWindow::turnTo);
    connect(_matches, &QListWidget::currentRowChanged, this, &GuideWindow::showMatch);
}

void GuideWindow::setUpPage() {
    _page->setObjectName(u"guidePage"_s);
    _page->setOpenExternalLinks(true);
    // A screen reader reads it line by line where the caret goes.
    _page->setTextInteractionFlags(Qt::TextBrowserInteraction | Qt::TextSelectableByKeyboard);
    connect(_page, &QTextBrowser::historyChanged, this, &GuideWindow::followPage);
}

void GuideWindow::layOut() {
    auto* side = new QWidget;
    auto* column = new QVBoxLayout(side);
    column->setContentsMargins({});
    column->addWidget(_searchField);
    column->addWidget(_result);
    column->addWidget(_contents, 1);
    column->addWidget(_matches, 1);
    _matches->hide();
    auto* splitter = new QSplitter;
    splitter->addWidget(side);
    splitter->addWidget(_page);
    splitter->setStretchFactor(1, 1);
    splitter->setSizes({listWidth, pageWidth});
    splitter->setChildrenCollapsible(false);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(splitter);
    for (QWidget* each :
         std::initializer_list<QWidget*>{_searchField, _contents, _matches, _page}) {
        each->installEventFilter(this);
    }
}

void GuideWindow::showChapter(const QString& name) {
    _searchField->clear();
    turnTo(_guide.indexOf(name));
    _page->setFocus();
}

void GuideWindow::turnTo(qsizetype chapter) {
    if (chapter >= 0 && _guide.chapters()[chapter].source != _page->source()) {
        _page->setSource(_guide.chapters()[chapter].source);
    }
}

/// A link may have led to another chapter.
void GuideWindow::followPage() {
    const auto chapter = _guide.indexOf(_page->source());
    if (chapter < 0) {
        return;
    }
    choose(*_contents, static_cast<int>(chapter));
    _page->setAccessibleName(_guide.chapters()[chapter].title);
    _page->document()->setDocumentMargin(margin);
    _page->fitPictures();
    markMatches();
}

void GuideWindow::search() {
    const auto text = _searchField->text();
    _found = _guide.find(text);
    {
        const QSignalBlocker blocker(_matches);
        _matches->clear();
        for (const auto& match : _found) {
            _matches->addItem(
                tr("%1: %2").arg(_guide.chapters()[match.chapter].title, match.surroundings));
        }
    }
    _contents->setVisible(_found.isEmpty());
    _matches->setHidden(_found.isEmpty());
    _result->setHidden(text.trimmed().isEmpty());
    tell(_found.isEmpty()                      ? tr("Nothing found")
         : _found.size() == Guide::mostMatches ? tr("The first %1 places").arg(_found.size())
                                               : tr("Places found: %1").arg(_found.size()));
    markMatches();
}

void GuideWindow::goOn(int step) {
    const auto count = _matches->count();
    if (count == 0) {
        return;
    }
    const auto row = _matches->currentRow();
    choose(*_matches, row < 0 ? (step > 0 ? 0 : count - 1) : (row + step + count) % count);
    showMatch(_matches->currentRow());
}

void GuideWindow::showMatch(int row) {
    if (row < 0) {
        return;
    }
    const auto& match = _found[row];
    turnTo(match.chapter);
    _page->setTextCursor(cursorOf(match, *_page->document()));
    _page->ensureCursorVisible();
    tell(tr("Place %1 of %2").arg(row + 1).arg(_found.size()), _matches->item(row)->text());
}

void GuideWindow::markMatches() {
    const auto chapter = _guide.indexOf(_page->source());
    QList<QTextEdit::ExtraSelection> marks;
    auto color = palette().color(QPalette::Highlight);
    color.setAlpha(markOpacity);
    for (const auto& match : _found) {
        if (match.chapter == chapter) {
            QTextEdit::ExtraSelection mark;
            mark.cursor = cursorOf(match, *_page->document());
            mark.format.setBackground(color);
            marks.append(mark);
        }
    }
    _page->setExtraSelections(marks);
}

/// Seen, and spoken by a screen reader, whose user is in the field and hears the place as well.
void GuideWindow::tell(const QString& result, const QString& place) {
    if (_result->text() == result && place.isEmpty()) {
        return;
    }
    _result->setText(result);
    if (_result->isVisible()) {
        _spoken->say(place.isEmpty() ? result : result + u". "_s + place);
    }
}

bool GuideWindow::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress) {
        const auto& press = static_cast<const QKeyEvent&>(*event);
        if (press.matches(QKeySequence::Cancel) || press.matches(QKeySequence::Close)) {
            close();
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}
