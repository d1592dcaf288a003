#pragma once

#include <QLabel>

class WinKeyerUsb;

/// Says on a pane that no keyer is connected: what is changed there is only stored then. Main
/// thread only.
class KeyerNotice final : public QLabel {
    Q_OBJECT
  public:
    using QLabel::QLabel;

    /// Tells from now on of `engine`'s link.
    void follow(const WinKeyerUsb& engine);
};
