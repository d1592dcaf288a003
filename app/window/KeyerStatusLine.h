#pragma once

#include <QLabel>

class BeaconCountdown;
class WinKeyerUsb;

/// Says in words which port the keyer is on, what it is doing, and in which mode. A screen reader
/// is told of each change, with the words as the line's description; the seconds that are counted
/// are only to be seen.
class KeyerStatusLine final : public QLabel {
    Q_OBJECT
  public:
    using QLabel::QLabel;

    /// Follows both, which must outlive the line.
    void follow(const WinKeyerUsb& engine, const BeaconCountdown& countdown);

    /// Says something more, behind what the keyer is doing; an empty text for nothing.
    void setNotice(const QString& notice);

  private:
    void show();
    [[nodiscard]] QString sentence(int secondsToBeacon) const;
    [[nodiscard]] QString status() const;
    [[nodiscard]] QStringList modes(int secondsToBeacon) const;

    const WinKeyerUsb* _engine = nullptr;
    const BeaconCountdown* _countdown = nullptr;
    bool _isAsleep = false;
    QString _notice;
};
