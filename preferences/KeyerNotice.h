#pragma once

#include <QLabel>

/// Says on a pane that no keyer is connected: what is changed there is only stored then. It follows
/// the keyer engine by itself. Main thread only.
class KeyerNotice final : public QLabel {
    Q_OBJECT
  public:
    explicit KeyerNotice(QWidget* parent = nullptr);

  private:
    void follow();
};
