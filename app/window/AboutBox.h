#pragma once

#include <QMessageBox>

/// Says what program this is. It holds nothing up, and deletes itself when it is closed.
class AboutBox final : public QMessageBox {
    Q_OBJECT
  public:
    explicit AboutBox(QWidget* parent);
};
