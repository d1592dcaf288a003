#include "app/PortCheck.h"

#include "app/window/PortCheckWindow.h"
#include "keyer/GeneralSettings.h"
#include "tests/keyer/EngineBench.h"
#include "tests/support/RegisteredTest.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QPushButton>
#include <QTest>
#include <QWidget>

#include <optional>

using namespace Qt::StringLiterals;

class PortCheckTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup();

    void aPortThatWasWantedInVainIsRemembered();
    void theLinkIsToldAsItIs();
    void theWindowShowsTheRealPort();
    void theKeyerOnAFreePortIsAsked();

  private:
    [[nodiscard]] PortCheckWindow& window() { return *_parent->findChild<PortCheckWindow*>(); }
    [[nodiscard]] QString report();

    std::optional<EngineBench> _bench;
    std::optional<QWidget> _parent;
    std::optional<PortCheck> _check;
};

void PortCheckTest::init() {
    _bench.emplace();
    _parent.emplace();
    _check.emplace(_bench->engine(), *_parent);
}

void PortCheckTest::cleanup() {
    _parent.reset();
    _check.reset();
    _bench.reset();
}

QString PortCheckTest::report() {
    window().findChild<QPushButton*>(u"copyReportButton"_s)->click();
    return QGuiApplication::clipboard()->text();
}

void PortCheckTest::aPortThatWasWantedInVainIsRemembered() {
    _bench->settings().setObject(u"usbserial-WK9"_s, WKPortName);
    QVERIFY(!_bench->engine().connect(nullptr));
    QCOMPARE(_bench->settings().stringForKey(WKPortName), QString(noPortName));
    QCOMPARE(_check->link().wantedPort, u"usbserial-WK9"_s);
}

void PortCheckTest::theLinkIsToldAsItIs() {
    QVERIFY(_check->link().connectedPort.isNull());
    QVERIFY(_bench->connect());
    QCOMPARE(_check->link().connectedPort, QString(EngineBench::portName));
    QVERIFY(!_check->link().hasAnswered);
    _bench->receive({0xC0});
    QVERIFY(_check->link().hasAnswered);
    QVERIFY(_bench->engine().disconnect(nullptr));
    QVERIFY(_check->link().connectedPort.isNull() && !_check->link().hasAnswered);
}

void PortCheckTest::theWindowShowsTheRealPort() {
    QVERIFY(_bench->connect());
    _check->show();
    QVERIFY(window().isVisible());
    const auto title = u"usbserial-WK1 (%1), the port chosen last"_s.arg(_bench->line().path());
    QVERIFY2(report().contains(title + u"\n  Problem: It is open, and nothing answers."_s),
             qPrintable(report()));
    _bench->receive({0xC0});
    _check->show();
    QVERIFY(report().contains(title + u"\n  OK: It is open, and the keyer answers."_s));
    QCOMPARE(_bench->written(), "");
}

void PortCheckTest::theKeyerOnAFreePortIsAsked() {
    _check->show();
    window().findChild<QPushButton*>(u"askButton"_s)->click();
    QCOMPARE(_bench->line().read(7), QByteArray::fromHex("13131313000455"));
    QVERIFY(_bench->line().write("U"));
    QTRY_VERIFY(report().contains(u"A keyer answers on it."));
    QVERIFY(!_bench->port().isOpen());
}

static const RegisteredTest<PortCheckTest> registered;
#include "PortCheckTest.moc"
