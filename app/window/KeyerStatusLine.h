#pragma once

#include <QLabel>

class WinKeyerUsb;

/// Says in words which port the keyer is on and what it is doing. A screen reader is told of each
/// change, with the words as the line's description.
class KeyerStatusLine final : public QLabel {
    Q_OBJECT
  public:
    using QLabel::QLabel;

    /// Follows `engine`, which must outlive the line.
    void setEngine(const WinKeyerUsb& engine);

    /// Says something more, behind what the keyer is doing; an empty text for nothing.
    void setNotice(const QString& notice);

  private:
    void show();

    QString _status;
    QString _notice;
};
