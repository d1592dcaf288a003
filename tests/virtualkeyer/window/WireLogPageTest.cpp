#include "virtualkeyer/window/WireLogPage.h"

#include "tests/support/RegisteredTest.h"
#include "virtualkeyer/window/WireTap.h"

#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QToolButton>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace virtualkeyer;

class WireLogPageTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup();
    void whatIsSaidIsShown();
    void theControlsFilter();
    void theEndIsFollowedUntilSomebodyReadsFurtherUp();
    void itIsSaved();

  private:
    template <typename Control>
    [[nodiscard]] Control* control(const QString& name) const {
        for (auto* each : _page->findChildren<Control*>()) {
            if (each->accessibleName() == name) {
                return each;
            }
        }
        qFatal("no such control");
    }
    [[nodiscard]] int rows() const {
        return control<QTableView>(u"Log of the line"_s)->model()->rowCount();
    }
    void say(int count) {
        for (int i = 0; i < count; ++i) {
            _tap->keyerDid({0s, HostByte{'C'}}, Registers(20));
        }
    }

    std::unique_ptr<WireTap> _tap;
    std::unique_ptr<WireLogPage> _page;
};

void WireLogPageTest::init() {
    _tap = std::make_unique<WireTap>();
    _page = std::make_unique<WireLogPage>(*_tap);
    _page->resize(500, 300);
    _page->show();
    QVERIFY(QTest::qWaitForWindowExposed(_page.get()));
}

void WireLogPageTest::cleanup() {
    _page.reset();
    _tap.reset();
}

void WireLogPageTest::whatIsSaidIsShown() {
    say(1);
    QTRY_COMPARE(rows(), 1);
    _tap->hostSent('C', false, 1s);
    QTRY_COMPARE(rows(), 2);
    QTest::mouseClick(control<QToolButton>(u"Empty the log"_s), Qt::LeftButton);
    QCOMPARE(rows(), 0);
}

void WireLogPageTest::theControlsFilter() {
    say(2);
    _tap->hostSent('C', false, 1s);
    QTRY_COMPARE(rows(), 3);
    auto* who = control<QComboBox>(u"Said by"_s);
    who->setFocus();
    QTest::keyClick(who, Qt::Key_Down);
    QCOMPARE(rows(), 1);
    QTest::keyClick(who, Qt::Key_Down);
    QCOMPARE(rows(), 2);
    QTest::keyClick(who, Qt::Key_Home);
    QCOMPARE(rows(), 3);
    QTest::keyClicks(control<QLineEdit>(u"Filter of the log"_s), u"discarded"_s);
    QCOMPARE(rows(), 1);
}

void WireLogPageTest::theEndIsFollowedUntilSomebodyReadsFurtherUp() {
    auto* bar = control<QTableView>(u"Log of the line"_s)->verticalScrollBar();
    say(100);
    QTRY_COMPARE(rows(), 100);
    QTRY_VERIFY(bar->maximum() > 0 && bar->value() == bar->maximum());
    bar->setValue(3);
    say(100);
    QTRY_COMPARE(rows(), 200);
    QCOMPARE(bar->value(), 3);
    bar->setValue(bar->maximum());
    say(1);
    QTRY_COMPARE(rows(), 201);
    QTRY_COMPARE(bar->value(), bar->maximum());
}

void WireLogPageTest::itIsSaved() {
    const QTemporaryDir directory;
    const QString path = directory.filePath(u"wire"_s);
    say(2);
    QTRY_COMPARE(rows(), 2);
    QTest::mouseClick(control<QToolButton>(u"Save the log"_s), Qt::LeftButton);
    QTimer timer;
    connect(&timer, &QTimer::timeout, this, [&path] {
        if (auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget())) {
            dialog->findChild<QLineEdit*>()->setText(path);
            QTest::keyClick(dialog, Qt::Key_Return);
        }
    });
    timer.start(20ms);
    QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(path + u".txt"_s), 20'000);
    QFile file(path + u".txt"_s);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("0.000\tKeyer\techo C\t43\n0.000\tKeyer\techo C\t43\n"));
}

static const RegisteredTest<WireLogPageTest> registered;
#include "WireLogPageTest.moc"
