#include "preferences/KeyedWaveView.h"

#include "keyer/KeyerSettings.h"
#include "preferences/KeyedWavePicture.h"
#include "tests/keyer/EngineBench.h"
#include "tests/support/RegisteredTest.h"

#include <QLabel>
#include <QSpinBox>
#include <QTest>
#include <QTranslator>

#include <optional>

using namespace Qt::StringLiterals;

namespace {

/// A language that has the unit before the number.
class UnitFirst final : public QTranslator {
  public:
    UnitFirst() { QCoreApplication::installTranslator(this); }
    ~UnitFirst() override { QCoreApplication::removeTranslator(this); }

    [[nodiscard]] QString translate(const char* context, const char* text, const char*,
                                    int) const override {
        return qstrcmp(context, "WinKeyerUsb") == 0 && qstrcmp(text, "%1 WPM") == 0 ? u"WPM: %1"_s
                                                                                    : QString();
    }
    [[nodiscard]] bool isEmpty() const override { return false; }
};

} // namespace

class KeyedWaveViewTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup();

    void itTellsTheLengthsInWords();
    void itFollowsTheSettings_data();
    void itFollowsTheSettings();
    void theOperatorChoosesASpeedWhileThePotIsUnknown();
    void itFollowsTheSpeedPot();
    void theChoiceIsFreeAgainWithoutAKeyer();
    void theChoiceIsFreeAgainOnceTheKeyerIsPulledOut();
    void aPotBeyondTheChoiceIsShownToo();
    void theLanguageOfTheSpeedDoesNotMatter();

  private:
    [[nodiscard]] QString words() const { return _view->findChild<QLabel*>(u"lengths"_s)->text(); }
    [[nodiscard]] QSpinBox& speed() const {
        return *_view->findChild<QSpinBox*>(u"pictureSpeed"_s);
    }
    [[nodiscard]] const KeyedWavePicture& picture() const {
        return *_view->findChild<KeyedWavePicture*>();
    }

    std::optional<EngineBench> _bench;
    std::optional<KeyedWaveView> _view;
};

void KeyedWaveViewTest::init() {
    _bench.emplace();
    _view.emplace();
    _view->follow(_bench->engine());
}

void KeyedWaveViewTest::cleanup() {
    _view.reset();
    _bench.reset();
}

void KeyedWaveViewTest::itTellsTheLengthsInWords() {
    QCOMPARE(words(), u"Dit 60 ms, dah 180 ms, gap 60 ms, letter space 180 ms"_s);
    QCOMPARE(picture().accessibleName(), u"Keyed wave of AN"_s);
    QCOMPARE(picture().accessibleDescription(), words());
}

void KeyedWaveViewTest::itFollowsTheSettings_data() {
    QTest::addColumn<QString>("key");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("expected");

    QTest::newRow("weighting") << QString(WKWeighting) << QVariant(10)
                               << u"Dit 72 ms, dah 192 ms, gap 48 ms, letter space 168 ms"_s;
    QTest::newRow("ratio") << QString(WKRatio) << QVariant(3.5)
                           << u"Dit 60 ms, dah 208.8 ms, gap 60 ms, letter space 180 ms"_s;
    QTest::newRow("compensation") << QString(WKKeyingCompensation) << QVariant(7)
                                  << u"Dit 67 ms, dah 187 ms, gap 53 ms, letter space 173 ms"_s;
    QTest::newRow("first extension")
        << QString(WKFirstExtension) << QVariant(30)
        << u"Dit 60 ms, dah 180 ms, gap 60 ms, letter space 180 ms, first element 30 ms longer"_s;
    QTest::newRow("Farnsworth speed") << QString(WKFarnsworthSpeed) << QVariant(40)
                                      << u"Dit 30 ms, dah 90 ms, gap 30 ms, letter space 180 ms"_s;
}

void KeyedWaveViewTest::itFollowsTheSettings() {
    QFETCH(const QString, key);
    QFETCH(const QVariant, value);
    QFETCH(const QString, expected);
    _bench->settings().setObject(value, key);
    QCOMPARE(words(), expected);
    QCOMPARE(picture().accessibleDescription(), expected);
}

void KeyedWaveViewTest::theOperatorChoosesASpeedWhileThePotIsUnknown() {
    QVERIFY(speed().isEnabled());
    QCOMPARE(speed().text(), u"20 wpm"_s);
    speed().selectAll();
    QTest::keyClicks(&speed(), u"40"_s);
    QCOMPARE(words(), u"Dit 30 ms, dah 90 ms, gap 30 ms, letter space 90 ms"_s);
    QCOMPARE(_bench->settings().integerForKey(WKSpeed), 0);
}

void KeyedWaveViewTest::itFollowsTheSpeedPot() {
    QVERIFY(_bench->connect());
    QVERIFY(speed().isEnabled());
    _bench->receive({0x80 + 12}); // 12 above the pot's least, 13
    QCOMPARE(speed().value(), 25);
    QVERIFY(!speed().isEnabled());
    QVERIFY(speed().toolTip().contains(u"speed pot is at this speed"_s));
    QCOMPARE(words(), u"Dit 48 ms, dah 144 ms, gap 48 ms, letter space 144 ms"_s);
    _bench->receive({0x80 + 17});
    QCOMPARE(words(), u"Dit 40 ms, dah 120 ms, gap 40 ms, letter space 120 ms"_s);
}

void KeyedWaveViewTest::theChoiceIsFreeAgainWithoutAKeyer() {
    QVERIFY(_bench->connect());
    _bench->receive({0x80 + 12});
    _bench->engine().disconnect(nullptr);
    QVERIFY(speed().isEnabled());
    QCOMPARE(speed().value(), 25);
}

void KeyedWaveViewTest::theChoiceIsFreeAgainOnceTheKeyerIsPulledOut() {
    QVERIFY(_bench->connect());
    _bench->receive({0x80 + 12});
    _bench->platform().devices().unplug(_bench->device());
    QVERIFY(speed().isEnabled());
    QCOMPARE(speed().value(), 25);
}

void KeyedWaveViewTest::aPotBeyondTheChoiceIsShownToo() {
    _bench->settings().setObject(99, WKSpeedPotMinimum);
    QVERIFY(_bench->connect());
    _bench->receive({0x80 + 21});
    QCOMPARE(speed().value(), 120);
    QCOMPARE(words(), u"Dit 10 ms, dah 30 ms, gap 10 ms, letter space 30 ms"_s);
}

void KeyedWaveViewTest::theLanguageOfTheSpeedDoesNotMatter() {
    const UnitFirst language;
    QVERIFY(_bench->connect());
    _bench->receive({0x80 + 12});
    QCOMPARE(_bench->engine().speedString(), u"WPM: 25"_s);
    QCOMPARE(speed().value(), 25);
}

static const RegisteredTest<KeyedWaveViewTest> registered;
#include "KeyedWaveViewTest.moc"
