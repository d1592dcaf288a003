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
    [[nodiscard]] bool isOf(const QWidget* widget) const { return &_widget == widget; }
    /// What the operator calls the setting.
    [[nodiscard]] QString label() const;
    /// What a button says that brings the default back.
    [[nodiscard]] QString resetText() const;
    /// What is wrong with what stands in the control, in words; nothing of it is stored then.
    [[nodiscard]] virtual QString trouble() const { return {}; }
    [[nodiscard]] bool isAvailable() const { return _widget.isEnabled(); }
    void takeFocus() { _widget.setFocus(Qt::OtherFocusReason); }

    bool eventFilter(QObject* watched, QEvent* event) override;

  Q_SIGNALS:
    /// A change or an action follows, which must come after what other controls still owe.
    void aboutToChange();
    /// trouble() may be another one now.
    void described();
    /// isAvailable() is another one now.
    void availabilityChanged();

  protected:
    /// Throws std::logic_error when the controller has not the action that the control names.
    BoundControl(QWidget& widget, const Setting& setting, QObject& controller);

    /// The operator has changed the value: stores it, and acts once it has settled. A control that
    /// is disabled, which only an assistive tool can reach, shows what is stored instead.
    void change(const QVariant& value);
    /// What is being typed is taken over by and by, for want of somebody who ends the typing.
    void settleSoon();
    /// Whether the action still waits.
    [[nodiscard]] bool isUnsettled() const { return _isUnsettled; }
    void act();
    /// Tells what the control does, and what is wrong with it.
    void describe();

    [[nodiscard]] const Setting& setting() const { return _setting; }
    [[nodiscard]] QString storedText() const;
    [[nodiscard]] double storedNumber() const;
    /// A number as the control shows it, without its unit.
    [[nodiscard]] QString numberText(double value) const;
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
    [[nodiscard]] QString defaultText() const;
    [[nodiscard]] QString explanation() const;
    void actIfUnsettled();
    void wait(void (BoundControl::*next)());

    QWidget& _widget;
    const Setting& _setting;
    QPointer<QLabel> _buddyLabel;
    QString _toolTip;
    ControlAction _action;
    bool _isShowing = false;
    bool _isUnsettled = false;
    std::shared_ptr<Timer> _settling;
};
