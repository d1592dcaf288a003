#pragma once

#include "platform/Application.h"

#include <QMessageBox>

/// An alert of the application, which comes when it comes: it takes no key before the keyboard has
/// been still, and says so in a line of its own at the bottom.
class AlertBox final : public QMessageBox {
    Q_OBJECT
  public:
    AlertBox(const Alert& alert, QWidget* parent);

    /// What the operator chose. For a box that has been closed.
    [[nodiscard]] AlertAnswer answer() const;

  private:
    void addButtons(const Alert& alert);
    void addHint();

    QAbstractButton* _defaultButton = nullptr;
};
