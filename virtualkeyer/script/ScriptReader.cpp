#include "virtualkeyer/script/ScriptReader.h"

#include "virtualkeyer/script/ScriptError.h"
#include "virtualkeyer/script/ScriptParser.h"

#include <QCoreApplication>

#include <array>
#include <cerrno>
#include <cstring>
#include <unistd.h>
#include <utility>

namespace virtualkeyer {

ScriptReader::ScriptReader(int descriptor, QString name, ScriptPlayer& player)
    : _descriptor(descriptor), _name(std::move(name)), _player(player) {}

void ScriptReader::readAll() {
    while (_descriptor >= 0) {
        read(Time{0});
    }
}

void ScriptReader::work(SerialKeyer& /*keyer*/, bool isReadable, Time now) {
    if (isReadable) {
        read(now);
    }
}

void ScriptReader::read(Time now) {
    std::array<char, 4096> buffer{};
    const ssize_t size = ::read(_descriptor, buffer.data(), buffer.size());
    if (size < 0 && (errno == EINTR || errno == EAGAIN)) {
        return;
    }
    if (size < 0) {
        throw ScriptError(
            QCoreApplication::translate("VirtualKeyer", "cannot read the script %1: %2")
                .arg(_name, QString::fromLocal8Bit(std::strerror(errno)))
                .toStdString());
    }
    if (size == 0) {
        return end(now);
    }
    _rest.append(buffer.data(), size);
    for (qsizetype at = _rest.indexOf('\n'); at >= 0; at = _rest.indexOf('\n')) {
        addLine(_rest.left(at), now);
        _rest.remove(0, at + 1);
    }
}

void ScriptReader::end(Time now) {
    _descriptor = -1;
    addLine(std::exchange(_rest, {}), now);
    _player.close();
}

void ScriptReader::addLine(const QByteArray& line, Time now) {
    ++_lines;
    const QString text = QString::fromUtf8(line).trimmed();
    const auto meaning = readScriptLine(text);
    QString usage;
    if (const auto* mistake = std::get_if<ScriptMistake>(&meaning)) {
        usage = mistake->usage;
    } else if (const auto* step = std::get_if<ScriptStep>(&meaning);
               step != nullptr && !_player.add(*step, _lines, now)) {
        usage = QCoreApplication::translate("VirtualKeyer", "a profile that --help lists");
    }
    if (!usage.isEmpty()) {
        throw ScriptError(QCoreApplication::translate(
                              "VirtualKeyer", "%1:%2: \"%3\" is not understood; possible is: %4")
                              .arg(_name)
                              .arg(_lines)
                              .arg(text, usage)
                              .toStdString());
    }
}

} // namespace virtualkeyer
