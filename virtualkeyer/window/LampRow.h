#pragma once

#include "virtualkeyer/window/KeyerState.h"
#include "virtualkeyer/window/Lamp.h"

#include <QWidget>

namespace virtualkeyer {

/// The keyer's lines and what its status byte says, a lamp each.
class LampRow : public QWidget {
    Q_OBJECT
  public:
    explicit LampRow(QWidget* parent = nullptr);

    void show(const KeyerState& state);

  private:
    Lamp* _key;
    Lamp* _ptt;
    Lamp* _busy;
    Lamp* _breakIn;
    Lamp* _xoff;
    Lamp* _wait;
};

} // namespace virtualkeyer
