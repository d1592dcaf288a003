#include "preferences/PreferencesGeneralViewController.h"

#include "formatters/CallsignFormatter.h"
#include "keyer/GeneralSettings.h"
#include "keyer/WinKeyerUsb.h"
#include "platform/Platform.h"
#include "ui_PreferencesGeneralPane.h"

#include <QScopedValueRollback>
#include <QSignalBlocker>

#include <utility>

using namespace Qt::StringLiterals;

PreferencesGeneralViewController::PreferencesGeneralViewController(const WinKeyerUsb& engine)
    : _engine(engine),
      _view(std::make_unique<QWidget>()),
      _ui(std::make_unique<Ui::PreferencesGeneralPane>()) {
    _ui->setupUi(_view.get());
    _ui->myCallTextField->setValidator(new CallsignFormatter(_ui->myCallTextField));
    _ui->serialPortChooser->addItem(noPortName);
    _binder = std::make_unique<SettingBinder>(*_view, *this, generalSettings);
    _ui->explanation->follow(*_binder);
    connect(&engine, &WinKeyerUsb::activityChanged, this,
            &PreferencesGeneralViewController::showLink);
    showLink();
}

PreferencesGeneralViewController::~PreferencesGeneralViewController() = default;

QString PreferencesGeneralViewController::title() const {
    return tr("General");
}

QString PreferencesGeneralViewController::identifier() const {
    return name;
}

QIcon PreferencesGeneralViewController::image() const {
    return QIcon::fromTheme(u"preferences-system"_s, QIcon(u":/PreferencesGeneral"_s));
}

void PreferencesGeneralViewController::setSerialPortNames(const QStringList& names) {
    auto& chooser = *_ui->serialPortChooser;
    {
        const QSignalBlocker blocker(chooser); // it is not the operator who chooses
        chooser.clear();
        for (const auto& each : names) {
            chooser.addItem(each == noPortName ? shownText(each) : each, each);
        }
    }
    _isPortPresent = names.size() > names.count(noPortName);
    _binder->show();
    showLink();
}

void PreferencesGeneralViewController::changeSerialPort(const QObject* sender) {
    auto* delegate = Platform::current().application().delegate();
    _hasToChangeAgain = true;
    if (delegate == nullptr || _isChangingPort) {
        return;
    }
    const QScopedValueRollback changing(_isChangingPort, true);
    while (std::exchange(_hasToChangeAgain, false)) {
        // It takes seconds in which nothing is painted: no pop-up must seem to be still open.
        _ui->linkLabel->setText(tr("Changing the serial port..."));
        _view->window()->repaint();
        delegate->changeSerialPort(sender);
        showLink();
    }
}

void PreferencesGeneralViewController::showLink() {
    switch (_engine.activity()) {
    case KeyerActivity::NotConnected:
        _ui->linkLabel->setText(_isPortPresent
                                    ? tr("Not connected")
                                    : tr("No serial port is present. Plug the keyer in."));
        break;
    case KeyerActivity::Silent:
        _ui->linkLabel->setText(
            tr("Connected to %1; the keyer has not answered yet").arg(_engine.serialPortName()));
        break;
    default:
        _ui->linkLabel->setText(tr("Connected to %1").arg(_engine.serialPortName()));
    }
}
