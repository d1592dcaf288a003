#pragma once

#include "platform/Application.h"

#include <QMessageBox>
#include <QPoint>

#include <optional>

/// An alert of the application, which comes when it comes: it takes no key before the keyboard has
/// been still, and says so in a line of its own at the bottom. It stands in the middle of its
/// window, also of one that is about to be put in its place, until the operator moves it.
class AlertBox final : public QMessageBox {
    Q_OBJECT
  public:
    AlertBox(const Alert& alert, QWidget* parent);

    /// What the operator chose. For a box that has been closed.
    [[nodiscard]] AlertAnswer answer() const;

  protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void center();
    [[nodiscard]] bool isWhereItWasPut() const;
    void addButtons(const Alert& alert);
    void addHint();

    QAbstractButton* _defaultButton = nullptr;
    bool _hasBeenActive = false;
    std::optional<QPoint> _place;
};
