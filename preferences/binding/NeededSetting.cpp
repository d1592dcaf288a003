#include "preferences/binding/NeededSetting.h"

#include "platform/SettingsStore.h"

#include <QWidget>

#include <algorithm>
#include <stdexcept>

namespace {

bool isOffered(const Setting& setting, const QString& text) {
    return text.isNull() ? std::holds_alternative<bool>(setting.defaultValue)
                         : std::ranges::any_of(setting.choices, [&text](const Choice& each) {
                               return isSameText(each.text, text);
                           });
}

} // namespace

NeededSetting::NeededSetting(QWidget& widget, const QString& need, std::span<const Setting> table)
    : QObject(&widget), _widget(widget) {
    const auto parts = need.split(u'=');
    _key = parts.constFirst();
    _text = parts.value(1);
    const bool isKnown = std::ranges::any_of(table, [this](const Setting& each) {
        return isSameText(each.key, _key) && isOffered(each, _text);
    });
    if (!isKnown) {
        throw std::logic_error(need.toStdString() + " is nothing that a control can need.");
    }
    connect(&SettingsStore::standardUserDefaults(), &SettingsStore::changed, this,
            [this](const QString& key) {
                if (key == _key) {
                    follow();
                }
            });
    follow();
}

void NeededSetting::follow() {
    const auto& settings = SettingsStore::standardUserDefaults();
    _widget.setEnabled(_text.isNull() ? settings.boolForKey(_key)
                                      : settings.stringForKey(_key) == _text);
}
