#include "preferences/PreferencesGeneralViewController.h"

#include "keyer/GeneralSettings.h"
#include "preferences/PreferencesGeneral.h"
#include "preferences/binding/NumberBox.h"
#include "tests/keyer/EngineBench.h"
#include "tests/support/RegisteredTest.h"

#include <QAbstractItemView>
#include <QClipboard>
#include <QComboBox>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QTest>

#include <functional>
#include <optional>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// Notes the port that is stored at each change of port.
class Delegate final : public ApplicationDelegate {
  public:
    explicit Delegate(TestPlatform& platform) : _platform(platform) {
        platform.application().setDelegate(this);
    }
    ~Delegate() override { _platform.application().setDelegate(nullptr); }

    void changeSerialPort(const QObject* sender) override {
        _sender = sender;
        _ports.append(_platform.settings().stringForKey(WKPortName));
        if (_whileChanging) {
            std::exchange(_whileChanging, nullptr)();
        }
    }

    [[nodiscard]] QStringList take() { return std::exchange(_ports, {}); }
    [[nodiscard]] const QObject* sender() const { return _sender; }
    /// Runs once, within the next change.
    void setWhileChanging(std::function<void()> action) { _whileChanging = std::move(action); }

  private:
    TestPlatform& _platform;
    QStringList _ports;
    const QObject* _sender = nullptr;
    std::function<void()> _whileChanging;
};

} // namespace

class PreferencesGeneralViewControllerTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup();

    void itIsTheGeneralModule();
    void thePortsAreOffered();
    void aChosenPortIsStoredBeforeItIsTaken();
    void theSamePortIsTakenAgain();
    void noPortIsAChoiceToo();
    void thePopUpChoosesByKeyboard();
    void noStrayKeyReachesThePort();
    void thePortsFollowPlugAndUnplug();
    void thePortsFollowWhileTheyAreBeingChosenFrom();
    void aPortThatIsAbsentIsShownAsSuch();
    void thePortFollowsTheEngine();
    void aChangeWithinAChangeIsMadeUpFor();
    void theOperatorIsToldWhileThePortChanges();
    void withoutDelegateThePortIsOnlyStored();
    void theOwnCallIsInUpperCase();
    void theOwnCallTakesOnlyCallSigns();
    void theDefaultCallReadsAsItIs();
    void theLimitOfTuneIsChosen();
    void charactersAheadAreOneToEight();
    void theLinkIsTold();
    void everyControlHasItsLabelsName();

  private:
    [[nodiscard]] QComboBox& chooser() const {
        return *_pane->view()->findChild<QComboBox*>(u"serialPortChooser"_s);
    }
    [[nodiscard]] QLineEdit& myCall() const {
        return *_pane->view()->findChild<QLineEdit*>(u"myCallTextField"_s);
    }
    [[nodiscard]] QString link() const {
        return _pane->view()->findChild<QLabel*>(u"linkLabel"_s)->text();
    }
    [[nodiscard]] QStringList offered() const {
        QStringList names;
        for (int i = 0; i < chooser().count(); ++i) {
            names.append(chooser().itemText(i));
        }
        return names;
    }
    [[nodiscard]] QString stored(QLatin1StringView key) {
        return _bench->settings().stringForKey(key);
    }
    void choose(int index) {
        chooser().setFocus();
        chooser().showPopup();
        auto* list = chooser().view();
        list->setCurrentIndex(chooser().model()->index(index, 0));
        QTest::keyClick(list, Qt::Key_Return);
    }
    void show() {
        _pane->view()->show();
        QVERIFY(QTest::qWaitForWindowActive(_pane->view()));
    }

    std::optional<EngineBench> _bench;
    std::optional<Delegate> _delegate;
    std::optional<PreferencesGeneralViewController> _pane;
};

void PreferencesGeneralViewControllerTest::init() {
    _bench.emplace();
    _delegate.emplace(_bench->platform());
    _bench->settings().setObject(u"usbserial-A"_s, WKPortName);
    _pane.emplace(_bench->engine());
    _pane->setSerialPortNames({u"None"_s, u"usbserial-A"_s, u"ttyS0"_s});
}

void PreferencesGeneralViewControllerTest::cleanup() {
    _pane.reset();
    _delegate.reset();
    _bench.reset();
}

void PreferencesGeneralViewControllerTest::itIsTheGeneralModule() {
    QCOMPARE(_pane->title(), u"General"_s);
    QCOMPARE(_pane->identifier(), u"PreferencesGeneralPane"_s);
    QCOMPARE(_pane->view()->objectName(), _pane->identifier());
    QVERIFY(!_pane->image().pixmap(32).isNull());
}

void PreferencesGeneralViewControllerTest::thePortsAreOffered() {
    QCOMPARE(offered(), QStringList({u"None"_s, u"usbserial-A"_s, u"ttyS0"_s}));
    QCOMPARE(chooser().currentText(), u"usbserial-A"_s);
    QCOMPARE(_delegate->take(), QStringList());
}

void PreferencesGeneralViewControllerTest::aChosenPortIsStoredBeforeItIsTaken() {
    show();
    choose(2);
    QCOMPARE(_delegate->take(), QStringList{u"ttyS0"_s});
    QCOMPARE(_delegate->sender(), &chooser());
    QCOMPARE(stored(WKPortName), u"ttyS0"_s);
}

void PreferencesGeneralViewControllerTest::theSamePortIsTakenAgain() {
    show();
    choose(1);
    QCOMPARE(_delegate->take(), QStringList{u"usbserial-A"_s});
    choose(1);
    QCOMPARE(_delegate->take(), QStringList{u"usbserial-A"_s});
}

void PreferencesGeneralViewControllerTest::noPortIsAChoiceToo() {
    show();
    choose(0);
    QCOMPARE(_delegate->take(), QStringList{u"None"_s});
    QCOMPARE(stored(WKPortName), u"None"_s);
    QVERIFY(_bench->platform().application().alerts().isEmpty());
}

void PreferencesGeneralViewControllerTest::thePopUpChoosesByKeyboard() {
    show();
    chooser().setFocus();
    QTest::keyClick(&chooser(), Qt::Key_Down); // opens it
    QCOMPARE(_delegate->take(), QStringList());
    QTest::keyClick(chooser().view(), Qt::Key_Down);
    QTest::keyClick(chooser().view(), Qt::Key_Return);
    QCOMPARE(_delegate->take(), QStringList{u"ttyS0"_s});
}

void PreferencesGeneralViewControllerTest::noStrayKeyReachesThePort() {
    show();
    auto* first = _pane->view()->nextInFocusChain();
    while ((first->focusPolicy() & Qt::TabFocus) != Qt::TabFocus) {
        first = first->nextInFocusChain();
    }
    QCOMPARE(first, &myCall()); // what the window gives the focus to when it opens
    chooser().setFocus();
    QTest::keyClick(&chooser(), Qt::Key_T);
    _bench->clock().advance(1s);
    QCOMPARE(stored(WKPortName), u"usbserial-A"_s);
    QCOMPARE(_delegate->take(), QStringList());
}

void PreferencesGeneralViewControllerTest::thePortsFollowPlugAndUnplug() {
    _pane->setSerialPortNames({u"None"_s, u"usbserial-B"_s, u"usbserial-A"_s});
    QCOMPARE(offered(), QStringList({u"None"_s, u"usbserial-B"_s, u"usbserial-A"_s}));
    QCOMPARE(chooser().currentText(), u"usbserial-A"_s);
    QCOMPARE(stored(WKPortName), u"usbserial-A"_s);
    QCOMPARE(_delegate->take(), QStringList());
}

void PreferencesGeneralViewControllerTest::thePortsFollowWhileTheyAreBeingChosenFrom() {
    show();
    chooser().showPopup();
    _pane->setSerialPortNames({u"None"_s, u"usbserial-B"_s, u"usbserial-A"_s});
    auto* list = chooser().view();
    list->setCurrentIndex(chooser().model()->index(1, 0));
    QTest::keyClick(list, Qt::Key_Return);
    QCOMPARE(_delegate->take(), QStringList{u"usbserial-B"_s});
}

void PreferencesGeneralViewControllerTest::aPortThatIsAbsentIsShownAsSuch() {
    _pane->setSerialPortNames({u"None"_s});
    QCOMPARE(offered(), QStringList({u"None"_s, u"usbserial-A (not present)"_s}));
    QCOMPARE(chooser().currentText(), u"usbserial-A (not present)"_s);
    QCOMPARE(stored(WKPortName), u"usbserial-A"_s);
    show();
    _pane->view()->hide();
    QCOMPARE(stored(WKPortName), u"usbserial-A"_s);
    _pane->setSerialPortNames({u"None"_s, u"usbserial-A"_s});
    QCOMPARE(offered(), QStringList({u"None"_s, u"usbserial-A"_s}));
    QCOMPARE(chooser().currentText(), u"usbserial-A"_s);
}

void PreferencesGeneralViewControllerTest::thePortFollowsTheEngine() {
    _bench->settings().setObject(u"no such port"_s, WKPortName);
    QCOMPARE(chooser().currentText(), u"no such port (not present)"_s);
    Error error;
    QVERIFY(!_bench->engine().connect(&error));
    QCOMPARE(stored(WKPortName), u"None"_s);
    QCOMPARE(chooser().currentText(), u"None"_s);
    QCOMPARE(offered(), QStringList({u"None"_s, u"usbserial-A"_s, u"ttyS0"_s}));
    QCOMPARE(_delegate->take(), QStringList());
}

void PreferencesGeneralViewControllerTest::aChangeWithinAChangeIsMadeUpFor() {
    show();
    int depth = 0;
    _delegate->setWhileChanging([&] {
        choose(0);
        depth = static_cast<int>(_delegate->take().size());
    });
    choose(2);
    QCOMPARE(depth, 1);
    QCOMPARE(_delegate->take(), QStringList{u"None"_s});
}

void PreferencesGeneralViewControllerTest::theOperatorIsToldWhileThePortChanges() {
    show();
    QString told;
    bool hasPopUp = true;
    _delegate->setWhileChanging([&] {
        told = link();
        hasPopUp = chooser().view()->isVisible();
    });
    choose(2);
    QCOMPARE(told, u"Changing the serial port..."_s);
    QVERIFY(!hasPopUp);
    QCOMPARE(link(), u"Not connected"_s);
}

void PreferencesGeneralViewControllerTest::withoutDelegateThePortIsOnlyStored() {
    _delegate.reset();
    show();
    choose(2);
    QCOMPARE(stored(WKPortName), u"ttyS0"_s);
    _delegate.emplace(_bench->platform());
    choose(1);
    QCOMPARE(_delegate->take(), QStringList{u"usbserial-A"_s});
}

void PreferencesGeneralViewControllerTest::theOwnCallIsInUpperCase() {
    myCall().selectAll();
    QTest::keyClicks(&myCall(), u"n0call/p"_s);
    QCOMPARE(myCall().text(), u"N0CALL/P"_s);
    QCOMPARE(stored(MyCall), u"N0CALL/P"_s);
    QCOMPARE(_bench->engine().myCall(), u"N0CALL/P"_s);
}

void PreferencesGeneralViewControllerTest::theOwnCallTakesOnlyCallSigns() {
    myCall().selectAll();
    QGuiApplication::clipboard()->setText(u"ab-1c"_s);
    myCall().paste();
    QTest::keyClicks(&myCall(), u"!"_s);
    QCOMPARE(stored(MyCall), u"AB1C"_s);
}

void PreferencesGeneralViewControllerTest::theDefaultCallReadsAsItIs() {
    QCOMPARE(myCall().text(), u"your call"_s);
    QCOMPARE(stored(MyCall), u"your call"_s);
}

void PreferencesGeneralViewControllerTest::theLimitOfTuneIsChosen() {
    show();
    auto& limit = *_pane->view()->findChild<QComboBox*>(u"tuneLimitChooser"_s);
    QCOMPARE(limit.currentText(), u"Off"_s);
    QStringList choices;
    for (int i = 0; i < limit.count(); ++i) {
        choices.append(limit.itemText(i));
    }
    QCOMPARE(choices, (QStringList{u"Off"_s, u"10 s"_s, u"30 s"_s, u"60 s"_s, u"120 s"_s}));
    limit.showPopup();
    limit.view()->setCurrentIndex(limit.model()->index(2, 0));
    QTest::keyClick(limit.view(), Qt::Key_Return);
    QCOMPARE(stored(TuneLimit.key), u"30 s"_s);
}

void PreferencesGeneralViewControllerTest::charactersAheadAreOneToEight() {
    show();
    auto& box = *_pane->view()->findChild<NumberBox*>(u"charactersAheadBox"_s);
    QCOMPARE(box.value(), 1.0);
    box.setFocus();
    for (int i = 0; i < 9; ++i) {
        QTest::keyClick(&box, Qt::Key_Up);
    }
    QCOMPARE(stored(CharactersAhead.key), u"8"_s);
    for (int i = 0; i < 9; ++i) {
        QTest::keyClick(&box, Qt::Key_Down);
    }
    QCOMPARE(stored(CharactersAhead.key), u"1"_s);
    QCOMPARE(_bench->written(), "");
}

void PreferencesGeneralViewControllerTest::theLinkIsTold() {
    QCOMPARE(link(), u"Not connected"_s);
    _pane->setSerialPortNames({u"None"_s});
    QCOMPARE(link(), u"No serial port is present. Plug the keyer in."_s);
    _bench->settings().setObject(QString(EngineBench::portName), WKPortName);
    QVERIFY(_bench->connect());
    QCOMPARE(link(), u"Connected to usbserial-WK1; the keyer has not answered yet"_s);
    _bench->receive({0x17});
    QCOMPARE(link(), u"Connected to usbserial-WK1"_s);
    _bench->engine().disconnect(nullptr);
    QCOMPARE(link(), u"No serial port is present. Plug the keyer in."_s);
    _pane->setSerialPortNames({u"None"_s, u"ttyS0"_s});
    QCOMPARE(link(), u"Not connected"_s);
}

void PreferencesGeneralViewControllerTest::everyControlHasItsLabelsName() {
    int count = 0;
    for (const auto* label : _pane->view()->findChildren<QLabel*>()) {
        if (const auto* control = label->buddy()) {
            QCOMPARE(control->accessibleName(), label->text().remove(u'&'));
            ++count;
        }
    }
    QCOMPARE(count, 5);
}

static const RegisteredTest<PreferencesGeneralViewControllerTest> registered;
#include "PreferencesGeneralViewControllerTest.moc"
