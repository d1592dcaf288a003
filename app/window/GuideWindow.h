#pragma once

#include <QTextBrowser>

/// The operator's guide, in a window of its own that stays open beside the work. Escape closes it.
class GuideWindow final : public QTextBrowser {
    Q_OBJECT
  public:
    explicit GuideWindow(QWidget* parent);

  protected:
    void keyPressEvent(QKeyEvent* event) override;
};
