#include "app/window/ContactFields.h"

#include "tests/app/window/MainWindowFixture.h"
#include "tests/support/RegisteredTest.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLineEdit>
#include <QSpinBox>
#include <QWheelEvent>

using namespace Qt::StringLiterals;

/// The keys that go from one contact to the next.
class ContactFieldsTest : public QObject, private MainWindowFixture {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup() { close(); }

    void theKeyOfTheCallSelectsItAll_data();
    void theKeyOfTheCallSelectsItAll();
    void theNextContactHasTheNextNumberAndNoCallYet();
    void aHeldKeyIsOneContact();
    void wipingLeavesTheNumber();
    void aSignThatWaitsIsSentAsWhatIsTypedAfterAWipe();
    void aCallThatIsBeingKeyedOutlastsAWipe();
    void aWheelThatTurnsOverTheNumberIsNotMeantForIt();
    void aCallThatWaitsIsSentFirst();
    void aCallTypedMeanwhileIsTheNextContacts();
    void eachOfSeveralContactsKeepsItsCall_data();
    void eachOfSeveralContactsKeepsItsCall();
    void severalCharactersAheadKeepEachCall();
    void aStopLeavesNoCallBehind();
    void aSignThatMovesIsStillTheLastContacts();
    void withoutAKeyerTheFieldIsTheEngines();
    void theCallOfWhatWaitsAsleepIsKept();

  private:
    [[nodiscard]] QLineEdit& field() { return *find<QLineEdit>(u"hisCallsignTextField"_s); }

    /// The keyer echoes all that it is given.
    [[nodiscard]] QByteArray everythingSent() {
        QByteArray sent = QByteArray::fromHex(_bench->written());
        for (int i = 0; i < 60; ++i) {
            _bench->receive({'E'});
            sent += QByteArray::fromHex(_bench->written());
        }
        return sent;
    }

    WinKeyerUsb* _engine = nullptr;
};

void ContactFieldsTest::init() {
    open();
    _engine = &_bench->engine();
    _engine->setHisCallsign(u"W9XYZ"_s);
    _engine->setSerialNumber(7);
}

void ContactFieldsTest::theKeyOfTheCallSelectsItAll_data() {
    QTest::addColumn<bool>("isThere");
    QTest::addRow("from elsewhere") << false;
    QTest::addRow("from the field itself") << true;
}

void ContactFieldsTest::theKeyOfTheCallSelectsItAll() {
    QFETCH(const bool, isThere);
    if (isThere) {
        field().setFocus();
        field().end(false);
    }
    press(Qt::Key_L, Qt::ControlModifier);
    QVERIFY(field().hasFocus());
    QCOMPARE(field().selectedText(), u"W9XYZ"_s);
    type(u"K1A"_s);
    QCOMPARE(_engine->hisCallsign(), u"K1A"_s);
}

void ContactFieldsTest::theNextContactHasTheNextNumberAndNoCallYet() {
    press(Qt::Key_F11);
    QCOMPARE(_engine->serialNumber(), 8);
    QCOMPARE(_engine->hisCallsign(), u""_s);
    QVERIFY(field().hasFocus());
    type(u"K1A"_s);
    QCOMPARE(_engine->hisCallsign(), u"K1A"_s);
    QCOMPARE(_bench->written(), "");
}

void ContactFieldsTest::aHeldKeyIsOneContact() {
    auto* window = _window->windowHandle();
    QTest::simulateEvent(window, true, Qt::Key_F11, Qt::NoModifier, {}, false);
    QTest::simulateEvent(window, true, Qt::Key_F11, Qt::NoModifier, {}, true);
    QCOMPARE(_engine->serialNumber(), 8);
}

void ContactFieldsTest::wipingLeavesTheNumber() {
    press(Qt::Key_W, Qt::AltModifier);
    QCOMPARE(_engine->serialNumber(), 7);
    QCOMPARE(_engine->hisCallsign(), u""_s);
    QVERIFY(field().hasFocus());
    QCOMPARE(_bench->written(), "");
}

/// A call that was wrong is corrected so, too, and by the other ways to correct it.
void ContactFieldsTest::aSignThatWaitsIsSentAsWhatIsTypedAfterAWipe() {
    _engine->appendMessage(u"e~ ~k"_s);
    press(Qt::Key_W, Qt::AltModifier);
    type(u"K1A"_s);
    QCOMPARE(_engine->hisCallsign(), u"K1A"_s);
    QCOMPARE(everythingSent(), "EK1A K1AK");
}

void ContactFieldsTest::aCallThatIsBeingKeyedOutlastsAWipe() {
    _engine->appendMessage(u"~ ~k"_s);
    _bench->receive({'W'});
    press(Qt::Key_W, Qt::AltModifier);
    type(u"K1AB"_s);
    QCOMPARE(everythingSent(), "W9XYZ K1ABK");
    QCOMPARE(_engine->hisCallsign(), u"K1AB"_s);
    QCOMPARE(field().text(), u"K1AB"_s);
}

void ContactFieldsTest::aWheelThatTurnsOverTheNumberIsNotMeantForIt() {
    auto* number = _window->findChild<QSpinBox*>(u"serialNumberBox"_s);
    const QPointF middle = number->rect().center();
    const auto turn = [&] {
        QWheelEvent event(middle, number->mapToGlobal(middle), {}, {0, 120}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(number, &event);
    };
    turn();
    QCOMPARE(_engine->serialNumber(), 7);
    QVERIFY((number->focusPolicy() & Qt::WheelFocus) != Qt::WheelFocus);
    number->setFocus();
    turn();
    QCOMPARE(_engine->serialNumber(), 8);
}

void ContactFieldsTest::aCallThatWaitsIsSentFirst() {
    _engine->appendMessage(u"e~k"_s);
    press(Qt::Key_F11);
    QByteArray sent;
    for (int i = 0; i < 10; ++i) {
        sent += QByteArray::fromHex(_bench->written());
        _bench->receive({'E'});
    }
    QCOMPARE(sent, "EW9XYZK");
    QCOMPARE(_engine->hisCallsign(), u""_s);
    QCOMPARE(field().text(), u""_s);
}

void ContactFieldsTest::aCallTypedMeanwhileIsTheNextContacts() {
    _engine->appendMessage(u"e~k"_s);
    _bench->receive({'E'});
    _bench->receive({'W'});
    press(Qt::Key_F11);
    QCOMPARE(field().text(), u""_s);
    type(u"K1A"_s);
    QCOMPARE(_window->findChild<QAbstractButton*>(u"message5Button"_s)->accessibleDescription(),
             u"K1A"_s);
    _engine->appendMessage(u"~"_s);
    QByteArray sent = QByteArray::fromHex(_bench->written());
    for (int i = 0; i < 20; ++i) {
        _bench->receive({'E'});
        sent += QByteArray::fromHex(_bench->written());
    }
    QCOMPARE(sent, "EW9XYZK K1A");
    QCOMPARE(_engine->hisCallsign(), u"K1A"_s);
    QCOMPARE(field().text(), u"K1A"_s);
}

void ContactFieldsTest::eachOfSeveralContactsKeepsItsCall_data() {
    QTest::addColumn<QString>("exchange");
    QTest::addColumn<QByteArray>("result");
    QTest::addRow("a sign each") << u"~"_s << QByteArray("W9XYZ K1A N2B");
    QTest::addRow("two signs each") << u"~ ~"_s << QByteArray("W9XYZ W9XYZ K1A K1A N2B N2B");
    QTest::addRow("no sign at all") << u"e"_s << QByteArray("E E E");
}

/// A fast operator is contacts ahead of the keyer.
void ContactFieldsTest::eachOfSeveralContactsKeepsItsCall() {
    QFETCH(const QString, exchange);
    for (const auto* call : {"", "K1A", "N2B", ""}) {
        type(QString::fromLatin1(call));
        if (call[0] != '\0' || _engine->keyboardBuffer().isEmpty()) {
            _engine->appendMessage(exchange);
        }
        press(Qt::Key_F11);
    }
    type(u"G3C"_s);
    QByteArray sent = QByteArray::fromHex(_bench->written());
    for (int i = 0; i < 60; ++i) {
        _bench->receive({'E'});
        sent += QByteArray::fromHex(_bench->written());
    }
    QTEST(sent, "result");
    QCOMPARE(_engine->hisCallsign(), u"G3C"_s);
    QCOMPARE(_engine->serialNumber(), 11);
}

/// The next sign is read when the call before it is keyed, not when it is given to the keyer.
void ContactFieldsTest::severalCharactersAheadKeepEachCall() {
    _bench->settings().setObject(4, CharactersAhead.key);
    _engine->appendMessage(u"e~k"_s);
    press(Qt::Key_F11);
    type(u"K1A"_s);
    _engine->appendMessage(u"~"_s);
    auto sent = QByteArray::fromHex(_bench->written());
    for (qsizetype keyed = 0; keyed < sent.size(); ++keyed) {
        _bench->receive({sent.at(keyed)});
        sent += QByteArray::fromHex(_bench->written());
    }
    QCOMPARE(sent, "EW9XYZK K1A");
    QCOMPARE(_engine->hisCallsign(), u"K1A"_s);
}

void ContactFieldsTest::aStopLeavesNoCallBehind() {
    _engine->appendMessage(u"e~k"_s);
    press(Qt::Key_F11);
    type(u"K1A"_s);
    QCOMPARE(_engine->hisCallsign(), u"W9XYZ"_s);
    press(Qt::Key_Escape);
    QCOMPARE(_engine->hisCallsign(), u"K1A"_s);
    type(u"B"_s);
    QCOMPARE(_engine->hisCallsign(), u"K1AB"_s);
}

void ContactFieldsTest::aSignThatMovesIsStillTheLastContacts() {
    _engine->appendMessage(u"ee~k"_s);
    press(Qt::Key_F11);
    type(u"K1A"_s);
    _bench->type(u"EEE~K"_s);
    QByteArray sent = QByteArray::fromHex(_bench->written());
    for (int i = 0; i < 20; ++i) {
        _bench->receive({'E'});
        sent += QByteArray::fromHex(_bench->written());
    }
    QCOMPARE(sent, "EEEW9XYZK");
    QCOMPARE(_engine->hisCallsign(), u"K1A"_s);
}

/// What is struck out is never sent, and holds no call back.
void ContactFieldsTest::withoutAKeyerTheFieldIsTheEngines() {
    QVERIFY(_engine->disconnect(nullptr));
    find<QWidget>(u"keyboardView"_s)->setFocus();
    type(u"~ 5nn"_s);
    press(Qt::Key_F11);
    QCOMPARE(_engine->hisCallsign(), u""_s);
    type(u"K1A"_s);
    QCOMPARE(_engine->hisCallsign(), u"K1A"_s);
    QCOMPARE(find<QAbstractButton>(u"message5Button"_s)->accessibleDescription(), u"K1A"_s);
    QVERIFY(_bench->connect());
    press(Qt::Key_F5);
    _bench->receive({'K'});
    QCOMPARE(_bench->written(), "4b 31");
}

void ContactFieldsTest::theCallOfWhatWaitsAsleepIsKept() {
    auto& notifications = _bench->platform().notifications();
    notifications.post(NSWorkspaceWillSleepNotification, nullptr);
    press(Qt::Key_F5);
    press(Qt::Key_F11);
    type(u"K1A"_s);
    notifications.post(NSWorkspaceDidWakeNotification, nullptr);
    QTRY_VERIFY(!_engine->isAsleep());
    _bench->clock().advance(std::chrono::minutes{1});
    static_cast<void>(_bench->written());
    press(Qt::Key_P, Qt::ControlModifier);
    QByteArray sent;
    for (int i = 0; i < 8; ++i) {
        sent += QByteArray::fromHex(_bench->written().replace("06 00", ""));
        _bench->receive({'E'});
    }
    QCOMPARE(sent, "W9XYZ");
    QCOMPARE(_engine->hisCallsign(), u"K1A"_s);
}

static const RegisteredTest<ContactFieldsTest> registered;
#include "ContactFieldsTest.moc"
