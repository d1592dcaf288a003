#include "app/window/MainWindow.h"

#include "app/keyboard/KeyboardView.h"
#include "app/window/AboutBox.h"
#include "app/window/AnswerNotice.h"
#include "app/window/BeaconCountdown.h"
#include "app/window/ContactFields.h"
#include "app/window/EditActions.h"
#include "app/window/GuideWindow.h"
#include "app/window/HeldMessages.h"
#include "app/window/MenuBarFit.h"
#include "app/window/MessageButtons.h"
#include "app/window/ModeSwitches.h"
#include "app/window/SettingAction.h"
#include "app/window/SleepNotice.h"
#include "app/window/SpokenChanges.h"
#include "app/window/TuneSwitch.h"
#include "app/window/TuneTimer.h"
#include "app/window/WindowPlace.h"
#include "keyer/ChosenSpeed.h"
#include "keyer/GeneralSettings.h"
#include "keyer/KeyerWatch.h"
#include "keyer/WinKeyerUsb.h"
#include "ui_MainWindow.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QMenuBar>
#include <QShortcut>

using namespace Qt::StringLiterals;

namespace {

/// Has a menu item be the button in another place: it presses the button, and is in step with it.
void join(QAction& action, SwitchButton& button) {
    QObject::connect(&action, &QAction::triggered, &button, &SwitchButton::click);
    QObject::connect(&button, &SwitchButton::toggled, &action, &QAction::setChecked);
    QObject::connect(&button, &SwitchButton::enabledChanged, &action, &QAction::setEnabled);
    action.setChecked(button.isChecked());
    action.setEnabled(button.isEnabled());
}

QString withKey(const QString& text, const QAction& action) {
    return MainWindow::tr("%1 (%2)").arg(text,
                                         action.shortcut().toString(QKeySequence::NativeText));
}

void tellKey(QWidget& control, const QAction& action) {
    control.setToolTip(withKey(control.toolTip(), action));
}

/// Of the beacon, as the widest that is expected.
constexpr int longestShownSeconds = 999;

QString secondsToBeacon(int seconds) {
    return seconds > 0 ? MainWindow::tr(" %1 s").arg(seconds) : QString();
}

/// Sets a font that is so many points larger than the application's.
void enlarge(QWidget& widget, int points, QFont::Weight weight = QFont::Normal) {
    auto font = QApplication::font();
    font.setPointSizeF(font.pointSizeF() + points);
    font.setWeight(weight);
    widget.setFont(font);
}

} // namespace

MainWindow::MainWindow(WinKeyerUsb& engine)
    : _engine(engine), _ui(std::make_unique<Ui::MainWindow>()) {
    // The library is a static one, whose resources nothing else would pull in.
    Q_INIT_RESOURCE(resources);
    _ui->setupUi(this);
    QGuiApplication::setWindowIcon(QIcon(u":/icon.png"_s)); // of every window
    setUpKeyboardView();
    enlargeFonts();
    setUpKeys();
    setUpMessages();
    setUpNotices();
    setUpContact();
    setUpSwitches();
    setUpSpeed();
    setUpSpeech();
    setUpMenus();
    setUpFirstSteps();
    new WindowPlace(*this, u"MainWindowPlace"_s, this);

    _ui->connectionStrip->setEngine(_engine);
    QObject::connect(_ui->connectionStrip, &ConnectionStrip::portRequested, this,
                     &MainWindow::portRequested);
    QObject::connect(_ui->connectionStrip, &ConnectionStrip::portCheckRequested, this,
                     &MainWindow::portCheckRequested);
    _ui->keyerStatusLabel->follow(_engine, *_beaconCountdown);
    QObject::connect(_heldMessages, &HeldMessages::changed, this, &MainWindow::showNotice);
    QObject::connect(_keyboardView, &KeyboardView::caretInSentTextChanged, this,
                     &MainWindow::showNotice);
    QObject::connect(_keyboardView, &KeyboardView::waitingCountChanged, this,
                     &MainWindow::showWaiting);
    showWaiting();
    QObject::connect(&_engine, &WinKeyerUsb::tuneStateChanged, this, &MainWindow::showTitle);
    showTitle();
}

MainWindow::~MainWindow() = default;

void MainWindow::setUpKeyboardView() {
    _keyboardView = new KeyboardView(_engine, _ui->keyboardPlace);
    _keyboardView->setObjectName(u"keyboardView"_s);
    _keyboardView->setAccessibleName(tr("Keyboard"));
    _keyboardView->setToolTip(tr("What is typed here is sent"));
    _ui->keyboardLayout->addWidget(_keyboardView);
    setUpTabOrder();
    _keyboardView->setFocus();
}

/// The view was made last, and comes ahead of what stands below it.
void MainWindow::setUpTabOrder() {
    QWidget* former = _keyboardView;
    for (QWidget* each : std::initializer_list<QWidget*>{
             _ui->hisCallsignTextField, _ui->decrementSerialNumberButton, _ui->serialNumberBox,
             _ui->incrementSerialNumberButton, _ui->stopButton, _ui->tuneButton, _ui->pauseButton,
             _ui->hscwButton, _ui->beaconButton}) {
        setTabOrder(former, each);
        former = each;
    }
}

/// What the keys are is told by the actions alone.
void MainWindow::setUpKeys() {
    tellKey(*_keyboardView, *_ui->keyboardAction);
    tellKey(*_ui->hisCallsignTextField, *_ui->hisCallsignAction);
    tellKey(*_ui->incrementSerialNumberButton, *_ui->incrementSerialNumberAction);
    tellKey(*_ui->decrementSerialNumberButton, *_ui->decrementSerialNumberAction);
    tellKey(*_ui->tuneButton, *_ui->tuneAction);
    tellKey(*_ui->pauseButton, *_ui->pauseAction);
    tellKey(*_ui->hscwButton, *_ui->hscwAction);
    tellKey(*_ui->beaconButton, *_ui->beaconAction);
    _ui->stopButton->setText(withKey(_ui->stopButton->text(), *_ui->stopAction));
}

void MainWindow::setUpMessages() {
    _heldMessages = new HeldMessages(_engine, *_keyboardView, this);
    new MessageButtons(_engine, *_heldMessages, *_ui->hisCallsignTextField,
                       {{_ui->message1Button, _ui->message1Action},
                        {_ui->message2Button, _ui->message2Action},
                        {_ui->message3Button, _ui->message3Action},
                        {_ui->message4Button, _ui->message4Action},
                        {_ui->message5Button, _ui->message5Action},
                        {_ui->message6Button, _ui->message6Action},
                        {_ui->message7Button, _ui->message7Action},
                        {_ui->message8Button, _ui->message8Action}},
                       this);
}

void MainWindow::setUpNotices() {
    for (const auto* strip : {_ui->noticeStrip, _ui->answerStrip}) {
        QObject::connect(strip, &NoticeStrip::hasGivenUpFocus, _keyboardView,
                         [this] { _keyboardView->setFocus(); });
    }
    auto* sleepNotice = new SleepNotice(_engine, *_ui->noticeStrip, this);
    QObject::connect(_ui->pauseButton, &SwitchButton::pressed, sleepNotice, &SleepNotice::settle);
    auto* watch = new KeyerWatch(_engine, this);
    QObject::connect(watch, &KeyerWatch::connectionWanted, this, &MainWindow::connectionWanted);
    auto& check = _ui->answerStrip->addButton(tr("Check ports…"), u"answerCheckButton"_s);
    check.setAccessibleName(tr("Check ports"));
    QObject::connect(&check, &QPushButton::clicked, this, &MainWindow::portCheckRequested);
    new AnswerNotice(_engine, *watch, *_ui->answerStrip, this);
}

void MainWindow::setUpContact() {
    _contact = new ContactFields(_engine, *_heldMessages, *_ui->hisCallsignTextField,
                                 *_ui->serialNumberBox, this);
    auto* increment = _ui->incrementSerialNumberButton;
    QObject::connect(increment, &QToolButton::clicked, this,
                     [this, increment] { _engine.incrementSerialNumber(increment); });
    auto* decrement = _ui->decrementSerialNumberButton;
    QObject::connect(decrement, &QToolButton::clicked, this,
                     [this, decrement] { _engine.decrementSerialNumber(decrement); });
}

void MainWindow::setUpSwitches() {
    _tuneSwitch = new TuneSwitch(_engine, *_ui->tuneButton, this);
    auto* tuneTimer = new TuneTimer(_engine, this);
    _ui->tuneWarning->setEngine(_engine, *tuneTimer);
    QObject::connect(tuneTimer, &TuneTimer::limitReached, this, [this](int limit) {
        _tuneSwitch->letGo();
        say(tr("Tune was let go of after %1 s.").arg(limit));
    });
    new ModeSwitches(
        _engine, {.pause = _ui->pauseButton, .hscw = _ui->hscwButton, .beacon = _ui->beaconButton},
        this);
    _beaconCountdown = new BeaconCountdown(_engine, this);
    _ui->beaconButton->reserveDetail(secondsToBeacon(longestShownSeconds));
    QObject::connect(_beaconCountdown, &BeaconCountdown::secondsChanged, this, [this] {
        _ui->beaconButton->setDetail(secondsToBeacon(_beaconCountdown->seconds()));
    });
    QObject::connect(_ui->stopButton, &QPushButton::clicked, this, &MainWindow::stop);
}

/// What is on the screen besides, a screen reader finds.
void MainWindow::setUpSpeech() {
    auto* changes = new SpokenChanges(_engine, *_keyboardView, this);
    for (const auto* button : {_ui->pauseButton, _ui->hscwButton, _ui->beaconButton}) {
        changes->follow(*button);
    }
    changes->follow(*_speed, *_ui->speedLabel);
}

void MainWindow::setUpSpeed() {
    _speed = new ChosenSpeed(_engine, this);
    _ui->speedLabel->follow(_engine, *_speed, *_ui->speedSourceLabel);
    const auto change = [this](const QAction& action, int difference) {
        QObject::connect(&action, &QAction::triggered, _speed,
                         [this, difference] { _speed->change(difference); });
    };
    change(*_ui->fasterAction, 2);
    change(*_ui->slowerAction, -2);
    change(*_ui->littleFasterAction, 1);
    change(*_ui->littleSlowerAction, -1);
    QObject::connect(_ui->knobsSpeedAction, &QAction::triggered, _speed, &ChosenSpeed::backToKnob);
    tellKey(*_ui->speedLabel, *_ui->knobsSpeedAction);
}

void MainWindow::setUpMenus() {
    QObject::connect(_ui->preferencesAction, &QAction::triggered, this,
                     &MainWindow::preferencesRequested);
    QObject::connect(_ui->quitAction, &QAction::triggered, this, &MainWindow::quitRequested);
    QObject::connect(_ui->stopAction, &QAction::triggered, _ui->stopButton, &QPushButton::click);
    join(*_ui->tuneAction, *_ui->tuneButton);
    join(*_ui->pauseAction, *_ui->pauseButton);
    join(*_ui->hscwAction, *_ui->hscwButton);
    join(*_ui->beaconAction, *_ui->beaconButton);
    QObject::connect(_ui->hisCallsignAction, &QAction::triggered, _contact,
                     &ContactFields::goToCallsign);
    QObject::connect(_ui->wipeCallsignAction, &QAction::triggered, _contact,
                     &ContactFields::wipeCallsign);
    QObject::connect(_ui->nextContactAction, &QAction::triggered, _contact,
                     &ContactFields::goToNextContact);
    QObject::connect(_ui->keyboardAction, &QAction::triggered, _keyboardView,
                     [this] { _keyboardView->setFocus(Qt::ShortcutFocusReason); });
    QObject::connect(_ui->incrementSerialNumberAction, &QAction::triggered,
                     _ui->incrementSerialNumberButton, &QToolButton::click);
    QObject::connect(_ui->decrementSerialNumberAction, &QAction::triggered,
                     _ui->decrementSerialNumberButton, &QToolButton::click);
    new QShortcut(Qt::Key_F10, this,
                  [this] { menuBar()->setActiveAction(menuBar()->actions().constFirst()); });
    _editActions =
        std::make_unique<EditActions>(*this, *_keyboardView,
                                      EditActions::Actions{.undo = _ui->undoAction,
                                                           .redo = _ui->redoAction,
                                                           .cut = _ui->cutAction,
                                                           .copy = _ui->copyAction,
                                                           .paste = _ui->pasteAction,
                                                           .selectAll = _ui->selectAllAction});
    new MenuBarFit(*menuBar());
    new SettingAction(*_ui->acceptLoggersAction, AcceptLoggers, this);
    QObject::connect(_ui->sentAction, &QAction::triggered, this, &MainWindow::sentRequested);
    QObject::connect(_ui->guideAction, &QAction::triggered, this, [this] { showGuide(); });
    QObject::connect(_ui->checkPortsAction, &QAction::triggered, this,
                     &MainWindow::portCheckRequested);
    QObject::connect(_ui->aboutAction, &QAction::triggered, this,
                     [this] { (new AboutBox(this))->show(); });
}

void MainWindow::setUpFirstSteps() {
    auto* steps = _ui->firstSteps;
    steps->setEngine(_engine);
    QObject::connect(steps, &FirstSteps::portRequested, this, &MainWindow::portRequested);
    QObject::connect(steps, &FirstSteps::portCheckRequested, this, &MainWindow::portCheckRequested);
    QObject::connect(steps, &FirstSteps::virtualKeyerRequested, this,
                     &MainWindow::virtualKeyerRequested);
    QObject::connect(steps, &FirstSteps::done, this, [this] {
        _ui->connectionStrip->setMuted(false);
        _keyboardView->setFocus();
    });
    auto* action = _ui->virtualKeyerAction;
    QObject::connect(action, &QAction::triggered, this, &MainWindow::virtualKeyerRequested);
    const auto follow = [this, action] { action->setEnabled(!_engine.isConnected()); };
    QObject::connect(&_engine, &WinKeyerUsb::activityChanged, action, follow);
    follow();
}

QLineEdit& MainWindow::hisCallsignTextField() const {
    return *_ui->hisCallsignTextField;
}

/// Key up first: it is what cannot wait.
void MainWindow::stop() {
    _tuneSwitch->letGo();
    _engine.stopMessageSending(_ui->stopButton);
}

void MainWindow::silenceKeyer() {
    if (_engine.mayBeKeying()) {
        _engine.silence();
    }
}

void MainWindow::say(const QString& notice) {
    _ui->noticeStrip->say(notice);
}

void MainWindow::sendText(const QString& text) {
    const auto before = _keyboardView->text();
    const bool isApart = before.isEmpty() || before.endsWith(u' ');
    _keyboardView->replaceText(before.size(), before.size(), isApart ? text : u' ' + text);
}

void MainWindow::showFirstSteps() {
    _ui->firstSteps->show();
    _ui->connectionStrip->setMuted(true);
}

void MainWindow::offerVirtualKeyer() {
    _ui->firstSteps->setHasVirtualKeyer(true);
    _ui->virtualKeyerAction->setVisible(true);
}

void MainWindow::showGuide(const QString& chapter) {
    if (_guide == nullptr) {
        _guide = new GuideWindow(this);
    }
    if (!chapter.isEmpty()) {
        _guide->showChapter(chapter);
    }
    _guide->show();
    _guide->raise();
    _guide->activateWindow();
}

void MainWindow::comeToFront(const QString& activationToken) {
    if (!activationToken.isEmpty()) {
        // Where the toolkit looks for it; a Wayland desktop lets nobody come to the front without.
        qputenv("XDG_ACTIVATION_TOKEN", activationToken.toUtf8());
    }
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
}

/// The program goes on where another window is open, and nobody would see what is on the air, nor
/// have Stop at hand.
void MainWindow::closeEvent(QCloseEvent* event) {
    if (hasSomethingToStop()) {
        stop();
    }
    QMainWindow::closeEvent(event);
}

bool MainWindow::hasSomethingToStop() const {
    const bool hasUnsentText = _engine.outputBufferIndex() < _engine.keyboardBuffer().size();
    return _engine.mayBeKeying() || _engine.beaconState() != 0 || hasUnsentText ||
           !_heldMessages->isEmpty();
}

void MainWindow::changeEvent(QEvent* event) {
    if (event->type() == QEvent::FontChange) {
        enlargeFonts();
    }
    QMainWindow::changeEvent(event);
}

/// What is read from a distance is larger than the rest, by an amount that a large font of the
/// desktop does not multiply.
void MainWindow::enlargeFonts() {
    enlarge(*_ui->tuneWarning, 3, QFont::Bold);
    enlarge(*_keyboardView, 6);
    enlarge(*_ui->hisCallsignTextField, 6);
    enlarge(*_ui->decrementSerialNumberButton, 6);
    enlarge(*_ui->serialNumberBox, 6);
    enlarge(*_ui->incrementSerialNumberButton, 6);
    enlarge(*_ui->speedLabel, 10);
}

void MainWindow::showWaiting() {
    _ui->waitingLabel->setCount(static_cast<int>(_keyboardView->waitingCount()));
    _keyboardView->setPlaceholderText(
        _keyboardView->isLinked() ? tr("Type here to send") : tr("Not connected: nothing is sent"));
}

/// What the operator has to know before the next key.
void MainWindow::showNotice() {
    QStringList notices;
    if (!_heldMessages->isEmpty()) {
        notices.append(tr("What you send waits for the paddle to be free: Esc drops it"));
    }
    if (_keyboardView->isCaretInSentText()) {
        notices.append(tr("Typing here sends again: End goes to the end"));
    }
    if (!_loggers.isEmpty()) {
        notices.append(_loggers);
    }
    _ui->keyerStatusLabel->setNotice(notices.join(tr(". ")));
}

void MainWindow::showLoggers(const QString& notice) {
    _loggers = notice;
    showNotice();
}

/// The title is what is seen of a window that lies under others.
void MainWindow::showTitle() {
    setWindowTitle(_engine.tuneState() != 0 ? tr("TRANSMITTING – Quorvel") : tr("Quorvel"));
}
