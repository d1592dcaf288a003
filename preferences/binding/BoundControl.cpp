#include "preferences/binding/BoundControl.h"

#include "platform/Platform.h"
#include "preferences/binding/Explanation.h"

#include <QAbstractButton>
#include <QEvent>
#include <QLocale>
#include <QRegularExpression>
#include <QScopedValueRollback>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

/// Nobody changes a value on purpose twice within this time and wants to hear both.
constexpr std::chrono::milliseconds settlingTime{250};

SettingsStore& settings() {
    return SettingsStore::standardUserDefaults();
}

template <class... Visitors>
struct Overloaded : Visitors... {
    using Visitors::operator()...;
};
template <class... Visitors>
Overloaded(Visitors...) -> Overloaded<Visitors...>;

QLabel* labelOf(const QWidget& widget) {
    for (auto* label : widget.window()->findChildren<QLabel*>()) {
        if (label->buddy() == &widget) {
            return label;
        }
    }
    return nullptr;
}

/// A label's text without the mark of its key, which in some scripts stands behind it: "W (&W)".
QString plain(QString text) {
    static const QRegularExpression mark(u"\\s*\\(&\\w\\)|&"_s);
    return text.remove(mark);
}

} // namespace

BoundControl::BoundControl(QWidget& widget, const Setting& setting, QObject& controller)
    : QObject(&widget),
      _widget(widget),
      _setting(setting),
      _buddyLabel(labelOf(widget)),
      _toolTip(widget.toolTip()),
      _action(widget, controller) {
    widget.installEventFilter(this);
    // A wheel that turns over a control on its way down the page is not meant for it.
    widget.setFocusPolicy(Qt::StrongFocus);
    connect(&settings(), &SettingsStore::changed, this, [this](const QString& key) {
        if (key == _setting.key) {
            show();
        }
    });
}

void BoundControl::show() {
    const QScopedValueRollback showing(_isShowing, true);
    showStored();
    describe();
}

void BoundControl::change(const QVariant& value) {
    if (_isShowing || value == storedValue()) {
        return;
    }
    if (!isAvailable()) {
        show();
        return;
    }
    Q_EMIT aboutToChange();
    _isUnsettled = true;
    settings().setObject(value, _setting.key);
    // What is typed meanwhile is not finished when the time is over.
    wait(&BoundControl::actIfUnsettled);
}

void BoundControl::settleSoon() {
    wait(&BoundControl::settle);
}

void BoundControl::wait(void (BoundControl::*next)()) {
    if (_settling) {
        _settling->invalidate();
    }
    _settling = Platform::current().clock().scheduleTimer(settlingTime, this,
                                                          [=, this] { (this->*next)(); });
}

void BoundControl::settle() {
    finishTyping();
    actIfUnsettled();
}

void BoundControl::actIfUnsettled() {
    if (_settling) {
        std::exchange(_settling, nullptr)->invalidate();
    }
    if (std::exchange(_isUnsettled, false)) {
        _action.call();
    }
}

void BoundControl::reset() {
    Q_EMIT aboutToChange();
    _isUnsettled = true;
    settings().setObject({}, _setting.key);
    show();
    actIfUnsettled();
}

void BoundControl::act() {
    Q_EMIT aboutToChange();
    _action.call();
}

bool BoundControl::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Wheel && !_widget.hasFocus()) {
        event->ignore();
        return true;
    }
    if (event->type() == QEvent::FocusOut) {
        settle();
    }
    if (event->type() == QEvent::EnabledChange) {
        if (_buddyLabel) {
            _buddyLabel->setEnabled(isAvailable());
        }
        Q_EMIT availabilityChanged();
    }
    return QObject::eventFilter(watched, event);
}

QString BoundControl::storedText() const {
    return settings().stringForKey(_setting.key);
}

double BoundControl::storedNumber() const {
    return std::holds_alternative<int>(_setting.defaultValue)
               ? static_cast<double>(settings().integerForKey(_setting.key))
               : settings().doubleForKey(_setting.key);
}

/// What the keyer makes of what is stored, in the type of the setting.
QVariant BoundControl::storedValue() const {
    const QString key = _setting.key;
    return std::visit(
        Overloaded{[&](bool) { return QVariant(settings().boolForKey(key)); },
                   [&](int) { return QVariant(settings().integerForKey(key)); },
                   [&](double) { return QVariant(settings().doubleForKey(key)); },
                   [&](QLatin1StringView) { return QVariant(settings().stringForKey(key)); }},
        _setting.defaultValue);
}

bool BoundControl::isDefault() const {
    const auto defaultValue =
        std::visit(Overloaded{[](QLatin1StringView text) { return QVariant(QString(text)); },
                              [](auto value) { return QVariant(value); }},
                   _setting.defaultValue);
    return storedValue() == defaultValue;
}

QString BoundControl::label() const {
    if (!_widget.accessibleName().isEmpty()) {
        return _widget.accessibleName();
    }
    if (_buddyLabel) {
        return plain(_buddyLabel->text());
    }
    const auto* button = qobject_cast<const QAbstractButton*>(&_widget);
    return button != nullptr ? plain(button->text()) : QString();
}

QString BoundControl::numberText(double value) const {
    auto locale = _widget.locale();
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    const auto scale = _widget.property("scale");
    return locale.toString(scale.isValid() ? value * scale.toDouble() : value, 'g', 6);
}

QString BoundControl::defaultText() const {
    return std::visit(Overloaded{[](bool isOn) { return isOn ? tr("on") : tr("off"); },
                                 [](QLatin1StringView text) { return shownText(text); },
                                 [this](auto value) { return numberText(value) + unit(); }},
                      _setting.defaultValue);
}

/// The name of a check box is no name of a thing: it says what is so while it is on.
QString BoundControl::resetText() const {
    const auto text = std::holds_alternative<bool>(_setting.defaultValue)
                          ? tr("Reset “%1” to its default, %2")
                          : tr("Reset %1 to %2");
    return text.arg(label(), defaultText());
}

QString BoundControl::strangeText() const {
    const bool isNumber = range().has_value();
    return tr("stored: %1").arg(isNumber ? numberText(storedNumber()) + unit() : storedText());
}

QString BoundControl::explanation() const {
    const auto limits = range();
    return limits ? tr("%1 to %2, default %3")
                        .arg(numberText(limits->minimum), numberText(limits->maximum) + unit(),
                             defaultText())
                  : tr("Default: %1").arg(defaultText());
}

void BoundControl::describe() {
    QStringList lines{trouble(), _toolTip, explanation()};
    if (!offersStored()) {
        lines.append(tr("%1. It stays until it is changed here.").arg(strangeText()));
    }
    lines.removeAll(QString());
    explain(_widget, lines.join(u'\n'));
    Q_EMIT described();
}
