#pragma once

#include <QByteArray>
#include <QString>

#include <chrono>

/// A terminal line with both ends in this program: a device node for the one under test, and the
/// far end for the test. The line is raw from the start.
class PseudoTerminalPair {
  public:
    PseudoTerminalPair();
    PseudoTerminalPair(const PseudoTerminalPair&) = delete;
    PseudoTerminalPair& operator=(const PseudoTerminalPair&) = delete;
    ~PseudoTerminalPair();

    /// The device node of the near end.
    [[nodiscard]] QString path() const { return _path; }
    /// The descriptor of the far end; it does not block. -1 after hangUp().
    [[nodiscard]] int farEnd() const { return _farEnd; }

    /// Sends bytes to the near end; false unless all of them went.
    [[nodiscard]] bool write(const QByteArray& data) const;

    /// All that the near end has sent by now.
    [[nodiscard]] QByteArray readAvailable() const;

    /// Reads until `count` bytes have come or the time is over, with the event loop running.
    [[nodiscard]] QByteArray read(qsizetype count,
                                  std::chrono::milliseconds limit = std::chrono::seconds(5)) const;

    /// Closes the far end, as a pulled adapter does. No other terminal gets the node's name while
    /// this lives, unless the node is locked by who has it open.
    void hangUp();

  private:
    int _farEnd;
    /// The near end: the system gives a terminal's number to the next one when both ends are
    /// closed, and the other tests open terminals all the time.
    int _numberHolder = -1;
    QString _path;
};
