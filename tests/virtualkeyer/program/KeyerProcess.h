#pragma once

#include <QProcess>
#include <QTemporaryDir>

/// The virtual keyer's program, run with a runtime directory of its own.
class KeyerProcess {
  public:
    /// Runs with `runtime`, which may be shared with other processes.
    explicit KeyerProcess(const QTemporaryDir& runtime);
    ~KeyerProcess();
    KeyerProcess(const KeyerProcess&) = delete;
    KeyerProcess& operator=(const KeyerProcess&) = delete;

    /// Starts it and waits until it has plugged in; false when it ended instead.
    [[nodiscard]] bool plugIn(const QStringList& arguments = {});
    /// Starts it and waits for its end; its exit status, -1 when it did not end of its own accord.
    [[nodiscard]] int runToEnd(const QStringList& arguments);
    /// Sends a signal and waits for the end.
    void end(int signalNumber);

    /// All of standard output so far.
    [[nodiscard]] QString output();
    /// All of standard error so far.
    [[nodiscard]] QString errors();
    [[nodiscard]] QString linkPath() const;
    [[nodiscard]] QProcess& process() { return _process; }

  private:
    [[nodiscard]] int waitForEnd();

    QString _runtime;
    QProcess _process;
    QByteArray _output;
    QByteArray _errors;
};
