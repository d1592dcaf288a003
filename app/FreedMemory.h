#pragma once

#include "platform/Clock.h"

#include <QObject>

#include <memory>

class WinKeyerUsb;

/// Gives the memory of a long text back to the system when the text has gone. The allocator keeps
/// what is freed amid what is in use, which for a long text is many times its length. Main thread
/// only.
class FreedMemory final : public QObject {
    Q_OBJECT
  public:
    /// Characters, beyond which a text is a long one.
    static constexpr qsizetype longText = 50'000;
    /// How long after the text has gone; the keyer's stop, and the view, come first.
    static constexpr std::chrono::seconds rest{1};

    /// `engine` must outlive it.
    explicit FreedMemory(const WinKeyerUsb& engine);

  private:
    void follow();

    const WinKeyerUsb& _engine;
    bool _wasLong = false;
    std::shared_ptr<Timer> _timer;
};
