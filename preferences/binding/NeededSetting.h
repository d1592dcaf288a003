#pragma once

#include "keyer/Setting.h"

#include <QObject>
#include <QString>

#include <span>

class QWidget;

/// Switches a widget off while a setting makes it one without effect; a child of the widget. Main
/// thread only.
class NeededSetting final : public QObject {
    Q_OBJECT
  public:
    /// `need` is the key of a setting that must be on, or "key=text" of one that must hold a text.
    /// Throws std::logic_error for a key or text that the table has not.
    NeededSetting(QWidget& widget, const QString& need, std::span<const Setting> table);

  private:
    void follow();

    QWidget& _widget;
    QString _key;
    /// Null where the setting has to be on.
    QString _text;
};
