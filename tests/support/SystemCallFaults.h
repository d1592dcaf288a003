#pragma once

#include <QList>

#include <functional>
#include <optional>
#include <termios.h>

enum class SystemCall {
    Open,
    OpenAt,
    Fcntl,
    TcGetAttr,
    TcSetAttr,
    Ioctl,
    Flock,
    Poll,
    Read,
    Write,
    Close
};

/// Makes system calls fail, and watches them, in test programs that wrap them at link time.
/// Nothing outlives the object; there may be one at a time. Any thread.
///
/// Calls are counted from the object's making on. Those of ioctl are counted by request.
class SystemCallFaults {
  public:
    SystemCallFaults();
    SystemCallFaults(const SystemCallFaults&) = delete;
    SystemCallFaults& operator=(const SystemCallFaults&) = delete;
    ~SystemCallFaults();

    static constexpr int always = 1'000'000'000;

    /// Has the calls from the `first` to the `last` one, counted from now, fail with `error`.
    void fail(SystemCall call, int error, int first = 1, int last = always);
    /// The same for one request of ioctl.
    void failIoctl(unsigned long request, int error, int first = 1, int last = always);
    /// Ends all failures.
    void mend();

    /// Has the next close let go of the descriptor and then tell of this error.
    void failNextCloseAfterwards(int error);

    /// Has the next write take no more than `length` bytes.
    void shortenNextWrite(size_t length);
    /// Has open return this descriptor, once.
    void nextOpenReturns(int descriptor);
    /// Has poll say for always that the first descriptor is readable.
    void pollSaysReadable();

    /// Runs on the calling thread ahead of each such call.
    void beforeEach(SystemCall call, std::function<void(int descriptor)> action);

    [[nodiscard]] int count(SystemCall call) const;
    [[nodiscard]] int countIoctl(unsigned long request) const;
    /// The records that tcsetattr was given, with what it was to wait for.
    struct SetAttributes {
        int actions;
        termios record;
    };
    [[nodiscard]] QList<SetAttributes> setAttributes() const;

    /// Gives every terminal these modem lines: TIOCMGET reads the word, TIOCMSET writes it.
    void setModemWord(int word);
    [[nodiscard]] int modemWord() const;
    /// Gives every terminal a driver's settings with these flags: TIOCGSERIAL reads them,
    /// TIOCSSERIAL writes them, all of them or those that the driver knows.
    void setSerialFlags(int flags, int known = ~0);
    [[nodiscard]] int serialFlags() const;
    /// Has TIOCOUTQ say that so many bytes have not left any terminal yet.
    void setOutputWaiting(int count);
    /// The words that TIOCMSET was given, in order.
    [[nodiscard]] QList<int> modemWordsSet() const;
};
