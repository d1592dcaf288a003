#include "preferences/PreferencesGeneral.h"
#include "preferences/PreferencesMessagesViewController.h"
#include "preferences/PreferencesWinKeyer.h"
#include "tests/support/RegisteredTest.h"
#include "tests/support/TestPlatform.h"

#include <QFile>
#include <QTest>

using namespace Qt::StringLiterals;

class RegisteredDefaultsTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void eachClassRegistersItsOwn();
    void theyLieUnderWhatTheOperatorHasStored();
};

void RegisteredDefaultsTest::eachClassRegistersItsOwn() {
    const TestPlatform platform;
    auto& settings = platform.settings();
    QVERIFY(!settings.objectForKey(u"WKRatio"_s).isValid());
    PreferencesWinKeyer::initialize();
    QCOMPARE(settings.doubleForKey(u"WKRatio"_s), 3.0);
    QVERIFY(!settings.objectForKey(u"Message1"_s).isValid());
    PreferencesMessagesViewController::initialize();
    QCOMPARE(settings.stringForKey(u"Message1"_s), u"CQ test ` `"_s);
    QCOMPARE(settings.doubleForKey(u"BeaconInterval"_s), 4.2);
    QVERIFY(!settings.objectForKey(u"WKPortName"_s).isValid());
    PreferencesGeneral::initialize();
    QCOMPARE(settings.stringForKey(u"WKPortName"_s), u"None"_s);
    QCOMPARE(settings.stringForKey(u"MyCall"_s), u"your call"_s);
    QCOMPARE(settings.stringForKey(u"TuneLimit"_s), u"Off"_s);
}

void RegisteredDefaultsTest::theyLieUnderWhatTheOperatorHasStored() {
    const TestPlatform platform;
    platform.settings().setObject(u"N0CALL"_s, u"MyCall"_s);
    PreferencesGeneral::initialize();
    QCOMPARE(platform.settings().stringForKey(u"MyCall"_s), u"N0CALL"_s);
    QVERIFY(platform.settings().synchronize());
    QFile file(platform.settingsPath());
    QVERIFY(file.open(QIODevice::ReadOnly));
    const auto stored = file.readAll();
    QVERIFY(stored.contains("MyCall"));
    QVERIFY(!stored.contains("WKPortName"));
}

static const RegisteredTest<RegisteredDefaultsTest> registered;
#include "RegisteredDefaultsTest.moc"
