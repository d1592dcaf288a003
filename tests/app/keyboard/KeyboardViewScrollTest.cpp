#include "tests/app/keyboard/KeyboardStation.h"
#include "tests/support/RegisteredTest.h"

#include <QInputMethodEvent>
#include <QScrollBar>
#include <QWheelEvent>

#include <optional>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

/// Whose scroll position it is: the sending's, or the operator's.
class KeyboardViewScrollTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup() { _station.reset(); }

    void theViewFollowsTheSending();
    void theViewFollowsBackToTheBeginning();
    void aVisibleSendingPositionDoesNotScroll();
    void useHoldsTheViewForSomeSeconds_data();
    void useHoldsTheViewForSomeSeconds();
    void furtherUseHoldsTheViewLonger();
    void aSelectionHoldsTheView();
    void aCompositionHoldsTheView();
    void addedTextDoesNotScroll();
    void theSelectionStaysWithItsTextWhenTheEndIsAddedTo();
    void theCaretAtTheEndStaysAtTheEnd();
    void theCaretInTheMiddleStaysWhenAParagraphBreaks();

  private:
    [[nodiscard]] QScrollBar& bar() { return *_station->view.verticalScrollBar(); }
    [[nodiscard]] bool isSendingVisible();
    void use(const QString& way);
    /// A long text stands in the view, of which nothing is sent yet.
    void fill();
    void sendOutOfSight();

    std::optional<KeyboardStation> _station;
};

void KeyboardViewScrollTest::init() {
    _station.emplace(QSize(300, 120));
    QVERIFY(_station->isReady);
}

void KeyboardViewScrollTest::fill() {
    _station->engine().appendMessage(u"PARIS "_s.repeated(500));
    QVERIFY(bar().maximum() > 20);
}

void KeyboardViewScrollTest::sendOutOfSight() {
    _station->echo(1500);
    static_cast<void>(_station->bench.line().readAvailable());
}

bool KeyboardViewScrollTest::isSendingVisible() {
    auto& view = _station->view;
    auto cursor = view.textCursor();
    cursor.setPosition(static_cast<int>(_station->engine().inFlightIndex()));
    return view.viewport()->rect().contains(view.cursorRect(cursor));
}

void KeyboardViewScrollTest::theViewFollowsTheSending() {
    fill();
    for (int i = 0; i < 60; ++i) {
        _station->echo(50);
        static_cast<void>(_station->bench.line().readAvailable());
        QVERIFY2(isSendingVisible(), qPrintable(QString::number(i)));
    }
    QVERIFY(bar().value() > 20);
}

void KeyboardViewScrollTest::theViewFollowsBackToTheBeginning() {
    fill();
    sendOutOfSight();
    QVERIFY(bar().value() > 0);
    _station->engine().stopMessageSending(nullptr);
    fill();
    QVERIFY(isSendingVisible());
}

void KeyboardViewScrollTest::aVisibleSendingPositionDoesNotScroll() {
    fill();
    _station->echo(60);
    QCOMPARE(bar().value(), 0);
}

void KeyboardViewScrollTest::useHoldsTheViewForSomeSeconds_data() {
    QTest::addColumn<QString>("way");
    for (const auto* way : {"a key", "a click", "the wheel", "the scroll bar", "a composed key"}) {
        QTest::addRow("%s", way) << QString::fromLatin1(way);
    }
}

void KeyboardViewScrollTest::use(const QString& way) {
    auto& view = _station->view;
    if (way == u"a key") {
        _station->key(Qt::Key_Right);
    } else if (way == u"a click") {
        QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, QPoint(5, 5));
    } else if (way == u"the wheel") {
        QWheelEvent event(QPointF(5, 5), view.mapToGlobal(QPointF(5, 5)), QPoint(), QPoint(0, -120),
                          Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(view.viewport(), &event);
    } else if (way == u"the scroll bar") {
        bar().triggerAction(QScrollBar::SliderSingleStepAdd);
    } else {
        QInputMethodEvent event(QString(), {});
        event.setCommitString(u"e"_s);
        QApplication::sendEvent(&view, &event);
    }
}

void KeyboardViewScrollTest::useHoldsTheViewForSomeSeconds() {
    QFETCH(const QString, way);
    fill();
    _station->bench.clock().advance(1h);
    use(way);
    const auto held = bar().value();
    sendOutOfSight();
    QCOMPARE(bar().value(), held);
    _station->bench.clock().advance(ScrollRest::length - 1ms);
    QCOMPARE(bar().value(), held);
    _station->bench.clock().advance(1ms);
    QVERIFY(bar().value() != held);
    QVERIFY(isSendingVisible());
}

void KeyboardViewScrollTest::furtherUseHoldsTheViewLonger() {
    fill();
    use(u"a key"_s);
    sendOutOfSight();
    const auto held = bar().value();
    _station->bench.clock().advance(ScrollRest::length - 1s);
    use(u"a key"_s);
    _station->bench.clock().advance(ScrollRest::length - 1s);
    QCOMPARE(bar().value(), held);
    _station->bench.clock().advance(1s);
    QVERIFY(isSendingVisible());
}

void KeyboardViewScrollTest::aSelectionHoldsTheView() {
    fill();
    auto cursor = _station->view.textCursor();
    cursor.setPosition(0);
    cursor.setPosition(5, QTextCursor::KeepAnchor);
    _station->view.setTextCursor(cursor);
    const auto held = bar().value();
    sendOutOfSight();
    _station->bench.clock().advance(1h);
    QCOMPARE(bar().value(), held);
    cursor.clearSelection();
    _station->view.setTextCursor(cursor);
    _station->echo();
    QVERIFY(isSendingVisible());
}

void KeyboardViewScrollTest::aCompositionHoldsTheView() {
    fill();
    QInputMethodEvent begin(u"ka"_s, {});
    QApplication::sendEvent(&_station->view, &begin);
    const auto held = bar().value();
    _station->bench.clock().advance(1h);
    sendOutOfSight();
    QCOMPARE(bar().value(), held);
    QInputMethodEvent end;
    QApplication::sendEvent(&_station->view, &end);
    _station->bench.clock().advance(1h);
    QVERIFY(isSendingVisible());
}

void KeyboardViewScrollTest::addedTextDoesNotScroll() {
    fill();
    use(u"the scroll bar"_s);
    const auto held = bar().value();
    for (int i = 0; i < 50; ++i) {
        _station->engine().appendMessage(u"cq test n0call"_s);
    }
    QCOMPARE(bar().value(), held);
}

void KeyboardViewScrollTest::theSelectionStaysWithItsTextWhenTheEndIsAddedTo() {
    _station->pause();
    _station->keys(u"abc"_s);
    _station->key(Qt::Key_Left, Qt::ShiftModifier);
    _station->engine().appendMessage(u"test"_s);
    QCOMPARE(_station->view.textCursor().selectedText(), u"C"_s);
    QCOMPARE(_station->view.textCursor().position(), 2);
    _station->key(Qt::Key_End, Qt::ControlModifier);
    _station->key(Qt::Key_Home, Qt::ShiftModifier);
    _station->key(Qt::Key_Home);
    _station->key(Qt::Key_End, Qt::ShiftModifier);
    _station->engine().appendMessage(u"test"_s);
    QCOMPARE(_station->view.textCursor().selectedText(), u"ABC TEST"_s);
    QCOMPARE(_station->view.textCursor().anchor(), 0);
}

void KeyboardViewScrollTest::theCaretAtTheEndStaysAtTheEnd() {
    _station->pause();
    _station->keys(u"abc"_s);
    _station->engine().appendMessage(u"test"_s);
    QCOMPARE(_station->view.textCursor().position(), 8);
}

void KeyboardViewScrollTest::theCaretInTheMiddleStaysWhenAParagraphBreaks() {
    _station->pause();
    _station->engine().appendMessage(u"PARIS "_s.repeated(160));
    auto cursor = _station->view.textCursor();
    cursor.setPosition(500);
    _station->view.setTextCursor(cursor);
    const auto held = bar().value();
    _station->keys(u"test test test test test test test test test test"_s);
    QVERIFY(_station->view.blockCount() > 1);
    QCOMPARE(_station->view.textCursor().position(), 549);
    QVERIFY(held <= bar().value());
    QCOMPARE(_station->view.text(), _station->engine().keyboardBuffer());
}

static const RegisteredTest<KeyboardViewScrollTest> registered;
#include "KeyboardViewScrollTest.moc"
