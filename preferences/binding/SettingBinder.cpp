#include "preferences/binding/SettingBinder.h"

#include "preferences/binding/BoundCheckBox.h"
#include "preferences/binding/BoundComboBox.h"
#include "preferences/binding/BoundLineEdit.h"
#include "preferences/binding/BoundNumber.h"
#include "preferences/binding/ControlAction.h"
#include "preferences/binding/NeededSetting.h"
#include "preferences/binding/ResetButton.h"

#include <QEvent>
#include <QPushButton>

#include <algorithm>
#include <array>
#include <stdexcept>

namespace {

const Setting& settingNamed(const QString& key, std::span<const Setting> table) {
    const auto found = std::ranges::find_if(
        table, [&key](const Setting& setting) { return isSameText(setting.key, key); });
    if (found == table.end()) {
        throw std::logic_error(key.toStdString() + " is no setting of this pane.");
    }
    return *found;
}

/// The binding of the widget if it is of the given kind. The widget owns it.
template <typename Bound, typename Kind>
BoundControl* boundAs(QWidget& widget, const Setting& setting, QObject& controller) {
    auto* control = qobject_cast<Kind*>(&widget);
    return control != nullptr ? new Bound(*control, setting, controller) : nullptr;
}

using Binding = BoundControl* (*)(QWidget&, const Setting&, QObject&);

constexpr std::array<Binding, 4> bindings{
    &boundAs<BoundCheckBox, QCheckBox>, &boundAs<BoundComboBox, QComboBox>,
    &boundAs<BoundLineEdit, QLineEdit>, &boundAs<BoundNumber, NumberBox>};

BoundControl& bound(QWidget& widget, const Setting& setting, QObject& controller) {
    for (const auto& binding : bindings) {
        if (auto* control = binding(widget, setting, controller)) {
            return *control;
        }
    }
    throw std::logic_error(widget.objectName().toStdString() + " cannot show a setting.");
}

} // namespace

SettingBinder::SettingBinder(QWidget& view, QObject& controller, std::span<const Setting> table,
                             QObject* parent)
    : QObject(parent) {
    for (auto* widget : view.findChildren<QWidget*>()) {
        const auto key = widget->property("setting").toString();
        if (!key.isEmpty()) {
            bindControl(*widget, settingNamed(key, table), controller);
        }
    }
    show();
    bindNeeds(view, table);
    bindResetButtons(view);
    bindActionButtons(view, controller);
    view.installEventFilter(this);
}

SettingBinder::~SettingBinder() {
    settle();
    for (const auto& control : std::as_const(_controls)) {
        delete control;
    }
}

void SettingBinder::bindControl(QWidget& widget, const Setting& setting, QObject& controller) {
    auto& control = bound(widget, setting, controller);
    _controls.append(&control);
    connect(&control, &BoundControl::aboutToChange, this,
            [this, &control] { settleOthers(control); });
    connect(&control, &BoundControl::described, this, &SettingBinder::troubleChanged);
}

void SettingBinder::bindNeeds(const QWidget& view, std::span<const Setting> table) {
    for (auto* widget : view.findChildren<QWidget*>()) {
        const auto need = widget->property("needs").toString();
        if (!need.isEmpty()) {
            new NeededSetting(*widget, need, table);
        }
    }
}

void SettingBinder::bindResetButtons(QWidget& view) {
    for (auto* button : view.findChildren<QToolButton*>()) {
        const auto key = button->property("resets").toString();
        if (key.isEmpty()) {
            continue;
        }
        const auto control = std::ranges::find_if(
            _controls, [&key](const auto& each) { return each->key() == key; });
        if (control == _controls.end()) {
            throw std::logic_error(key.toStdString() + " has no control to reset.");
        }
        new ResetButton(*button, **control);
    }
}

/// A button can be pressed by its mnemonic, or by an assistive tool, while another control has the
/// focus and holds what is not even stored yet: the action must find it all.
void SettingBinder::bindActionButtons(const QWidget& view, QObject& controller) {
    for (const auto* button : view.findChildren<QPushButton*>()) {
        const ControlAction action(*button, controller);
        if (action.isValid()) {
            connect(button, &QPushButton::clicked, this, [this, action] {
                settle();
                action.call();
            });
        }
    }
}

void SettingBinder::show() {
    for (const auto& control : std::as_const(_controls)) {
        if (control) {
            control->show();
        }
    }
}

void SettingBinder::settle() {
    for (const auto& control : std::as_const(_controls)) {
        if (control) {
            control->settle();
        }
    }
}

/// The keyer must hear of changes in the order in which they were made.
void SettingBinder::settleOthers(const BoundControl& control) {
    for (const auto& each : std::as_const(_controls)) {
        if (each && each != &control) {
            each->settle();
        }
    }
}

QString SettingBinder::trouble(const QWidget* besides) const {
    QStringList troubles;
    for (const auto& each : _controls) {
        if (each && !each->isOf(besides) && !each->trouble().isEmpty()) {
            troubles.append(tr("%1: %2").arg(each->label(), each->trouble()));
        }
    }
    return troubles.join(u' ');
}

bool SettingBinder::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Hide) {
        settle();
        show(); // a number out of its range does not outlast the view
    }
    return QObject::eventFilter(watched, event);
}
