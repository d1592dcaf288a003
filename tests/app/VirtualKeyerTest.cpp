#include "app/VirtualKeyer.h"

#include "tests/support/RegisteredTest.h"

#include <QFile>
#include <QFileInfo>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <optional>

using namespace Qt::StringLiterals;

class VirtualKeyerTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup();

    void itIsPluggedInAndGoesWithItsOwner();
    void itIsStartedOnce();
    void oneThatEndsIsToldOf();
    void oneThatIsNotInstalledIsToldOf();

  private:
    [[nodiscard]] QString port() const {
        return _directory->filePath(u"quorvel/ports/usbserial-virtual"_s);
    }

    std::optional<QTemporaryDir> _directory;
    QByteArray _former;
};

void VirtualKeyerTest::init() {
    _directory.emplace();
    _former = qgetenv("XDG_RUNTIME_DIR");
    qputenv("XDG_RUNTIME_DIR", _directory->path().toLocal8Bit());
}

void VirtualKeyerTest::cleanup() {
    qputenv("XDG_RUNTIME_DIR", _former);
    _directory.reset();
}

void VirtualKeyerTest::itIsPluggedInAndGoesWithItsOwner() {
    {
        VirtualKeyer keyer(QStringLiteral(QUORVEL_VIRTUAL_KEYER));
        QVERIFY(keyer.isInstalled());
        keyer.start();
        QTRY_VERIFY(QFileInfo(port()).isSymLink());
    }
    QVERIFY(!QFileInfo(port()).isSymLink());
}

void VirtualKeyerTest::itIsStartedOnce() {
    VirtualKeyer keyer(QStringLiteral(QUORVEL_VIRTUAL_KEYER));
    const QSignalSpy failures(&keyer, &VirtualKeyer::failed);
    keyer.start();
    const auto first = keyer.processIdentifier();
    QTRY_VERIFY(QFileInfo(port()).isSymLink());
    keyer.start();
    QCOMPARE(keyer.processIdentifier(), first);
    QCOMPARE(failures.size(), 0);
}

/// As when its port has been plugged in by another one.
void VirtualKeyerTest::oneThatEndsIsToldOf() {
    VirtualKeyer first(QStringLiteral(QUORVEL_VIRTUAL_KEYER));
    first.start();
    QTRY_VERIFY(QFileInfo(port()).isSymLink());
    VirtualKeyer second(QStringLiteral(QUORVEL_VIRTUAL_KEYER));
    const QSignalSpy failures(&second, &VirtualKeyer::failed);
    second.start();
    QTRY_COMPARE(failures.size(), 1);
    QVERIFY2(failures[0][0].toString().startsWith(
                 u"The virtual keyer does not run: quorvel-virtual-keyer: "_s),
             qPrintable(failures[0][0].toString()));
}

void VirtualKeyerTest::oneThatIsNotInstalledIsToldOf() {
    VirtualKeyer keyer(u"/no/such/program"_s);
    const QSignalSpy failures(&keyer, &VirtualKeyer::failed);
    keyer.start();
    QTRY_COMPARE(failures.size(), 1);
    QVERIFY(!VirtualKeyer(QString()).isInstalled());
}

static const RegisteredTest<VirtualKeyerTest> registered;
#include "VirtualKeyerTest.moc"
