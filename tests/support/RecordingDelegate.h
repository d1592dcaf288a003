#pragma once

#include "serial/ORSSerialPortDelegate.h"

#include <QByteArray>
#include <QList>
#include <QStringList>

#include <functional>

/// Writes down what a port tells it. Every call must come on the main thread; one that does not
/// is written down as "thread".
class RecordingDelegate final : public ORSSerialPortDelegate {
  public:
    /// "opened", "closing", "closed", "removed", "data" and "error", in the order of the calls;
    /// several "data" or "error" in a row count as one.
    [[nodiscard]] const QStringList& events() const { return _events; }
    [[nodiscard]] qsizetype count(const QString& event) const { return _all.count(event); }
    [[nodiscard]] const QByteArray& received() const { return _received; }
    [[nodiscard]] const QList<qsizetype>& blockSizes() const { return _blockSizes; }
    [[nodiscard]] const QList<Error>& errors() const { return _errors; }

    /// Runs at the end of every call, with the name of the event.
    void setReaction(std::function<void(ORSSerialPort&, const QString&)> reaction) {
        _reaction = std::move(reaction);
    }

    /// As an application that has no use for them. Before it is made a port's delegate.
    void setHearsErrorsOfOpenPort(bool hears) { _hearsErrors = hears; }
    [[nodiscard]] bool hearsErrorsOfOpenPort() const override { return _hearsErrors; }

    void serialPortDidReceiveData(ORSSerialPort& port, const QByteArray& data) override;
    void serialPortWasOpened(ORSSerialPort& port) override;
    void serialPortWillBeClosed(ORSSerialPort& port) override;
    void serialPortWasClosed(ORSSerialPort& port) override;
    void serialPortWasRemovedFromSystem(ORSSerialPort& port) override;
    void serialPortDidEncounterError(ORSSerialPort& port, const Error& error) override;

  private:
    void record(ORSSerialPort& port, const QString& event);

    bool _hearsErrors = true;
    QStringList _events;
    QStringList _all;
    QByteArray _received;
    QList<qsizetype> _blockSizes;
    QList<Error> _errors;
    std::function<void(ORSSerialPort&, const QString&)> _reaction;
};
