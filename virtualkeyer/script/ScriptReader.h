#pragma once

#include "virtualkeyer/pty/Operator.h"
#include "virtualkeyer/script/ScriptPlayer.h"

#include <QByteArray>
#include <QString>

namespace virtualkeyer {

/// Reads a script from a descriptor and gives it to the player. What is no script is thrown as a
/// ScriptError that names the line.
class ScriptReader : public Operator {
  public:
    /// `name` is for messages. Neither the player nor the descriptor is owned.
    ScriptReader(int descriptor, QString name, ScriptPlayer& player);

    /// Reads to the end at once: a script that is there as a whole has its mistakes found before
    /// any of it is done.
    void readAll();

    [[nodiscard]] int descriptor() const override { return _descriptor; }
    /// Reads what is there.
    void work(SerialKeyer& keyer, bool isReadable, Time now) override;

  private:
    void read(Time now);
    void addLine(const QByteArray& line, Time now);
    void end(Time now);

    int _descriptor;
    QString _name;
    ScriptPlayer& _player;
    QByteArray _rest;
    int _lines = 0;
};

} // namespace virtualkeyer
