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
/// - `setting`: the key. QCheckBox, QComboBox, QLineEdit, QSpinBox, QDoubleSpinBox.
/// - `action`: a slot or invokable `void name(const QObject* sender)` of the controller, called
///   with the control after its setting has been stored. Optional. A QPushButton that has one and
///   no setting calls it when it is pressed, once all that waits has settled.
/// - `scale`: a control's own property; how much its numbers are shown times those it has.
/// - `actsOnEveryChoice`: true for a QComboBox whose action also follows choosing what is chosen.
/// - `missingText`: how a QComboBox shows a stored text that is none of its items; "%1" is it.
/// - `resets`, on a QToolButton: the key of a control in the same view whose default it restores.
///
/// Showing never writes: a stored value that a control does not offer is told as "stored: ..." and
/// stays until the operator changes it. Check boxes and items of an opened list act at once;
/// numbers, texts and items that are passed on a closed list are stored at once and act when they
/// have settled, a quarter of a second after the last change, or as soon as the control is left,
/// Return pressed, another control acts, the view hidden or the binder destroyed. A value that
/// comes back to where it was acts too: others may have sent it in between.
///
/// Put validators on text fields before binding them; plain tool tips get range, unit and default
/// appended. Make the binder the last member of the controller, so that what waits still finds it
/// whole. Main thread only.
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

    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void bindResetButtons(QWidget& view);
    void bindActionButtons(const QWidget& view, QObject& controller);

    QList<QPointer<BoundControl>> _controls;
};
