#include "app/MainWindow.h"

#include "keyer/MessageSettings.h"
#include "keyer/WinKeyerUsb.h"
#include "platform/Action.h"
#include "platform/SettingsStore.h"
#include "ui_MainWindow.h"

#include <QShortcut>

#include <algorithm>

using namespace Qt::StringLiterals;

MainWindow::MainWindow(WinKeyerUsb& engine)
    : _engine(engine), _ui(std::make_unique<Ui::MainWindow>()) {
    _ui->setupUi(this);
    setUpMessageButtons();
    _ui->keyboardView->setEngine(_engine);
    _ui->keyboardView->setFocus();
    setUpContact();
    setUpPause();

    QObject::connect(_ui->stopButton, &QPushButton::clicked, this,
                     [this] { _engine.stopMessageSending(_ui->stopButton); });
    const auto* escape = new QShortcut(Qt::Key_Escape, this);
    QObject::connect(escape, &QShortcut::activated, _ui->stopButton, &QPushButton::click);

    QObject::connect(&_engine, &WinKeyerUsb::speedStringChanged, this, &MainWindow::showSpeed);
    showSpeed();
}

MainWindow::~MainWindow() = default;

void MainWindow::setUpMessageButtons() {
    for (auto* button : _ui->messages->findChildren<QPushButton*>()) {
        QObject::connect(button, &QPushButton::clicked, this,
                         [this, button] { _engine.sendMessage(button); });
        // A button's own shortcut would first show it pressed for a tenth of a second.
        const auto* key = new QShortcut(Qt::Key_F1 + Action::tag(button), this);
        QObject::connect(key, &QShortcut::activated, button, &QPushButton::click);
    }
    QObject::connect(&SettingsStore::standardUserDefaults(), &SettingsStore::changed, this,
                     &MainWindow::showMessageLabels);
    showMessageLabels();
}

void MainWindow::setUpContact() {
    auto* callsign = _ui->hisCallsignTextField;
    QObject::connect(callsign, &QLineEdit::textChanged, &_engine, &WinKeyerUsb::setHisCallsign);
    QObject::connect(&_engine, &WinKeyerUsb::hisCallsignChanged, callsign, [this, callsign] {
        if (callsign->text() != _engine.hisCallsign()) {
            callsign->setText(_engine.hisCallsign());
        }
    });

    auto* number = _ui->serialNumberBox;
    QObject::connect(number, &QSpinBox::valueChanged, &_engine, &WinKeyerUsb::setSerialNumber);
    const auto showNumber = [this, number] {
        number->setMaximum(std::max(number->maximum(), static_cast<int>(_engine.serialNumber())));
        number->setValue(static_cast<int>(_engine.serialNumber()));
    };
    QObject::connect(&_engine, &WinKeyerUsb::serialNumberChanged, number, showNumber);
    showNumber();
    auto* increment = _ui->incrementSerialNumberButton;
    QObject::connect(increment, &QToolButton::clicked, this,
                     [this, increment] { _engine.incrementSerialNumber(increment); });
    auto* decrement = _ui->decrementSerialNumberButton;
    QObject::connect(decrement, &QToolButton::clicked, this,
                     [this, decrement] { _engine.decrementSerialNumber(decrement); });
}

void MainWindow::setUpPause() {
    auto* pause = _ui->pauseButton;
    // The keyer pauses too, when its buffer fills: the button then shows it, and ends it.
    QObject::connect(pause, &QPushButton::clicked, &_engine,
                     [this](bool isOn) { _engine.setPauseState(isOn ? 1 : 0); });
    QObject::connect(&_engine, &WinKeyerUsb::pauseStateChanged, pause,
                     [this, pause] { pause->setChecked(_engine.pauseState() != 0); });
}

QLineEdit& MainWindow::hisCallsignTextField() const {
    return *_ui->hisCallsignTextField;
}

void MainWindow::showMessageLabels() {
    const auto& settings = SettingsStore::standardUserDefaults();
    for (auto* button : _ui->messages->findChildren<QPushButton*>()) {
        const auto index = Action::tag(button);
        auto label =
            settings.stringForKey(messageSettings[static_cast<std::size_t>(index)].labelKey);
        button->setAccessibleName(tr("Message %1: %2").arg(index + 1).arg(label));
        // A label is the operator's own text: an ampersand in it is no keyboard shortcut.
        button->setText(tr("F%1  %2").arg(index + 1).arg(label.replace(u"&"_s, u"&&"_s)));
    }
}

void MainWindow::showSpeed() {
    const auto speed = _engine.speedString();
    const auto shown = speed.isNull() ? tr("– WPM") : speed;
    _ui->speedLabel->setText(shown);
    // A screen reader reads the label's name in place of its text.
    _ui->speedLabel->setAccessibleDescription(shown);
}
