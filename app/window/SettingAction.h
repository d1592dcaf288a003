#pragma once

#include <QObject>
#include <QString>

class QAction;

/// A menu's item that is a setting of yes or no: it shows what is stored, and stores what is
/// chosen. Main thread only.
class SettingAction final : public QObject {
    Q_OBJECT
  public:
    /// `action` is a checkable one, and must outlive this.
    SettingAction(QAction& action, const QString& key, QObject* parent);
};
