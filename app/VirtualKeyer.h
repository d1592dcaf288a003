#pragma once

#include <QObject>
#include <QProcess>
#include <QString>

/// The keyer made of software, a program of its own, for operators without a keyer at hand. It ends
/// with this object, or with this program. Main thread only.
class VirtualKeyer final : public QObject {
    Q_OBJECT
  public:
    /// The installed program, beside this one or in the search path; null when there is none.
    [[nodiscard]] static QString standardProgram();

    explicit VirtualKeyer(const QString& program) : _program(program) {}
    /// Waits until it has gone, and its port with it.
    ~VirtualKeyer() override;

    [[nodiscard]] bool isInstalled() const { return !_program.isNull(); }
    [[nodiscard]] qint64 processIdentifier() const { return _process.processId(); }

    /// Starts it, unless it runs; its port is announced like any that is plugged in.
    void start();

  Q_SIGNALS:
    /// Why it does not run, for the operator.
    void failed(const QString& reason);

  private:
    void tellOfEnd();

    QString _program;
    QProcess _process;
    bool _isLeaving = false;
};
