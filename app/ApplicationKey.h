#pragma once

#include <QKeyCombination>
#include <QObject>

/// Hears a key wherever it is pressed in the application and no shortcut of a window takes it: in
/// menus and other popups, in alerts and in side windows. What the key does there besides, such as
/// closing an alert, goes on as ever.
class ApplicationKey final : public QObject {
    Q_OBJECT
  public:
    /// Further modifiers do not matter.
    explicit ApplicationKey(QKeyCombination key, QObject* parent = nullptr);

  Q_SIGNALS:
    void pressed();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QKeyCombination _key;
};
