#include "keyer/KeyerSettings.h"
#include "preferences/PreferencesWinKeyerViewController.h"
#include "preferences/binding/SettingBinder.h"
#include "tests/keyer/EngineBench.h"
#include "tests/support/RegisteredTest.h"

#include <QCheckBox>
#include <QTest>
#include <QVBoxLayout>

#include <optional>

using namespace Qt::StringLiterals;

/// A check box with three states, bound to dit/dah memory and worked by its operator.
class TristateCheckBoxTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup();

    void eachStateSendsItsSwitchpoint();
    void mixedSendsZeroFromOnToo();
    void mixedStaysWhenItIsShownAnew();
    void showingSendsNothing();

  private:
    [[nodiscard]] bool isStoredOn() { return _bench->settings().boolForKey(WKEnableDitDahMemory); }
    void press() { QTest::keyClick(&*_box, Qt::Key_Space); }

    std::optional<EngineBench> _bench;
    std::optional<PreferencesWinKeyerViewController> _controller;
    std::optional<QWidget> _view;
    std::optional<QCheckBox> _box;
    std::optional<SettingBinder> _binder;
};

void TristateCheckBoxTest::init() {
    _bench.emplace();
    QVERIFY(_bench->connect());
    _controller.emplace(_bench->engine());
    _bench->settings().setObject(false, WKEnableDitDahMemory);
    _view.emplace();
    _box.emplace(u"Dit/dah &memory"_s, &*_view);
    _box->setTristate(true);
    _box->setProperty("setting", QString(WKEnableDitDahMemory));
    _box->setProperty("action", u"changeEnableDitDahMemory"_s);
    _binder.emplace(*_view, *_controller, keyerSettings);
    _view->show();
    QVERIFY(QTest::qWaitForWindowActive(&*_view));
    _box->setFocus();
    static_cast<void>(_bench->written());
}

void TristateCheckBoxTest::cleanup() {
    _binder.reset();
    _box.reset();
    _view.reset();
    _controller.reset();
    _bench.reset();
}

void TristateCheckBoxTest::eachStateSendsItsSwitchpoint() {
    QCOMPARE(_box->checkState(), Qt::Unchecked);
    press();
    QCOMPARE(_box->checkState(), Qt::PartiallyChecked);
    QCOMPARE(_bench->written(), "12 00");
    QVERIFY(!isStoredOn());
    press();
    QCOMPARE(_box->checkState(), Qt::Checked);
    QCOMPARE(_bench->written(), "12 32");
    QVERIFY(isStoredOn());
    press();
    QCOMPARE(_box->checkState(), Qt::Unchecked);
    QCOMPARE(_bench->written(), "12 00");
    QVERIFY(!isStoredOn());
}

void TristateCheckBoxTest::mixedSendsZeroFromOnToo() {
    _box->setCheckState(Qt::Checked);
    QCOMPARE(_bench->written(), "12 32");
    _box->setCheckState(Qt::PartiallyChecked);
    QCOMPARE(_bench->written(), "12 00");
    QVERIFY(!isStoredOn());
}

void TristateCheckBoxTest::mixedStaysWhenItIsShownAnew() {
    press();
    static_cast<void>(_bench->written());
    _binder->show();
    QCOMPARE(_box->checkState(), Qt::PartiallyChecked);
    _bench->settings().setObject(true, WKEnableDitDahMemory);
    QCOMPARE(_box->checkState(), Qt::Checked);
    QCOMPARE(_bench->written(), "");
}

void TristateCheckBoxTest::showingSendsNothing() {
    _bench->settings().setObject(true, WKEnableDitDahMemory);
    QCOMPARE(_box->checkState(), Qt::Checked);
    _bench->settings().setObject(false, WKEnableDitDahMemory);
    QCOMPARE(_box->checkState(), Qt::Unchecked);
    QCOMPARE(_bench->written(), "");
}

static const RegisteredTest<TristateCheckBoxTest> registered;
#include "TristateCheckBoxTest.moc"
