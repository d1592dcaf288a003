#include "virtualkeyer/pty/KeyerPort.h"

#include "tests/support/RegisteredTest.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

#include <fcntl.h>
#include <poll.h>
#include <stdexcept>

using namespace Qt::StringLiterals;
using namespace virtualkeyer;

class KeyerPortTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void itIsPluggedInFromTheBeginning();
    void pullingTakesTheLinkAndHangsUp();
    void itCanBePluggedInAgain();
    void aPlaceThatIsTakenLeavesItOut();

  private:
    [[nodiscard]] std::string runtime() const { return _runtime.path().toStdString(); }
    [[nodiscard]] QString link() const { return _runtime.path() + u"/quorvel/ports/keyer"_s; }

    QTemporaryDir _runtime;
};

void KeyerPortTest::itIsPluggedInFromTheBeginning() {
    KeyerPort port(runtime(), "keyer");
    QVERIFY(port.isPluggedIn());
    QCOMPARE(QString::fromStdString(port.path()), link());
    QCOMPARE(QFile::symLinkTarget(link()), QString::fromStdString(port.terminal().slavePath()));
}

void KeyerPortTest::pullingTakesTheLinkAndHangsUp() {
    KeyerPort port(runtime(), "keyer");
    const FileDescriptor host(::open(port.path().c_str(), O_RDWR | O_NOCTTY | O_CLOEXEC));
    QVERIFY(host.isOpen());
    port.pull();
    QVERIFY(!port.isPluggedIn());
    QVERIFY(!QFileInfo(link()).isSymLink());
    pollfd state{host.number(), POLLIN, 0};
    QCOMPARE(::poll(&state, 1, 10'000), 1);
    QVERIFY((state.revents & POLLHUP) != 0);
    port.pull();
}

void KeyerPortTest::itCanBePluggedInAgain() {
    KeyerPort port(runtime(), "keyer");
    port.pull();
    port.plugIn();
    QVERIFY(port.isPluggedIn());
    QCOMPARE(QFile::symLinkTarget(link()), QString::fromStdString(port.terminal().slavePath()));
    const QString target = QFile::symLinkTarget(link());
    port.plugIn();
    QCOMPARE(QFile::symLinkTarget(link()), target);
}

void KeyerPortTest::aPlaceThatIsTakenLeavesItOut() {
    KeyerPort port(runtime(), "keyer");
    port.pull();
    QVERIFY(QFile::link(u"/dev/null"_s, link()));
    QVERIFY_THROWS_EXCEPTION(std::runtime_error, port.plugIn());
    QVERIFY(!port.isPluggedIn());
    QVERIFY(QFile::remove(link()));
    port.plugIn();
    QVERIFY(port.isPluggedIn());
}

static const RegisteredTest<KeyerPortTest> registered;
#include "KeyerPortTest.moc"
