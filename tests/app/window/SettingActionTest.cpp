#include "keyer/GeneralSettings.h"
#include "tests/app/window/MainWindowFixture.h"
#include "tests/support/RegisteredTest.h"

#include <QAction>
#include <QLabel>
#include <QTest>

using namespace Qt::StringLiterals;

/// The item of the main window's menu that lets loggers send.
class SettingActionTest : public QObject, private MainWindowFixture {
    Q_OBJECT

  private Q_SLOTS:
    void init() { open(); }
    void cleanup() { close(); }

    void itIsOffAtFirst();
    void whatIsChosenIsStored();
    void whatIsStoredIsShown();
    void theStatusLineTellsOfLoggers();

  private:
    [[nodiscard]] QAction& action() { return *find<QAction>(u"acceptLoggersAction"_s); }
    [[nodiscard]] bool isStored() { return _bench->settings().boolForKey(AcceptLoggers); }
};

void SettingActionTest::itIsOffAtFirst() {
    QVERIFY(!action().isChecked());
    QVERIFY(!isStored());
}

void SettingActionTest::whatIsChosenIsStored() {
    action().trigger();
    QVERIFY(isStored());
    action().trigger();
    QVERIFY(!isStored());
}

void SettingActionTest::whatIsStoredIsShown() {
    _bench->settings().setObject(true, AcceptLoggers);
    QVERIFY(action().isChecked());
    _bench->settings().setObject(false, AcceptLoggers);
    QVERIFY(!action().isChecked());
}

void SettingActionTest::theStatusLineTellsOfLoggers() {
    const auto* status = find<QLabel>(u"keyerStatusLabel"_s);
    const auto notice = u"Loggers: port 6789, last from tlf"_s;
    _window->showLoggers(notice);
    QVERIFY(status->text().endsWith(notice));
    QCOMPARE(status->accessibleDescription(), status->text());
    _window->showLoggers({});
    QVERIFY(!status->text().contains(u"Loggers"));
}

static const RegisteredTest<SettingActionTest> registered;
#include "SettingActionTest.moc"
