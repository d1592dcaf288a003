#pragma once

#include "preferences/binding/BoundControl.h"

#include <QToolButton>

/// A button that brings the default of a setting back; a child of the button. It can be pressed
/// while another value is in force. Main thread only.
class ResetButton final : public QObject {
    Q_OBJECT
  public:
    ResetButton(QToolButton& button, BoundControl& control);

  private:
    void press();
    void showAvailability();

    QToolButton& _button;
    QPointer<BoundControl> _control;
};
