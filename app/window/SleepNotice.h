#pragma once

#include <QObject>

class NoticeStrip;
class WinKeyerUsb;

/// Tells the operator, once the machine is awake again, that its sleep has stopped what was being
/// sent.
class SleepNotice final : public QObject {
    Q_OBJECT
  public:
    /// `engine` and `strip` must outlive this.
    SleepNotice(const WinKeyerUsb& engine, NoticeStrip& strip, QObject* parent);

  private:
    bool _hasStopped = false;
};
