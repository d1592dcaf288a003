#pragma once

#include <QLabel>

class SpokenNotice;
class TuneTimer;
class WinKeyerUsb;

/// A strip across the window that is there while the operator tunes, and says so, and for how long.
/// A screen reader speaks it once, and that tune is off again.
class TuneWarning final : public QLabel {
    Q_OBJECT
  public:
    explicit TuneWarning(QWidget* parent = nullptr);

    /// Follows `engine`, and counts by `timer`; both must outlive the warning. Its text until now
    /// stays ahead of the seconds.
    void setEngine(const WinKeyerUsb& engine, const TuneTimer& timer);

  private:
    void setShown(bool isShown);
    void showSeconds(const TuneTimer& timer);

    QString _warning;
    SpokenNotice* _spoken;
};
