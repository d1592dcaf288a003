#pragma once

#include "keyer/Setting.h"

#include <QList>
#include <QObject>
#include <QPointer>

#include <span>

class BoundControl;
class QWidget;

/// Connects the controls of a view with the settings that they name.
///
/// A control says in its .ui file, by dynamic properties, what it is for:
/// - `setting`: the key. QCheckBox, QComboBox, QLineEdit, NumberBox.
/// - `action`: a slot or invokable `void name(const QObject* sender)` of the controller, called
///   with the control after its setting has been stored. Optional. A QPushButton that has one and
///   no setting calls it when it is pressed, once all that waits has settled.
/// - `needs`, on any widget: the key of a setting that must be on, or "key=text" of one that must
///   hold a text, for the widget to have an effect; it is disabled otherwise.
/// - `actsOnEveryChoice`: true for a QComboBox whose action also follows choosing what is chosen.
/// - `missingText`: how a QComboBox shows a stored text that is none of its items; "%1" is it.
/// - `resets`, on a QToolButton: the key of a control in the same view whose default it restores.
///
/// Showing never writes: a stored value that a control does not offer is told as "stored: ..." and
/// stays until the operator changes it. Check boxes and items of an opened list act at once;
/// numbers, texts and items that are passed on a closed list are stored at once and act when they
/// have settled, a quarter of a second after the last change, or as soon as the control is left,
/// Return pressed, another control changed, the view hidden or the binder destroyed: actions come
/// in the order of the changes. A value that comes back to where it was acts too: others may have
/// sent it in between. A typed number outside its range stands there and does nothing, which
/// trouble() tells in words, until another one is typed or the view is hidden. What an assistive
/// tool sets is stored like what is typed; a disabled control keeps its value.
///
/// Put validators on text fields before binding them: a stored text is shown as their fixup() has
/// it. Plain tool tips get range, unit and default appended. Make the binder the last member of the
/// controller, so that what waits still finds it whole. Main thread only.
class SettingBinder final : public QObject {
    Q_OBJECT
  public:
    /// Shows all values. `table` must outlive the view; `controller` the binder. Throws
    /// std::logic_error for a key that the table has not, an action that the controller has not,
    /// and a kind of control that cannot be bound.
    SettingBinder(QWidget& view, QObject& controller, std::span<const Setting> table,
                  QObject* parent = nullptr);
    ~SettingBinder() override;

    /// Shows the stored values again, as when a combo box has got other items. Whoever replaces
    /// them blocks the box's signals meanwhile.
    void show();
    /// Calls the actions that wait for their values to settle.
    void settle();
    /// What is wrong in the view, each control by its name, but for that of one widget; empty when
    /// nothing is.
    [[nodiscard]] QString trouble(const QWidget* besides = nullptr) const;

    bool eventFilter(QObject* watched, QEvent* event) override;

  Q_SIGNALS:
    /// trouble() may be another one now.
    void troubleChanged();

  private:
    void bindControl(QWidget& widget, const Setting& setting, QObject& controller);
    void settleOthers(const BoundControl& control);
    static void bindNeeds(const QWidget& view, std::span<const Setting> table);
    void bindResetButtons(QWidget& view);
    void bindActionButtons(const QWidget& view, QObject& controller);

    QList<QPointer<BoundControl>> _controls;
};
