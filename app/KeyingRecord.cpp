#include "app/KeyingRecord.h"

#include "keyer/WinKeyerUsb.h"
#include "platform/Log.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

QString KeyingRecord::standardPath() {
    const auto state = qEnvironmentVariable("XDG_STATE_HOME");
    const auto directory =
        QDir::isAbsolutePath(state) ? state : QDir::homePath() + u"/.local/state"_s;
    return directory + u"/quorvel/keying"_s;
}

KeyingRecord::KeyingRecord(WinKeyerUsb& engine, const QString& path)
    : _engine(engine), _path(path), _owed(read()) {
    connect(&_engine, &WinKeyerUsb::activityChanged, this, &KeyingRecord::follow);
    connect(&_engine, &WinKeyerUsb::sendingProgressed, this, &KeyingRecord::follow);
    connect(&_engine, &WinKeyerUsb::tuneStateChanged, this, &KeyingRecord::follow);
    connect(&_engine, &WinKeyerUsb::sendingCutShort, this,
            [this] { _wasCutShortInTune = _engine.tuneState() != 0; });
    follow();
}

void KeyingRecord::close() {
    keep(_owed, Keying::None);
}

QString KeyingRecord::wordFor(Keying keying) {
    switch (keying) {
    case Keying::None:
        break;
    case Keying::Sending:
        return u"sending"_s;
    case Keying::Tune:
        return u"tune"_s;
    case Keying::TuneOfLostKeyer:
        return u"tune of a lost keyer"_s;
    }
    return {};
}

QString KeyingRecord::noticeFor(Keying keying) {
    switch (keying) {
    case Keying::None:
        break;
    case Keying::Sending:
        return tr("Quorvel ended while it was sending. The rest was not sent, and the key is up.");
    case Keying::Tune:
        return tr(
            "Quorvel ended while tune was on. The key may have stayed down; it has been let go "
            "of now.");
    case Keying::TuneOfLostKeyer:
        return tr("The keyer was unplugged while tune was on. The key may have stayed down; it has "
                  "been let go of now.");
    }
    return {};
}

KeyingRecord::Keying KeyingRecord::read() const {
    QFile file(_path);
    if (!file.open(QIODevice::ReadOnly)) {
        return Keying::None;
    }
    const auto word = QString::fromUtf8(file.readAll()).trimmed();
    const auto known = {Keying::Sending, Keying::Tune, Keying::TuneOfLostKeyer};
    const auto* found = std::find_if(known.begin(), known.end(),
                                     [&](Keying each) { return wordFor(each) == word; });
    // That there is a file says enough.
    return found != known.end() ? *found : Keying::Tune;
}

void KeyingRecord::follow() {
    const bool isConnected = _engine.activity() != KeyerActivity::NotConnected;
    const bool wasConnected = std::exchange(_isConnected, isConnected);
    if (isConnected && !wasConnected) {
        linkIsUp();
    }
    const bool isLost = !_engine.isConnected() && std::exchange(_wasCutShortInTune, false);
    if (isConnected) {
        keep(_owed, presentKeying());
    } else if (isLost || (wasConnected && _now == Keying::Tune)) {
        // Key up can reach it no more.
        keep(Keying::TuneOfLostKeyer, Keying::None);
    } else {
        keep(_owed, Keying::None);
    }
}

void KeyingRecord::linkIsUp() {
    _wasCutShortInTune = false;
    if (_owed == Keying::None) {
        return;
    }
    _engine.keyUp();
    const auto notice = noticeFor(_owed);
    keep(Keying::None, _now);
    logLine(notice);
    Q_EMIT keyLetGo(notice);
}

KeyingRecord::Keying KeyingRecord::presentKeying() const {
    if (_engine.tuneState() != 0) {
        return Keying::Tune;
    }
    const auto activity = _engine.activity();
    const bool isSending = activity == KeyerActivity::Sending ||
                           activity == KeyerActivity::BufferFull ||
                           _engine.inFlightIndex() < _engine.outputBufferIndex();
    return isSending ? Keying::Sending : Keying::None;
}

void KeyingRecord::keep(Keying owed, Keying now) {
    const auto before = std::max(_owed, _now);
    _owed = owed;
    _now = now;
    if (const auto after = std::max(_owed, _now); after != before) {
        write();
    }
}

void KeyingRecord::write() const {
    const auto kept = std::max(_owed, _now);
    if (kept == Keying::None) {
        QFile::remove(_path);
        return;
    }
    QFile file(_path);
    if (!QDir().mkpath(QFileInfo(_path).path()) || !file.open(QIODevice::WriteOnly) ||
        file.write(wordFor(kept).toUtf8() + '\n') < 0) {
        logLine(u"%1 cannot be written: %2"_s.arg(_path, file.errorString()));
    }
}
