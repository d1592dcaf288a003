#include "virtualkeyer/window/ScopePage.h"

#include "tests/support/RegisteredTest.h"
#include "virtualkeyer/core/Registers.h"

#include <QApplication>
#include <QFile>
#include <QFileDialog>
#include <QImage>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace virtualkeyer;

class ScopePageTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup();
    void itFollowsWhileSomethingHappensAndThenRests();
    void hiddenItPaintsNothingAndMissesNothing();
    void theButtonsPauseAndZoom();
    void theBarGoesBack();
    void aPictureAndATableAreSaved();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        _paints += watched == _view && event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }

  private:
    [[nodiscard]] ScopeView* view() const { return _view; }
    [[nodiscard]] QToolButton* button(const QString& name) const {
        for (auto* each : _page->findChildren<QToolButton*>()) {
            if (each->accessibleName() == name) {
                return each;
            }
        }
        qFatal("no such button");
    }
    void key(bool isDown) { _tap->keyerDid({_tap->now(), KeyLine{isDown, 1}}, Registers(20)); }
    void saveBy(const QString& name, const QString& path) {
        QTest::mouseClick(button(name), Qt::LeftButton);
        QTimer timer;
        connect(&timer, &QTimer::timeout, this, [&path] {
            if (auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget())) {
                dialog->findChild<QLineEdit*>()->setText(path);
                QTest::keyClick(dialog, Qt::Key_Return);
            }
        });
        timer.start(20ms);
        QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(path), 20'000);
    }

    std::unique_ptr<ScopeTap> _tap;
    std::unique_ptr<ScopePage> _page;
    ScopeView* _view = nullptr;
    int _paints = 0;
};

void ScopePageTest::init() {
    _tap = std::make_unique<ScopeTap>();
    _tap->timePassed(0s);
    _page = std::make_unique<ScopePage>(*_tap);
    _page->resize(400, 300);
    _page->show();
    QVERIFY(QTest::qWaitForWindowExposed(_page.get()));
    QTest::qWait(0);
    _view = _page->findChild<ScopeView*>();
    _view->installEventFilter(this);
    _paints = 0;
}

void ScopePageTest::cleanup() {
    _page.reset();
    _tap.reset();
}

void ScopePageTest::itFollowsWhileSomethingHappensAndThenRests() {
    key(true);
    QTRY_VERIFY_WITH_TIMEOUT(_paints > 20, 20'000);
    key(false);
    // Two seconds after the last edge it has come to rest.
    QTRY_VERIFY_WITH_TIMEOUT(!view()->isActive(_tap->now()), 20'000);
    QTRY_VERIFY_WITH_TIMEOUT(view()->range().right() == *view()->trace().lastEdge() + 2s, 20'000);
    QTest::qWait(50);
    _paints = 0;
    QTest::qWait(500);
    QCOMPARE(_paints, 0);
}

void ScopePageTest::hiddenItPaintsNothingAndMissesNothing() {
    _page->hide();
    for (int i = 0; i < 10; ++i) {
        key(i % 2 == 0);
        QTest::qWait(10);
    }
    QCOMPARE(_paints, 0);
    QCOMPARE(view()->trace().elements().size(), 9U);
    _page->show();
    QTRY_VERIFY(_paints > 0);
}

void ScopePageTest::theButtonsPauseAndZoom() {
    QTest::mouseClick(button(u"Pause the scope"_s), Qt::LeftButton);
    QVERIFY(view()->range().isPaused());
    QTest::mouseClick(button(u"Less time, closer"_s), Qt::LeftButton);
    QVERIFY(view()->range().span() == 2s);
    QTest::mouseClick(button(u"More time, wider"_s), Qt::LeftButton);
    QVERIFY(view()->range().span() == 4s);
    QTest::mouseClick(button(u"Pause the scope"_s), Qt::LeftButton);
    QVERIFY(!view()->range().isPaused());
    QTest::keyClick(view(), Qt::Key_Space);
    QVERIFY(button(u"Pause the scope"_s)->isChecked());
}

void ScopePageTest::theBarGoesBack() {
    auto* bar = _page->findChild<QScrollBar*>();
    _tap->keyerDid({0s, PttLine{true}}, Registers(20));
    _tap->keyerDid({100s, PttLine{false}}, Registers(20));
    QTRY_VERIFY(view()->range().newest() >= 100s);
    const Time newest = view()->range().newest();
    bar->setValue(bar->maximum() - 30'000);
    QVERIFY(view()->range().right() == newest - 30s);
    // What comes meanwhile has it lie further back.
    _tap->keyerDid({newest + 60s, PttLine{true}}, Registers(20));
    QTRY_VERIFY(view()->range().newest() >= newest + 60s);
    QVERIFY(view()->range().right() == newest - 30s);
    QTRY_VERIFY(bar->value() <= bar->maximum() - 90'000);
    QTest::keyClick(view(), Qt::Key_End);
    QCOMPARE(bar->value(), bar->maximum());
}

void ScopePageTest::aPictureAndATableAreSaved() {
    const QTemporaryDir directory;
    key(true);
    key(false);
    QTRY_COMPARE(view()->trace().elements().size(), 1U);
    const QString picture = directory.filePath(u"scope.png"_s);
    saveBy(u"Save a picture"_s, picture);
    QTRY_COMPARE(QImage(picture).size(), view()->size() * view()->devicePixelRatio());
    const QString table = directory.filePath(u"scope.csv"_s);
    saveBy(u"Save a table of the last ten minutes"_s, table);
    QFile file(table);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray lines = file.readAll();
    QVERIFY2(lines.startsWith("line,from_ms,to_ms,length_ms,what\nkey,"), lines.constData());
}

static const RegisteredTest<ScopePageTest> registered;
#include "ScopePageTest.moc"
