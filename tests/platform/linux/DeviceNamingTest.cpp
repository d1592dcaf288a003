#include "platform/linux/DeviceNaming.h"

#include "tests/support/RegisteredTest.h"

#include <QLocale>
#include <QScopeGuard>
#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;

class DeviceNamingTest : public QObject {
    Q_OBJECT
  private Q_SLOTS:
    void naturalOrder_data();
    void naturalOrder();
    void sortsManyNames();
    void theOrderIsTheSameInEveryLanguage_data();
    void theOrderIsTheSameInEveryLanguage();
    void suffix_data();
    void suffix();
};

void DeviceNamingTest::naturalOrder_data() {
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("second");
    QTest::newRow("a smaller number comes first") << u"ttyS2"_s << u"ttyS10"_s;
    QTest::newRow("numbers count inside a name") << u"a2b"_s << u"a10a"_s;
    QTest::newRow("numbers of equal length compare by digit") << u"a19"_s << u"a21"_s;
    QTest::newRow("letters compare before later numbers") << u"a9"_s << u"b1"_s;
    QTest::newRow("a beginning comes first") << u"ttyS"_s << u"ttyS0"_s;
    QTest::newRow("nothing comes first") << u""_s << u"a"_s;
    QTest::newRow("leading zeros do not make a number greater") << u"a007"_s << u"a8"_s;
    QTest::newRow("leading zeros tell equal numbers apart") << u"a01"_s << u"a1"_s;
    QTest::newRow("zero comes before one") << u"a0"_s << u"a1"_s;
    QTest::newRow("numbers beyond any integer type")
        << u"a99999999999999999999"_s << u"a100000000000000000000"_s;
    QTest::newRow("a digit comes before a letter") << u"a1"_s << u"ab"_s;
    QTest::newRow("letters beyond ASCII") << u"a"_s << u"ä"_s;
}

void DeviceNamingTest::naturalOrder() {
    QFETCH(QString, first);
    QFETCH(QString, second);
    QVERIFY(DeviceNaming::comesNaturallyBefore(first, second));
    QVERIFY(!DeviceNaming::comesNaturallyBefore(second, first));
    QVERIFY(!DeviceNaming::comesNaturallyBefore(first, first));
}

void DeviceNamingTest::sortsManyNames() {
    QStringList names{u"b"_s, u"a10"_s, u"a01"_s, u"a1"_s, u"a"_s, u"a2"_s};
    std::sort(names.begin(), names.end(), &DeviceNaming::comesNaturallyBefore);
    QCOMPARE(names, QStringList({u"a"_s, u"a01"_s, u"a1"_s, u"a2"_s, u"a10"_s, u"b"_s}));
}

void DeviceNamingTest::theOrderIsTheSameInEveryLanguage_data() {
    QTest::addColumn<QLocale>("language");
    QTest::newRow("none") << QLocale::c();
    QTest::newRow("English") << QLocale(QLocale::English);
    QTest::newRow("Estonian, whose z comes before t") << QLocale(QLocale::Estonian);
    QTest::newRow("Swedish, whose ä comes after z") << QLocale(QLocale::Swedish);
}

void DeviceNamingTest::theOrderIsTheSameInEveryLanguage() {
    QFETCH(QLocale, language);
    const auto reset = qScopeGuard([before = QLocale()] { QLocale::setDefault(before); });
    QLocale::setDefault(language);
    QStringList names{u"z2"_s, u"ttyS10"_s, u"ttyS2"_s, u"ä1"_s, u"z10"_s};
    std::sort(names.begin(), names.end(), &DeviceNaming::comesNaturallyBefore);
    QCOMPARE(names, QStringList({u"ä1"_s, u"ttyS2"_s, u"ttyS10"_s, u"z2"_s, u"z10"_s}));
}

void DeviceNamingTest::suffix_data() {
    QTest::addColumn<QStringList>("taken");
    QTest::addColumn<QString>("expected");
    QTest::newRow("the first one when nobody has it") << QStringList{u"x-B"_s} << u"A"_s;
    QTest::newRow("the next one when the first is taken") << QStringList{u"x-A"_s} << u"A-1"_s;
    QTest::newRow("the last one when all are taken")
        << QStringList{u"x-A"_s, u"x-A-1"_s, u"x-A-2"_s} << u"A-2"_s;
}

void DeviceNamingTest::suffix() {
    QFETCH(QStringList, taken);
    const SerialDevice device{.identity = u"i"_s,
                              .calloutPath = u"/dev/x"_s,
                              .dialinPath = u"/dev/x"_s,
                              .baseName = u"x-"_s,
                              .suffixes = {u"A"_s, u"A-1"_s, u"A-2"_s}};
    QTEST(DeviceNaming::freeSuffix(device, QSet<QString>(taken.begin(), taken.end())), "expected");
}

static const RegisteredTest<DeviceNamingTest> registered;
#include "DeviceNamingTest.moc"
