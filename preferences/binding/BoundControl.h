#pragma once

#include "keyer/Setting.h"
#include "platform/Clock.h"
#include "preferences/binding/ControlAction.h"

#include <QLabel>
#include <QObject>
#include <QPointer>
#include <QWidget>

#include <memory>
#include <optional>

/// A control that shows a setting and stores what the operator makes of it; a child of the control.
/// Each kind of control has a class of its own. Main thread only.
class BoundControl : public QObject {
    Q_OBJECT
  public:
    /// Shows the stored value; writes nothing and calls nothing.
    void show();
    /// Brings the default back by removing what is stored, and acts.
    void reset();
    /// Takes over what is still being typed, and acts now if the value has not settled yet.
    void settle();

    [[nodiscard]] QLatin1StringView key() const { return _setting.key; }
    [[nodiscard]] bool isDefault() const;
    /// What the operator calls the setting.
    [[nodiscard]] QString label() const;
    /// The default value as the operator reads it, with its unit.
    [[nodiscard]] QString defaultText() const;
    void takeFocus() { _widget.setFocus(Qt::OtherFocusReason); }

    bool eventFilter(QObject* watched, QEvent* event) override;

  Q_SIGNALS:
    /// The action follows. What it does may have to come after what other controls still owe.
    void aboutToAct();

  protected:
    /// Throws std::logic_error when the controller has not the action that the control names.
    BoundControl(QWidget& widget, const Setting& setting, QObject& controller);

    /// The operator has changed the value: stores it, and acts once it has settled.
    void change(const QVariant& value);
    /// Whether the action still waits.
    [[nodiscard]] bool isUnsettled() const { return _isUnsettled; }
    void act();

    [[nodiscard]] const Setting& setting() const { return _setting; }
    [[nodiscard]] QString storedText() const;
    [[nodiscard]] double storedNumber() const;
    /// How a stored value is told that the control does not offer.
    [[nodiscard]] QString strangeText() const;

    virtual void showStored() = 0;
    /// Whether the control can show what is stored.
    [[nodiscard]] virtual bool offersStored() const { return true; }
    virtual void finishTyping() {}
    /// What may be chosen of a number.
    [[nodiscard]] virtual std::optional<Range> range() const { return {}; }
    [[nodiscard]] virtual QString unit() const { return {}; }

  private:
    [[nodiscard]] QVariant storedValue() const;
    [[nodiscard]] QString number(double value) const;
    [[nodiscard]] QString explanation() const;
    void describe();

    QWidget& _widget;
    const Setting& _setting;
    QPointer<QLabel> _buddyLabel;
    QString _toolTip;
    ControlAction _action;
    bool _isShowing = false;
    bool _isUnsettled = false;
    std::shared_ptr<Timer> _settling;
};
