// What another program writes into the settings' file while a pane is open.

#include "keyer/MessageSettings.h"
#include "keyer/WinKeyerUsb.h"
#include "preferences/PreferencesMessagesViewController.h"
#include "preferences/binding/NumberBox.h"
#include "tests/support/RegisteredTest.h"
#include "tests/support/TestPlatform.h"

#include <QFile>
#include <QLineEdit>
#include <QTest>

#include <optional>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

class PreferencesFileChangeTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup();

    void itShowsAtOnce();
    void itTakesThePlaceOfWhatIsBeingTyped();
    void whatIsTypedAfterwardsHolds();

  private:
    void write(const QByteArray& settings) const;
    [[nodiscard]] QByteArray content() const;
    [[nodiscard]] QLineEdit& label() const {
        return *_pane->view()->findChild<QLineEdit*>(u"message1LabelTextField"_s);
    }
    [[nodiscard]] NumberBox& interval() const {
        return *_pane->view()->findChild<NumberBox*>(u"beaconIntervalBox"_s);
    }

    std::optional<TestPlatform> _platform;
    std::optional<PreferencesMessagesViewController> _pane;
};

void PreferencesFileChangeTest::init() {
    _platform.emplace();
    PreferencesMessagesViewController::initialize();
    _pane.emplace(WinKeyerUsb::sharedInstance());
    _pane->view()->show();
    QVERIFY(QTest::qWaitForWindowExposed(_pane->view()));
    write("Message1Label=one\nBeaconInterval=5\n");
    QTRY_COMPARE(label().text(), u"one"_s);
}

void PreferencesFileChangeTest::cleanup() {
    _pane.reset();
    _platform.reset();
}

void PreferencesFileChangeTest::write(const QByteArray& settings) const {
    QFile file(_platform->settingsPath());
    QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    file.write("[General]\n" + settings);
}

QByteArray PreferencesFileChangeTest::content() const {
    QFile file(_platform->settingsPath());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void PreferencesFileChangeTest::itShowsAtOnce() {
    QCOMPARE(interval().value(), 5.0);
    write("Message1Label=two\nBeaconInterval=6\n");
    QTRY_COMPARE(label().text(), u"two"_s);
    QCOMPARE(interval().value(), 6.0);
}

/// A number that has been typed and not taken over yet would else be stored over the later one.
void PreferencesFileChangeTest::itTakesThePlaceOfWhatIsBeingTyped() {
    interval().setFocus();
    interval().selectAll();
    QTest::keyClicks(&interval(), u"9"_s);
    QCOMPARE(_platform->settings().doubleForKey(BeaconInterval.key), 5.0);
    write("Message1Label=one\nBeaconInterval=6\n");
    QTRY_COMPARE(interval().value(), 6.0);
    QTest::keyClick(&interval(), Qt::Key_Return);
    _platform->clock().advance(1s);
    QVERIFY(_platform->settings().synchronize());
    QCOMPARE(content(), "[General]\nBeaconInterval=6\nMessage1Label=one\n"_ba);
}

void PreferencesFileChangeTest::whatIsTypedAfterwardsHolds() {
    write("Message1Label=one\nBeaconInterval=6\n");
    QTRY_COMPARE(interval().value(), 6.0);
    interval().setFocus();
    interval().selectAll();
    QTest::keyClicks(&interval(), u"9"_s);
    QTest::keyClick(&interval(), Qt::Key_Return);
    QVERIFY(_platform->settings().synchronize());
    QCOMPARE(content(), "[General]\nBeaconInterval=9\nMessage1Label=one\n"_ba);
}

static const RegisteredTest<PreferencesFileChangeTest> registered;
#include "PreferencesFileChangeTest.moc"
