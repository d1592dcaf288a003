#include "app/window/GuideWindow.h"

#include "tests/app/window/MainWindowFixture.h"
#include "tests/support/RegisteredTest.h"

#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QScrollBar>
#include <QTest>
#include <QTextBlock>
#include <QTextBrowser>

#include <cmath>

using namespace Qt::StringLiterals;

/// The guide in its window: contents, pages, links and the search. Some of it is run once more in
/// each language.
class GuideWindowTest : public QObject, private MainWindowFixture {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup() { close(); }

    void itOpensAtItsContents();
    void theContentsTurnThePages();
    void everyChapterIsListedOnce();
    void everyLinkAndPictureIsThere();
    void picturesAreNoWiderThanThePage_data();
    void picturesAreNoWiderThanThePage();
    void aLinkIsFollowedByTheContents();
    void aChapterIsShownByItsName();
    void theSearchGoesThroughAllChapters();
    void everyPlaceFoundIsWhatWasSoughtFor();
    void largeLettersAndSpacesDoNotMatter();
    void nothingFoundIsSaid();
    void whatIsEverywhereIsFoundInSomePlaces();
    void anEmptySearchShowsTheContents();
    void aMatchOfAChapterIsMarked();
    void whatIsTypedInItIsNotSent();
    void escapeClosesItFromEverywhere();

  private:
    [[nodiscard]] GuideWindow& guide() { return *_window->findChild<GuideWindow*>(); }
    template <typename Object>
    [[nodiscard]] Object& part(const QString& name) {
        return *guide().findChild<Object*>(name);
    }
    [[nodiscard]] QListWidget& contents() { return part<QListWidget>(u"guideContents"_s); }
    [[nodiscard]] QListWidget& matches() { return part<QListWidget>(u"guideMatches"_s); }
    [[nodiscard]] QLineEdit& field() { return part<QLineEdit>(u"guideSearchField"_s); }
    [[nodiscard]] QLabel& result() { return part<QLabel>(u"guideResult"_s); }
    [[nodiscard]] QTextBrowser& page() { return part<QTextBrowser>(u"guidePage"_s); }
    /// On the native window, as the desktop does.
    void pressThere(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(guide().windowHandle(), key, modifiers);
    }
    void typeThere(const char* text) {
        for (; *text != 0; ++text) {
            QTest::keyClick(guide().windowHandle(), *text);
        }
    }
    [[nodiscard]] QString selected() {
        return page().textCursor().selectedText().replace(QChar::Nbsp, u' ');
    }
};

void GuideWindowTest::init() {
    open();
    find<QAction>(u"guideAction"_s)->trigger();
    QTRY_VERIFY(contents().hasFocus());
}

void GuideWindowTest::itOpensAtItsContents() {
    QCOMPARE(contents().currentRow(), 0);
    QVERIFY(page().toPlainText().contains(u"CQ within a minute"));
    QVERIFY(!result().isVisible());
    QVERIFY(field().accessibleName().size() > 1);
}

void GuideWindowTest::theContentsTurnThePages() {
    for (int row = 1; row < contents().count(); ++row) {
        pressThere(Qt::Key_Down);
        const auto title = contents().item(row)->text();
        QCOMPARE(contents().currentRow(), row);
        QCOMPARE(page().document()->firstBlock().text(), title);
        QCOMPARE(page().accessibleName(), title);
    }
    QVERIFY(contents().hasFocus());
}

void GuideWindowTest::everyChapterIsListedOnce() {
    const Guide chapters;
    QStringList files;
    for (const auto& each : chapters.chapters()) {
        files.append(each.name + u".md"_s);
        QVERIFY2(!each.title.isEmpty() && each.text.size() > 100, qPrintable(each.name));
    }
    files.sort();
    QCOMPARE(files, QDir(u":/guide/en"_s).entryList(QDir::Files, QDir::Name));
}

/// Of every chapter, as it is in the program.
void GuideWindowTest::everyLinkAndPictureIsThere() {
    int links = 0;
    int pictures = 0;
    const Guide chapters;
    for (int row = 0; row < contents().count(); ++row) {
        contents().setCurrentRow(row);
        for (auto block = page().document()->begin(); block.isValid(); block = block.next()) {
            for (auto at = block.begin(); !at.atEnd(); ++at) {
                const auto format = at.fragment().charFormat();
                if (format.isImageFormat()) {
                    const QUrl name(format.toImageFormat().name());
                    const auto picture =
                        page().document()->resource(QTextDocument::ImageResource, name);
                    QVERIFY2(!picture.value<QPixmap>().isNull() ||
                                 !picture.value<QImage>().isNull(),
                             qPrintable(name.toString()));
                    ++pictures;
                } else if (const QUrl link(format.anchorHref()); !link.isEmpty()) {
                    QVERIFY2(chapters.indexOf(page().source().resolved(link)) >= 0,
                             qPrintable(link.toString()));
                    ++links;
                }
            }
        }
    }
    QVERIFY(links >= 10);
    QVERIFY(pictures >= 5);
}

void GuideWindowTest::picturesAreNoWiderThanThePage_data() {
    QTest::addColumn<int>("width");
    QTest::addColumn<bool>("isReduced");
    QTest::newRow("a narrow window") << 600 << true;
    QTest::newRow("a wide one") << 1500 << false;
}

/// As on a screen where everything is twice the size. They follow the window.
void GuideWindowTest::picturesAreNoWiderThanThePage() {
    QFETCH(const int, width);
    QFETCH(const bool, isReduced);
    page().window()->resize(900, 500);
    QTRY_COMPARE(page().window()->width(), 900);
    page().window()->resize(width, 500);
    QTRY_COMPARE(page().window()->width(), width);
    int reduced = 0;
    for (auto block = page().document()->begin(); block.isValid(); block = block.next()) {
        for (auto at = block.begin(); !at.atEnd(); ++at) {
            const auto picture = at.fragment().charFormat().toImageFormat();
            if (picture.isValid()) {
                const auto size = page()
                                      .document()
                                      ->resource(QTextDocument::ImageResource, picture.name())
                                      .value<QImage>()
                                      .size();
                QVERIFY(picture.width() < page().viewport()->width());
                QVERIFY(picture.width() <= size.width());
                const auto height = picture.width() * size.height() / size.width();
                QVERIFY(std::abs(picture.height() - height) <= 1);
                reduced += picture.width() < size.width() ? 1 : 0;
            }
        }
    }
    QCOMPARE(reduced > 0, isReduced);
    QCOMPARE(page().horizontalScrollBar()->maximum(), 0);
}

void GuideWindowTest::aLinkIsFollowedByTheContents() {
    const Guide chapters;
    page().setFocus();
    pressThere(Qt::Key_Tab);
    pressThere(Qt::Key_Return);
    const auto row = chapters.indexOf(u"window"_s); // the first link of the first chapter
    QCOMPARE(contents().currentRow(), row);
    QCOMPARE(page().accessibleName(), chapters.chapters()[row].title);
    pressThere(Qt::Key_Left, Qt::AltModifier);
    QCOMPARE(contents().currentRow(), 0);
}

void GuideWindowTest::aChapterIsShownByItsName() {
    field().setText(u"Tune"_s);
    _window->showGuide(u"paddle"_s);
    const Guide chapters;
    const auto row = chapters.indexOf(u"paddle"_s);
    QCOMPARE(page().source(), chapters.chapters()[row].source);
    QCOMPARE(contents().currentRow(), row);
    QVERIFY(contents().isVisible());
    QTRY_VERIFY(page().hasFocus());
    QCOMPARE(_window->findChildren<GuideWindow*>().size(), 1);
}

void GuideWindowTest::theSearchGoesThroughAllChapters() {
    pressThere(Qt::Key_F, Qt::ControlModifier);
    QVERIFY(field().hasFocus());
    typeThere("beacon");
    const auto count = matches().count();
    QVERIFY(count >= 5 && matches().isVisible());
    QCOMPARE(result().text(), u"Places found: %1"_s.arg(count));
    QSet<QUrl> sources;
    for (int row = 0; row < count; ++row) {
        pressThere(Qt::Key_Return);
        QCOMPARE(matches().currentRow(), row);
        QCOMPARE(selected().toLower(), u"beacon"_s);
        QCOMPARE(result().text(), u"Place %1 of %2"_s.arg(row + 1).arg(count));
        QVERIFY(page().viewport()->rect().intersects(page().cursorRect()));
        sources.insert(page().source());
    }
    QVERIFY(sources.size() >= 3);
    pressThere(Qt::Key_Return);
    QCOMPARE(matches().currentRow(), 0);
    pressThere(Qt::Key_Return, Qt::ShiftModifier);
    QCOMPARE(matches().currentRow(), count - 1);
    QVERIFY(field().hasFocus());
}

/// Whatever stands before it in its chapter: tables, pictures, lists.
void GuideWindowTest::everyPlaceFoundIsWhatWasSoughtFor() {
    const auto wanted = u"WinKeyer"_s;
    field().setText(wanted);
    QVERIFY(matches().count() >= 3);
    for (int row = 0; row < matches().count(); ++row) {
        matches().setCurrentRow(row);
        QCOMPARE(selected().toLower(), wanted.toLower());
        QVERIFY(matches().item(row)->text().contains(wanted, Qt::CaseInsensitive));
    }
    field().setText(u"Ctrl"_s);
    field().setText(u"F1"_s);
    QVERIFY(matches().count() >= 2);
    for (int row = 0; row < matches().count(); ++row) {
        matches().setCurrentRow(row);
        QCOMPARE(selected(), u"F1"_s);
    }
}

void GuideWindowTest::largeLettersAndSpacesDoNotMatter() {
    field().setText(u"  dUMMY   load "_s);
    QVERIFY(matches().count() >= 1);
    matches().setCurrentRow(0);
    QCOMPARE(selected().toLower(), u"dummy load"_s);
}

void GuideWindowTest::nothingFoundIsSaid() {
    field().setFocus();
    field().setText(u"beacon"_s);
    field().setText(u"xyzzy"_s);
    QVERIFY(result().isVisible());
    QCOMPARE(result().text(), u"Nothing found"_s);
    QVERIFY(contents().isVisible());
    pressThere(Qt::Key_Return);
    QCOMPARE(contents().currentRow(), 0);
    QVERIFY(page().extraSelections().isEmpty());
}

/// Listing thousands would hold the keyer up meanwhile.
void GuideWindowTest::whatIsEverywhereIsFoundInSomePlaces() {
    field().setText(u"e"_s);
    QCOMPARE(matches().count(), Guide::mostMatches);
    QCOMPARE(result().text(), u"The first 200 places"_s);
    QVERIFY(matches().uniformItemSizes());
}

void GuideWindowTest::anEmptySearchShowsTheContents() {
    field().setText(u"beacon"_s);
    field().setText(u"  "_s);
    QVERIFY(!result().isVisible());
    QVERIFY(contents().isVisible());
    QVERIFY(page().extraSelections().isEmpty());
}

void GuideWindowTest::aMatchOfAChapterIsMarked() {
    _window->showGuide(u"tune"_s);
    field().setText(u"dummy load"_s);
    QCOMPARE(page().extraSelections().size(), 1);
    QCOMPARE(page().extraSelections().constFirst().cursor.selectedText(), u"dummy load"_s);
    contents().setCurrentRow(0);
    QVERIFY(page().extraSelections().isEmpty());
}

void GuideWindowTest::whatIsTypedInItIsNotSent() {
    for (QWidget* each :
         std::initializer_list<QWidget*>{&field(), &contents(), &matches(), &page()}) {
        field().setText(each == &matches() ? u"beacon"_s : QString());
        each->setFocus();
        QVERIFY(each->hasFocus());
        typeThere("cq test");
        for (int key = Qt::Key_F1; key <= Qt::Key_F8; ++key) {
            pressThere(static_cast<Qt::Key>(key));
        }
        pressThere(Qt::Key_Return);
        pressThere(Qt::Key_Space);
    }
    QCOMPARE(_bench->engine().keyboardBuffer(), u""_s);
    QCOMPARE(_bench->written(), "");
}

void GuideWindowTest::escapeClosesItFromEverywhere() {
    for (QWidget* each :
         std::initializer_list<QWidget*>{&field(), &contents(), &matches(), &page()}) {
        _window->showGuide();
        QTRY_VERIFY(guide().isActiveWindow());
        field().setText(each == &matches() ? u"beacon"_s : QString());
        each->setFocus();
        QVERIFY(each->hasFocus());
        pressThere(Qt::Key_Escape);
        QVERIFY2(!guide().isVisible(), qPrintable(each->objectName()));
    }
}

static const RegisteredTest<GuideWindowTest> registered;
#include "GuideWindowTest.moc"
