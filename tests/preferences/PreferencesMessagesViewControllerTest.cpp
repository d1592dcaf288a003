#include "preferences/PreferencesMessagesViewController.h"

#include "formatters/MessageFormatter.h"
#include "keyer/MessageSettings.h"
#include "keyer/WinKeyerUsb.h"
#include "preferences/PreferencesGeneral.h"
#include "preferences/binding/NumberBox.h"
#include "tests/support/RegisteredTest.h"
#include "tests/support/TestPlatform.h"

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QSet>
#include <QTest>
#include <QToolButton>

#include <optional>

using namespace Qt::StringLiterals;

class PreferencesMessagesViewControllerTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup();

    void itIsTheMessagesModule();
    void defaultsShow();
    void eachMessageHasAFormatterOfItsOwn();
    void labelsHaveNone();
    void messagesAreTyped_data();
    void messagesAreTyped();
    void messagesArePasted();
    void eachFieldStoresItsOwnSetting();
    void labelsFollowLetterByLetter();
    void theTokensAreExplained();
    void theBeaconIntervalIsInSeconds();
    void aBeaconIntervalOutOfRangeIsTold();
    void textFromAnAssistiveToolIsStored();
    void fieldsFollowInTheOrderOfReading();
    void everyControlHasItsLabelsName();

  private:
    [[nodiscard]] QLineEdit& message(int number) const {
        return *_pane->view()->findChild<QLineEdit*>(u"message%1TextField"_s.arg(number));
    }
    [[nodiscard]] QLineEdit& label(int number) const {
        return *_pane->view()->findChild<QLineEdit*>(u"message%1LabelTextField"_s.arg(number));
    }
    [[nodiscard]] QString stored(const QString& key) const {
        return _platform->settings().stringForKey(key);
    }

    std::optional<TestPlatform> _platform;
    std::optional<PreferencesMessagesViewController> _pane;
};

void PreferencesMessagesViewControllerTest::init() {
    _platform.emplace();
    PreferencesMessagesViewController::initialize();
    PreferencesGeneral::initialize();
    _pane.emplace(WinKeyerUsb::sharedInstance());
}

void PreferencesMessagesViewControllerTest::cleanup() {
    _pane.reset();
    _platform.reset();
}

void PreferencesMessagesViewControllerTest::itIsTheMessagesModule() {
    QCOMPARE(_pane->title(), u"Messages"_s);
    QCOMPARE(_pane->identifier(), u"PreferencesMessagesPane"_s);
    QCOMPARE(_pane->view()->objectName(), _pane->identifier());
    QVERIFY(!_pane->image().pixmap(32).isNull());
}

void PreferencesMessagesViewControllerTest::defaultsShow() {
    for (int number = 1; number <= 8; ++number) {
        const auto& setting = messageSettings[static_cast<std::size_t>(number) - 1];
        QCOMPARE(message(number).text(), QString(setting.textDefault).toUpper());
        QCOMPARE(label(number).text(), QString(setting.labelDefault));
        // Reading in upper case is no change.
        QCOMPARE(stored(setting.textKey), QString(setting.textDefault));
    }
}

void PreferencesMessagesViewControllerTest::eachMessageHasAFormatterOfItsOwn() {
    QSet<const QValidator*> formatters;
    for (int number = 1; number <= 8; ++number) {
        const auto* formatter = message(number).validator();
        QVERIFY(qobject_cast<const MessageFormatter*>(formatter) != nullptr);
        formatters.insert(formatter);
    }
    QCOMPARE(formatters.size(), 8);
}

void PreferencesMessagesViewControllerTest::labelsHaveNone() {
    for (int number = 1; number <= 8; ++number) {
        QVERIFY(label(number).validator() == nullptr);
    }
    label(1).clear();
    QTest::keyClicks(&label(1), u"cq & more!"_s);
    QCOMPARE(stored(u"Message1Label"_s), u"cq & more!"_s);
}

void PreferencesMessagesViewControllerTest::messagesAreTyped_data() {
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("text");
    QTest::newRow("lower case becomes upper case") << u"cq test"_s << u"CQ TEST"_s;
    QTest::newRow("tokens and control signs stay") << u"`~#{%^|"_s << u"`~#{%^|"_s;
    QTest::newRow("an ampersand goes") << u"a&b"_s << u"AB"_s;
    QTest::newRow("an exclamation mark goes") << u"a!b"_s << u"AB"_s;
    QTest::newRow("an underscore goes") << u"a_b"_s << u"AB"_s;
}

void PreferencesMessagesViewControllerTest::messagesAreTyped() {
    QFETCH(QString, typed);
    QFETCH(QString, text);
    for (int number = 1; number <= 8; ++number) {
        message(number).clear();
        QTest::keyClicks(&message(number), typed);
        QCOMPARE(message(number).text(), text);
        QCOMPARE(stored(u"Message%1"_s.arg(number)), text);
    }
}

void PreferencesMessagesViewControllerTest::messagesArePasted() {
    QGuiApplication::clipboard()->setText(u"A&B*C"_s);
    for (int number = 1; number <= 8; ++number) {
        message(number).clear();
        message(number).paste();
        QCOMPARE(message(number).text(), u"AB*C"_s);
        QCOMPARE(stored(u"Message%1"_s.arg(number)), u"AB*C"_s);
    }
}

void PreferencesMessagesViewControllerTest::eachFieldStoresItsOwnSetting() {
    for (int number = 1; number <= 8; ++number) {
        message(number).selectAll();
        QTest::keyClicks(&message(number), u"M%1"_s.arg(number));
        label(number).selectAll();
        QTest::keyClicks(&label(number), u"L%1"_s.arg(number));
    }
    for (int number = 1; number <= 8; ++number) {
        QCOMPARE(stored(u"Message%1"_s.arg(number)), u"M%1"_s.arg(number));
        QCOMPARE(stored(u"Message%1Label"_s.arg(number)), u"L%1"_s.arg(number));
    }
}

void PreferencesMessagesViewControllerTest::labelsFollowLetterByLetter() {
    QStringList labels;
    connect(&_platform->settings(), &SettingsStore::changed, this,
            [&](const QString& key) { labels.append(stored(key)); });
    label(6).selectAll();
    QTest::keyClicks(&label(6), u"Hi!"_s);
    QCOMPARE(labels, QStringList({u"H"_s, u"Hi"_s, u"Hi!"_s}));
}

void PreferencesMessagesViewControllerTest::theTokensAreExplained() {
    const auto* line = _pane->view()->findChild<QLabel*>(u"tokensLabel"_s);
    QVERIFY(line->text().contains(u"` stands for your call (your call)"_s));
    QVERIFY(line->text().contains(u"# for the serial number (TT1)"_s));
    _platform->settings().setObject(u"N0CALL"_s, u"MyCall"_s);
    QVERIFY(line->text().contains(u"(N0CALL)"_s));
    WinKeyerUsb::sharedInstance().setSerialNumber(105);
    QVERIFY(line->text().contains(u"(1T5)"_s));
    QVERIFY(line->text().contains(u"~ for their call. "_s));
    WinKeyerUsb::sharedInstance().setHisCallsign(u"N0OTHER"_s);
    QVERIFY(line->text().contains(u"~ for their call (N0OTHER). "_s));
    // A text of the operator's own is not looked through for places to fill in.
    _platform->settings().setObject(u"%2"_s, u"MyCall"_s);
    QVERIFY(line->text().contains(u"(%2)"_s));
}

void PreferencesMessagesViewControllerTest::theBeaconIntervalIsInSeconds() {
    auto* box = _pane->view()->findChild<NumberBox*>();
    QCOMPARE(box->text(), u"4.2 s"_s);
    box->stepUp();
    QCOMPARE(_platform->settings().doubleForKey(u"BeaconInterval"_s), 4.3);
    QVERIFY(box->toolTip().contains(u"0 to 3600 s, default 4.2 s"_s));
    _pane->view()->findChild<QToolButton*>(u"beaconIntervalReset"_s)->click();
    QCOMPARE(box->value(), 4.2);
}

void PreferencesMessagesViewControllerTest::aBeaconIntervalOutOfRangeIsTold() {
    auto* box = _pane->view()->findChild<NumberBox*>();
    box->selectAll();
    QTest::keyClicks(box, u"4000\r"_s);
    QCOMPARE(_platform->settings().doubleForKey(u"BeaconInterval"_s), 4.2);
    QCOMPARE(_pane->view()->findChild<QLabel*>(u"explanation"_s)->text(),
             u"Beacon interval: 4000 s is out of range: 0 to 3600 s. It stays at 4.2 s."_s);
}

void PreferencesMessagesViewControllerTest::textFromAnAssistiveToolIsStored() {
    const auto set = [](QLineEdit& field, const QString& text) {
        auto* editing = QAccessible::queryAccessibleInterface(&field)->editableTextInterface();
        editing->replaceText(0, static_cast<int>(field.text().size()), text);
    };
    for (int number = 1; number <= 8; ++number) {
        set(message(number), u"tu %1"_s.arg(number));
        set(label(number), u"Thanks %1"_s.arg(number));
        QCOMPARE(stored(u"Message%1"_s.arg(number)), u"TU %1"_s.arg(number));
        QCOMPARE(stored(u"Message%1Label"_s.arg(number)), u"Thanks %1"_s.arg(number));
    }
}

void PreferencesMessagesViewControllerTest::fieldsFollowInTheOrderOfReading() {
    _pane->view()->show();
    QVERIFY(QTest::qWaitForWindowActive(_pane->view()));
    label(1).setFocus();
    for (int number = 1; number <= 8; ++number) {
        QCOMPARE(QApplication::focusWidget(), &label(number));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), &message(number));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    QCOMPARE(QApplication::focusWidget(), _pane->view()->findChild<NumberBox*>());
}

void PreferencesMessagesViewControllerTest::everyControlHasItsLabelsName() {
    int count = 0;
    for (const auto* text : _pane->view()->findChildren<QLabel*>()) {
        if (const auto* control = text->buddy()) {
            QCOMPARE(control->accessibleName(), text->text().remove(u'&'));
            ++count;
        }
    }
    QCOMPARE(count, 9);
    QCOMPARE(label(3).accessibleName(), u"Message 3 label"_s);
}

static const RegisteredTest<PreferencesMessagesViewControllerTest> registered;
#include "PreferencesMessagesViewControllerTest.moc"
