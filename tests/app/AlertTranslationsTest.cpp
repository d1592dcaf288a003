#include "app/QuorvelDelegate.h"

#include "tests/keyer/EngineBench.h"
#include "tests/support/RegisteredTest.h"

#include <QSet>
#include <QTest>
#include <QTranslator>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// A translation of everything: the original backwards.
class Backwards final : public QTranslator {
  public:
    [[nodiscard]] bool isEmpty() const override { return false; }
    [[nodiscard]] QString translate(const char* context, const char* text, const char*,
                                    int) const override {
        auto translated = QString::fromUtf8(text);
        originals.insert(u"%1: %2"_s.arg(QLatin1StringView(context), translated));
        std::reverse(translated.begin(), translated.end());
        return translated.replace(u"1%"_s, u"%1"_s);
    }

    mutable QSet<QString> originals;
};

} // namespace

class AlertTranslationsTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void alertsAndErrorsAreTranslated();
};

void AlertTranslationsTest::alertsAndErrorsAreTranslated() {
    EngineBench bench;
    QuorvelDelegate delegate(WinKeyerUsb::sharedInstance());
    bench.settings().setObject(u"None"_s, u"WKPortName"_s);
    Backwards backwards;
    QVERIFY(QCoreApplication::installTranslator(&backwards));
    delegate.applicationDidFinishLaunching();
    bench.settings().setObject(QString(EngineBench::portName), u"WKPortName"_s);
    bench.platform().devices().unplug(bench.device());
    QCoreApplication::removeTranslator(&backwards);
    const auto& alerts = bench.platform().application().alerts();
    QCOMPARE(alerts.size(), 2);
    QCOMPARE(alerts.first().messageText, u".reyeKniW eht rof denifed trop on si erehT"_s);
    QVERIFY(alerts.last().messageText.endsWith(u"gnisu reyeKniW ehT"));
    QVERIFY(
        backwards.originals.contains(u"WinKeyerUsb: There is no port defined for the WinKeyer."_s));
    QVERIFY(backwards.originals.contains(
        u"QuorvelDelegate: The WinKeyer using serial port %1 has been unplugged."_s));
}

static const RegisteredTest<AlertTranslationsTest> registered;
#include "AlertTranslationsTest.moc"
