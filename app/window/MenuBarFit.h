#pragma once

#include <QObject>

class QMenuBar;

/// Has a menu bar that is too wide for its window take somewhat smaller letters, rather than hide
/// its last menu. The bar owns it.
class MenuBarFit final : public QObject {
    Q_OBJECT
  public:
    explicit MenuBarFit(QMenuBar& bar);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    [[nodiscard]] bool isCutOff() const;
    void fit();

    QMenuBar& _bar;
    bool _isFitting = false;
};
