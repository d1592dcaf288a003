#pragma once

#include "virtualkeyer/core/KeyLineDecoder.h"
#include "virtualkeyer/pty/FileDescriptor.h"
#include "virtualkeyer/pty/KeyerListener.h"
#include "virtualkeyer/pty/Operator.h"
#include "virtualkeyer/pty/SerialKeyer.h"
#include "virtualkeyer/script/ScriptHand.h"
#include "virtualkeyer/script/ScriptStep.h"
#include "virtualkeyer/window/KeyerState.h"

#include <QObject>
#include <QString>

#include <mutex>
#include <optional>
#include <string>
#include <vector>

namespace virtualkeyer {

/// Between a window and a keyer that runs on a thread of its own, so that neither waits for the
/// other: what the window does to the keyer goes one way, and what there is to be shown the other.
class KeyerLink : public QObject, public Operator, public KeyerListener {
    Q_OBJECT
  public:
    KeyerLink();

    /// Has the keyer's thread do this. Any thread.
    void order(const ScriptAction& action);

    /// From now on what is ordered is written down, with its times from now.
    void beginRecording();
    /// What was written down, as a script; no more is. The window's thread.
    [[nodiscard]] QString endRecording();

    /// The keyer as it is now. The window's thread.
    [[nodiscard]] KeyerState state();
    /// What was keyed since the last call. The window's thread.
    [[nodiscard]] QString takeKeyedText();

    [[nodiscard]] int descriptor() const override { return _wake.number(); }
    void work(SerialKeyer& keyer, bool isReadable, Time now) override;
    [[nodiscard]] std::optional<Time> nextWish() const override;
    void keyerDid(const Event& event, const Registers& registers) override;
    void timePassed(Time now) override;

  Q_SIGNALS:
    /// There is something new to be shown. Not again before state() was asked for; from the keyer's
    /// thread.
    void changed();

  private:
    void wake();
    void carryOut(SerialKeyer& keyer, Time now);
    void keepUp();

    FileDescriptor _wake;
    std::mutex _mutex;
    std::vector<ScriptAction> _orders;
    bool _records = false;
    std::optional<Time> _recordingStart;
    QString _recording;
    KeyerState _shown;
    std::string _keyed;
    bool _isAnnounced = false;

    // The keyer's thread alone.
    const SerialKeyer* _keyer = nullptr;
    ScriptHand _hand;
    KeyLineDecoder _decoder;
    bool _isKeyDown = false;
    bool _isPttOn = false;
};

} // namespace virtualkeyer
