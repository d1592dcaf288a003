#pragma once

#include <QObject>
#include <QString>

class WinKeyerUsb;

/// Keeps, where a crash leaves it, that the key may be down: a file that is there while tune is on
/// or text is being sent. A program that finds one when it starts, or that lost its keyer in tune,
/// keys up right after the connect sequence of its first connection.
///
/// To be made before whoever else might send something as soon as there is a link. Main thread
/// only.
class KeyingRecord final : public QObject {
    Q_OBJECT
  public:
    /// The state directory's, which stays when a session ends.
    [[nodiscard]] static QString standardPath();

    /// `engine` must outlive this. Reads what a predecessor left at `path`.
    KeyingRecord(WinKeyerUsb& engine, const QString& path);

    /// The program has let go of the keyer and ends: nothing is left to be found but a key that
    /// could not be reached.
    void close();

  Q_SIGNALS:
    /// The key has been let go of that was, or may have been, left down; with what to tell the
    /// operator.
    void keyLetGo(const QString& notice);

  private:
    enum class Keying { None, Sending, Tune, TuneOfLostKeyer };

    [[nodiscard]] static QString wordFor(Keying keying);
    [[nodiscard]] static QString noticeFor(Keying keying);
    [[nodiscard]] Keying read() const;
    void write() const;
    void follow();
    void linkIsUp();
    [[nodiscard]] Keying presentKeying() const;
    void keep(Keying owed, Keying now);

    WinKeyerUsb& _engine;
    const QString _path;
    bool _isConnected = false;
    /// The port was closed by another in tune; the key up that went out first may have gone
    /// nowhere.
    bool _wasCutShortInTune = false;
    /// What was left behind, of which the keyer has not been told yet.
    Keying _owed;
    Keying _now = Keying::None;
};
