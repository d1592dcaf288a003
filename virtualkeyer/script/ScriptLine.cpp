#include "virtualkeyer/script/ScriptLine.h"

#include <QByteArray>

using namespace Qt::StringLiterals;

namespace virtualkeyer {

namespace {

QString hexOf(const std::vector<std::uint8_t>& bytes) {
    const QByteArray all(reinterpret_cast<const char*>(bytes.data()),
                         static_cast<qsizetype>(bytes.size()));
    return QString::fromLatin1(all.toHex(' ').toUpper());
}

QString quotedText(QString text) {
    text.replace(u'\\', u"\\\\"_s).replace(u'"', u"\\\""_s);
    return u"\"%1\""_s.arg(text);
}

QString secondsOf(Time time) {
    const qint64 count = std::chrono::duration_cast<std::chrono::microseconds>(time).count();
    return u"%1.%2"_s.arg(count / 1'000'000).arg(count % 1'000'000, 6, 10, QChar(u'0'));
}

QString downUp(bool isDown) {
    return isDown ? u"down"_s : u"up"_s;
}

struct ExpectationWords {
    QString operator()(const ExpectKeyed& keyed) const {
        return u"keyed "_s + quotedText(keyed.text);
    }
    QString operator()(const ExpectReply& reply) const { return u"reply "_s + hexOf(reply.bytes); }
    QString operator()(const ExpectKey& key) const { return u"key "_s + downUp(key.isDown); }
    QString operator()(const ExpectPtt& ptt) const { return ptt.isOn ? u"ptt on"_s : u"ptt off"_s; }
};

struct ActionWords {
    QString operator()(const std::monostate& /*nothing*/) const { return {}; }
    QString operator()(const MovePaddle& move) const {
        if (move.dit && move.dah && move.dit == move.dah) {
            return u"paddle both "_s + downUp(*move.dit);
        }
        return move.dit ? u"paddle dit "_s + downUp(*move.dit)
                        : u"paddle dah "_s + downUp(move.dah.value_or(false));
    }
    QString operator()(const TurnKnob& turn) const { return u"knob %1"_s.arg(turn.wpm); }
    QString operator()(const MoveButton& move) const {
        const QString button = u"button %1"_s.arg(move.number);
        return move.isDown ? button + u' ' + downUp(*move.isDown) : button;
    }
    QString operator()(const PlayMessage& play) const { return u"message %1"_s.arg(play.number); }
    QString operator()(const MovePlug& move) const { return move.isIn ? u"plug"_s : u"pull"_s; }
    QString operator()(const ChangeProfile& change) const { return u"profile "_s + change.names; }
    QString operator()(const ChangeTroubles& change) const { return u"trouble "_s + change.names; }
    QString operator()(const SendBytes& send) const { return u"send "_s + hexOf(send.bytes); }
    QString operator()(const Expect& expect) const {
        const QString what = u"expect "_s + scriptWords(expect.what);
        return expect.within == Time{0} ? what
                                        : u"within %1 %2"_s.arg(secondsOf(expect.within), what);
    }
};

} // namespace

QString scriptWords(const Expectation& expectation) {
    return std::visit(ExpectationWords{}, expectation);
}

QString scriptWords(const ScriptAction& action) {
    return std::visit(ActionWords{}, action);
}

QString scriptLine(Time at, const ScriptAction& action) {
    return u"at %1 %2"_s.arg(secondsOf(at), scriptWords(action)).trimmed();
}

} // namespace virtualkeyer
