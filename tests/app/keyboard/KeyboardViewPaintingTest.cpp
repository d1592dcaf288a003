#include "tests/app/keyboard/KeyboardStation.h"
#include "tests/support/RegisteredTest.h"

#include <QApplication>
#include <QImage>
#include <QPaintEvent>
#include <QScreen>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextLayout>

#include <optional>

using namespace Qt::StringLiterals;

/// How much of the view is painted, and that it is all that has to be.
class KeyboardViewPaintingTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void initTestCase() { QApplication::setCursorFlashTime(0); }
    void init();
    void cleanup();

    void anEchoPaintsTheLettersThatItConcerns();
    void whatIsNotInSightIsNotPainted();
    void whatIsPaintedInPartsLooksAsPaintedAtOnce_data();
    void whatIsPaintedInPartsLooksAsPaintedAtOnce();
    void marksStayInTheirPlacesWhenTextAheadOfThemGoes();
    void aLetterAtTheEndOfAParagraphIsDrawn();
    void onlyParagraphsInSightKeepTheirShapes();

  private:
    bool eventFilter(QObject* watched, QEvent* event) override;
    [[nodiscard]] KeyboardView& view() { return _station->view; }
    [[nodiscard]] QImage onTheScreen() {
        return view().screen()->grabWindow(view().winId()).toImage();
    }
    void waitUntilPainted();

    std::optional<KeyboardStation> _station;
    QRegion _painted;
};

void KeyboardViewPaintingTest::init() {
    _station.emplace(QSize(400, 300));
    QVERIFY(_station->isReady);
    view().setCursorWidth(0);
    view().viewport()->installEventFilter(this);
}

void KeyboardViewPaintingTest::cleanup() {
    view().viewport()->removeEventFilter(this);
    _station.reset();
}

bool KeyboardViewPaintingTest::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Paint) {
        _painted += static_cast<QPaintEvent*>(event)->region();
    }
    return QObject::eventFilter(watched, event);
}

/// All that is asked for by now.
void KeyboardViewPaintingTest::waitUntilPainted() {
    QTest::qWait(0);
    _painted = {};
    view().viewport()->update(0, 0, 1, 1);
    QTRY_VERIFY(!_painted.isEmpty());
    _painted = {};
}

void KeyboardViewPaintingTest::anEchoPaintsTheLettersThatItConcerns() {
    _station->engine().appendMessage(u"PARIS "_s.repeated(40));
    waitUntilPainted();
    const auto line = view().fontMetrics().lineSpacing();
    const auto letter = view().fontMetrics().maxWidth();
    for (int i = 0; i < 12; ++i) {
        _station->echo();
        QTRY_VERIFY(!_painted.isEmpty());
        const auto area = _painted.boundingRect();
        QVERIFY2(area.height() <= line + 2, qPrintable(QString::number(area.height())));
        QVERIFY2(area.width() <= 2 * letter + 4, qPrintable(QString::number(area.width())));
        _painted = {};
    }
}

void KeyboardViewPaintingTest::whatIsNotInSightIsNotPainted() {
    _station->engine().appendMessage(u"PARIS "_s.repeated(1000));
    view().moveCursor(QTextCursor::End);
    auto caret = view().textCursor();
    caret.movePosition(QTextCursor::Left, QTextCursor::KeepAnchor);
    view().setTextCursor(caret); // so that the view does not follow
    waitUntilPainted();
    _station->echo(3);
    QTest::qWait(50);
    QCOMPARE(_painted, QRegion());
}

void KeyboardViewPaintingTest::whatIsPaintedInPartsLooksAsPaintedAtOnce_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isSelected");
    QTest::addRow("words") << u"PARIS "_s.repeated(20) << false;
    QTest::addRow("selected") << u"PARIS "_s.repeated(20) << true;
    QTest::addRow("joined letters and calls") << u"{AR ~ ^ {SK| "_s.repeated(6) << false;
    QTest::addRow("a long word") << u"PARIS"_s.repeated(220) << false;
}

void KeyboardViewPaintingTest::whatIsPaintedInPartsLooksAsPaintedAtOnce() {
    QFETCH(const QString, text);
    QFETCH(const bool, isSelected);
    view().resize(900, 600);
    _station->engine().setHisCallsign(u"N0CALL"_s);
    _station->engine().appendMessage(text);
    if (isSelected) {
        auto caret = view().textCursor();
        caret.setPosition(10);
        caret.setPosition(70, QTextCursor::KeepAnchor);
        view().setTextCursor(caret);
    }
    const auto rounds = std::min<int>(static_cast<int>(text.size()), 130);
    const int first = text.size() > 200 ? 700 : 0;
    _station->echo(first);
    waitUntilPainted();
    for (int i = 0; i < rounds; ++i) {
        _station->echo();
        if (i % 10 == 9) {
            waitUntilPainted();
            QCOMPARE(onTheScreen(), view().grab().toImage());
        }
        static_cast<void>(_station->bench.line().readAvailable());
    }
}

/// What is on its way is told by its place in the text, which other letters get then.
void KeyboardViewPaintingTest::marksStayInTheirPlacesWhenTextAheadOfThemGoes() {
    _station->engine().appendMessage(u"PARIS "_s.repeated(250));
    QVERIFY(view().document()->blockCount() > 1);
    view().resize(900, 800);
    _station->echo(static_cast<int>(view().document()->begin().next().position()) + 20);
    auto caret = view().textCursor();
    caret.setPosition(3);
    view().setTextCursor(caret);
    waitUntilPainted();
    _station->key(Qt::Key_Backspace);
    waitUntilPainted();
    QCOMPARE(onTheScreen(), view().grab().toImage());
}

void KeyboardViewPaintingTest::aLetterAtTheEndOfAParagraphIsDrawn() {
    _station->pause();
    _station->engine().setPauseState(0);
    const auto imageOf = [this](const QString& text) {
        _station->engine().clearSending();
        _station->engine().appendMessage(text);
        _station->echo(static_cast<int>(text.size()) + 1);
        static_cast<void>(_station->bench.line().readAvailable());
        return view().viewport()->grab().toImage();
    };
    view().resize(900, 600);
    const auto word = u"E"_s.repeated(1200);
    auto other = word;
    imageOf(word);
    const auto end = view().document()->begin().next().position() - 1;
    QVERIFY(end > 0);
    other[end] = u'M';
    QVERIFY(imageOf(word) != imageOf(other));
}

void KeyboardViewPaintingTest::onlyParagraphsInSightKeepTheirShapes() {
    _station->pause();
    _station->engine().appendMessage(u"PARIS "_s.repeated(20'000));
    auto* bar = view().verticalScrollBar();
    for (int i = 0; i < 200; ++i) {
        bar->setValue(i * 20);
        view().viewport()->repaint();
    }
    int kept = 0;
    for (auto block = view().document()->begin(); block.isValid(); block = block.next()) {
        kept += block.layout()->cacheEnabled() ? 1 : 0;
    }
    QVERIFY(kept > 0);
    QVERIFY2(kept < 12, qPrintable(QString::number(kept)));
}

static const RegisteredTest<KeyboardViewPaintingTest> registered;
#include "KeyboardViewPaintingTest.moc"
