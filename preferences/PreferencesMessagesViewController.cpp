#include "preferences/PreferencesMessagesViewController.h"

#include "formatters/MessageFormatter.h"
#include "keyer/MessageSettings.h"
#include "keyer/WinKeyerUsb.h"
#include "platform/SettingsStore.h"
#include "ui_PreferencesMessagesPane.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

/// All settings of the pane, as the binder takes them.
constexpr auto paneSettings = [] {
    std::array<Setting, 2 * messageSettings.size() + 1> settings{};
    auto next = settings.begin();
    for (const auto& message : messageSettings) {
        *next++ = {message.labelKey, message.labelDefault};
        *next++ = {message.textKey, message.textDefault};
    }
    *next = BeaconInterval;
    return settings;
}();

} // namespace

void PreferencesMessagesViewController::initialize() {
    SettingsStore::standardUserDefaults().registerDefaults(messageDefaults());
}

PreferencesMessagesViewController::PreferencesMessagesViewController(const WinKeyerUsb& engine)
    : _engine(engine),
      _view(std::make_unique<QWidget>()),
      _ui(std::make_unique<Ui::PreferencesMessagesPane>()) {
    _ui->setupUi(_view.get());
    _ui->keyerNotice->follow(engine);
    awakeFromNib();
    _binder = std::make_unique<SettingBinder>(*_view, *this, paneSettings);
    _ui->explanation->follow(*_binder);
    connect(&SettingsStore::standardUserDefaults(), &SettingsStore::changed, this,
            &PreferencesMessagesViewController::explainTokens);
    connect(&engine, &WinKeyerUsb::serialNumberChanged, this,
            &PreferencesMessagesViewController::explainTokens);
    connect(&engine, &WinKeyerUsb::hisCallsignChanged, this,
            &PreferencesMessagesViewController::explainTokens);
    explainTokens();
}

PreferencesMessagesViewController::~PreferencesMessagesViewController() = default;

QString PreferencesMessagesViewController::title() const {
    return tr("Messages");
}

QString PreferencesMessagesViewController::identifier() const {
    return name;
}

QIcon PreferencesMessagesViewController::image() const {
    return QIcon(u":/PreferencesMessages"_s);
}

void PreferencesMessagesViewController::awakeFromNib() {
    for (std::size_t number = 1; number <= messageSettings.size(); ++number) {
        auto* field = _view->findChild<QLineEdit*>(u"message%1TextField"_s.arg(number));
        field->setValidator(new MessageFormatter(field));
    }
}

void PreferencesMessagesViewController::explainTokens() {
    const auto theirCall = _engine.hisCallsign().isEmpty()
                               ? tr("their call")
                               : tr("their call (%1)").arg(_engine.hisCallsign());
    _ui->tokensLabel->setText(
        tr("In a text, ` stands for your call (%1), # for the serial number (%2), and ~ for %3. "
           "Between % and ^ the keyer sends high-speed CW, { joins the next two letters to "
           "one sign, and | is half a dit of space.")
            .arg(_engine.myCall(), _engine.cutifiedSerialNumber(), theirCall));
}
