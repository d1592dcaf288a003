#include "virtualkeyer/window/ScopeAccessible.h"

#include "virtualkeyer/window/ScopeView.h"

#include <memory>

namespace virtualkeyer {

namespace {

using Milliseconds = std::chrono::duration<double, std::milli>;

QAccessibleInterface* makeInterface(const QString& /*className*/, QObject* object) {
    auto* view = qobject_cast<ScopeView*>(object);
    return view == nullptr ? nullptr : std::make_unique<ScopeAccessible>(*view).release();
}

} // namespace

ScopeAccessible::ScopeAccessible(ScopeView& view)
    : QAccessibleWidget(&view, QAccessible::Chart), _view(view) {}

void ScopeAccessible::install() {
    // One that is installed already is not installed again.
    QAccessible::installFactory(makeInterface);
}

double ScopeAccessible::valueOf(const ScopeView& view) {
    return Milliseconds(view.range().measured().value_or(Time{0})).count();
}

void* ScopeAccessible::interface_cast(QAccessible::InterfaceType type) {
    return type == QAccessible::ValueInterface ? static_cast<QAccessibleValueInterface*>(this)
                                               : QAccessibleWidget::interface_cast(type);
}

QString ScopeAccessible::text(QAccessible::Text kind) const {
    return kind == QAccessible::Description || kind == QAccessible::Value
               ? _view.measurement()
               : QAccessibleWidget::text(kind);
}

QVariant ScopeAccessible::currentValue() const {
    return valueOf(_view);
}

void ScopeAccessible::setCurrentValue(const QVariant& value) {
    const auto first = _view.range().cursor(0);
    if (first) {
        _view.setCursor(1,
                        *first + std::chrono::duration_cast<Time>(Milliseconds(value.toDouble())));
    }
}

QVariant ScopeAccessible::maximumValue() const {
    return Milliseconds(KeyTrace::kept).count();
}

} // namespace virtualkeyer
