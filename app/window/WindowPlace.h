#pragma once

#include <QObject>
#include <QString>

class QWidget;

/// Remembers the size and place of a window in the settings, and puts it there again, on a screen
/// that is present. It notes them whenever the window goes, and before the application ends.
class WindowPlace final : public QObject {
    Q_OBJECT
  public:
    /// Restores the place stored under `key`, if there is one. `window` must outlive this.
    WindowPlace(QWidget& window, const QString& key, QObject* parent);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void store();

    QWidget& _window;
    QString _key;
};
