#include "keyer/GeneralSettings.h"
#include "keyer/KeyerSettings.h"
#include "keyer/MessageSettings.h"
#include "preferences/PreferencesGeneral.h"
#include "preferences/PreferencesGeneralViewController.h"
#include "preferences/PreferencesMessagesViewController.h"
#include "preferences/PreferencesWinKeyerViewController.h"
#include "preferences/binding/NumberBox.h"
#include "tests/keyer/EngineBench.h"
#include "tests/preferences/PaneOperator.h"
#include "tests/support/RegisteredTest.h"
#include "translations/Translations.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QTest>

#include <optional>

using namespace Qt::StringLiterals;

/// The panes of an operator who reads German: what is shown is German, and what is stored, which
/// the keyer's settings go by, is what it is everywhere.
class PanesInGermanTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup();

    void choicesAreStoredAsInEnglish();
    void numbersHaveAComma();
    void theAbsenceOfAPortHasItsWord();
    void labelsAreGermanAndTextsAreSentAsEver();

  private:
    void choose(PaneOperator& pane, QLatin1StringView key, const QString& entry,
                const QString& stored);
    [[nodiscard]] QString stored(QLatin1StringView key) {
        return _bench->settings().stringForKey(key);
    }

    std::optional<Translations> _translations;
    std::optional<EngineBench> _bench;
};

void PanesInGermanTest::init() {
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    _translations.emplace(QLocale());
    _bench.emplace();
    PreferencesMessagesViewController::initialize();
    PreferencesGeneral::initialize();
}

void PanesInGermanTest::cleanup() {
    _bench.reset();
    _translations.reset();
    QLocale::setDefault(QLocale::c());
}

void PanesInGermanTest::choose(PaneOperator& pane, QLatin1StringView key, const QString& entry,
                               const QString& wanted) {
    QVERIFY2(pane.control<QComboBox>(key).findText(entry) >= 0, qPrintable(entry));
    pane.choose(key, entry);
    QCOMPARE(stored(key), wanted);
    QCOMPARE(pane.control<QComboBox>(key).currentText(), entry);
}

void PanesInGermanTest::choicesAreStoredAsInEnglish() {
    _bench->settings().setObject(true, WKPTTEnable);
    _bench->settings().setObject(u"Ultimatic"_s, WKKeyMode);
    PreferencesWinKeyerViewController controller(_bench->engine());
    PaneOperator pane(*controller.view());
    QCOMPARE(pane.control<QComboBox>(WKHSCWSpeed).currentText(), u"1000 BpM"_s);
    choose(pane, WKHSCWSpeed, u"2000 BpM"_s, u"2000 lpm"_s);
    choose(pane, WKPaddleHang, u"1,33"_s, u"1.33"_s);
    choose(pane, WKDitDahPriority, u"Striche"_s, u"Dashes"_s);
    choose(pane, WKKeyMode, u"Bug"_s, u"Bug"_s);
    QVERIFY(pane.control(WKPaddleHang).toolTip().contains(u"Standard: 1,0"));
    QVERIFY(pane.control(WKHSCWSpeed).toolTip().contains(u"Standard: 1000 BpM"));
}

void PanesInGermanTest::numbersHaveAComma() {
    PreferencesMessagesViewController controller(_bench->engine());
    const auto& interval = *controller.view()->findChild<NumberBox*>();
    QCOMPARE(interval.text(), u"4,2 s"_s);
    QVERIFY(interval.toolTip().contains(u"0 bis 3600 s, Standard 4,2 s"));
    PreferencesWinKeyerViewController keyer(_bench->engine());
    const auto* lengths = keyer.view()->findChild<QLabel*>(u"lengths"_s);
    QVERIFY2(lengths->text().startsWith(u"Punkt ") && !lengths->text().contains(u'.'),
             qPrintable(lengths->text()));
}

void PanesInGermanTest::theAbsenceOfAPortHasItsWord() {
    PreferencesGeneralViewController controller(_bench->engine());
    controller.setSerialPortNames({u"None"_s, u"usbserial-A"_s});
    _bench->settings().setObject(u"None"_s, WKPortName);
    auto& chooser = *controller.view()->findChild<QComboBox*>(u"serialPortChooser"_s);
    QCOMPARE(chooser.currentText(), u"Keiner"_s);
    chooser.setCurrentIndex(1);
    QCOMPARE(stored(WKPortName), u"usbserial-A"_s);
    chooser.setCurrentIndex(0);
    QCOMPARE(stored(WKPortName), u"None"_s);
    _bench->settings().setObject(u"usbserial-B"_s, WKPortName);
    QCOMPARE(chooser.currentText(), u"usbserial-B (nicht vorhanden)"_s);
    auto& limit = *controller.view()->findChild<QComboBox*>(u"tuneLimitChooser"_s);
    QCOMPARE(limit.currentText(), u"Nie"_s);
    limit.setCurrentIndex(1);
    QCOMPARE(stored(TuneLimit.key), u"10 s"_s);
    limit.setCurrentIndex(0);
    QCOMPARE(stored(TuneLimit.key), u"Off"_s);
}

/// The texts go on the air.
void PanesInGermanTest::labelsAreGermanAndTextsAreSentAsEver() {
    QCOMPARE(stored(messageSettings[1].labelKey), u"Rapport"_s);
    for (const auto& message : messageSettings) {
        QCOMPARE(stored(message.textKey), QString(message.textDefault));
    }
    QCOMPARE(stored(MyCall), u"your call"_s);
    for (const auto key : WKStandaloneMessages) {
        QVERIFY(stored(key).startsWith(u"Message "));
    }
}

static const RegisteredTest<PanesInGermanTest> registered;
#include "PanesInGermanTest.moc"
