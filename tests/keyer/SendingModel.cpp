#include "tests/keyer/SendingModel.h"

#include <QRegularExpression>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

bool isAllowed(QChar character) {
    const auto isBetween = [character](char16_t first, char16_t last) {
        return character >= first && character <= last;
    };
    return isBetween(u'A', u'Z') || isBetween(u'0', u'9') ||
           u"\"$'()+-/:;<=>@[]\\,.? |`~#{%^"_s.contains(character);
}

/// Deletes the characters that are not allowed, but never tests the one after a deleted one.
QString filtered(QString text) {
    for (qsizetype i = 0; i < text.length(); ++i) {
        if (!isAllowed(text[i])) {
            text.remove(i, 1);
        }
    }
    return text;
}

/// Nothing but printable single bytes is ever text.
QString printable(QString text) {
    static const QRegularExpression others(u"[^\\x20-\\x7E]"_s);
    return text.remove(others);
}

/// The number that a text begins with, else 0.
int leadingNumber(const QString& text) {
    static const QRegularExpression number(u"^\\s*([+-]?[0-9]+)"_s);
    return number.match(text).captured(1).toInt();
}

} // namespace

QByteArray SendingModel::takeWritten() {
    return std::exchange(_written, {});
}

void SendingModel::edit(const QString& newText) {
    text = newText;
    if (text.isEmpty()) {
        index = 0;
        return;
    }
    text = printable(substituted(filtered(text.toUpper())));
    if (index >= text.length()) {
        index = text.length();
    }
    if (pauseState == 0 && !_isSending) {
        send();
    }
}

void SendingModel::pressMessage(int button) {
    append(substituted(messages[button]));
}

void SendingModel::append(const QString& message) {
    if (!text.isEmpty()) {
        text += u" "_s;
    }
    text += printable(message.toUpper());
    send();
    if (beaconState != 0) {
        _beaconMessage = message;
    }
}

void SendingModel::repeatMessage() {
    if (beaconState != 0 && _beaconMessage) {
        append(QString(*_beaconMessage));
    }
}

void SendingModel::stop() {
    write("\x0A");
    clear();
}

void SendingModel::setPause(int state) {
    pauseState = state;
    write(state != 0 ? QByteArray("\x06\x01", 2) : QByteArray("\x06\x00", 2));
    if (state == 0) {
        send();
    }
}

void SendingModel::stepSerialNumber(int by) {
    if (serialNumber + by >= 1) {
        serialNumber += by;
    }
}

void SendingModel::receive(const QByteArray& chunk) {
    const int first = static_cast<unsigned char>(chunk[0]);
    for (qsizetype i = 0; i < chunk.length(); ++i) {
        if (first == 0xFF || (first >= 0x80 && first <= 0x9F)) {
            continue;
        }
        if (first >= 0xC0 && first <= 0xDF) {
            handleStatus(first - 0xC0);
        } else {
            send();
        }
    }
}

void SendingModel::handleStatus(int status) {
    const auto has = [status](int mask) { return (status & mask) != 0; };
    if (has(8)) {
        // The last one of the buttons wins.
        if (const int button = has(16)  ? 3
                               : has(4) ? 2
                               : has(2) ? 1
                               : has(1) ? 0
                                        : -1;
            button >= 0) {
            pressMessage(button);
        }
        return;
    }
    if (status == 0) {
        if (pauseState != 0) {
            setPause(0);
        }
        send();
    }
    if (has(1)) {
        setPause(1);
    }
    if (has(2)) {
        clear();
    }
}

void SendingModel::clear() {
    _isSendingCallsign = false;
    _callsignIndex = 0;
    index = 0;
    _isSending = false;
    text.clear();
    beaconState = 0;
}

QString SendingModel::substituted(const QString& message) const {
    QString digits = QString::number(serialNumber);
    while (digits.length() < 3) {
        digits.prepend(u"0"_s);
    }
    const QString withCall = message.split(u"`"_s).join(myCall);
    const QString withBoth = withCall.split(u"#"_s).join(digits.split(u"0"_s).join(u"T"_s));
    // The call sign that it holds makes it longer at each edit.
    if (myCall.contains(u"`"_s) && withBoth.length() > 10'000 &&
        withBoth.length() > message.length()) {
        static const QRegularExpression tokens(u"[`#]"_s);
        return QString(message).remove(tokens);
    }
    return withBoth;
}

void SendingModel::send() {
    if (pauseState != 0) {
        return;
    }
    if (_isSendingCallsign) {
        sendCallsign();
    } else if (index < text.length()) {
        sendText();
    } else {
        _isSending = false;
    }
}

void SendingModel::sendCallsign() {
    if (_callsignIndex < hisCallsign.length()) {
        write(hisCallsign.toUpper().mid(_callsignIndex, 1).toLatin1());
        ++_callsignIndex;
        _isSending = true;
        return;
    }
    _isSendingCallsign = false;
    _callsignIndex = 0;
    send();
}

void SendingModel::sendText() {
    const QByteArray character = characterAt(index);
    ++index;
    _isSending = true;
    if (character == "%") {
        write("\x1D" + QByteArray(1, static_cast<char>(leadingNumber(hscwSpeed) / 100)));
        send();
    } else if (character == "^") {
        hscwState = 0;
        write("\x1E");
        send();
    } else if (character == "{") {
        sendMerged();
    } else if (character == "|") {
        write("|");
        send();
    } else if (character == "~") {
        _isSendingCallsign = true;
        send();
    } else {
        write(character);
    }
}

void SendingModel::sendMerged() {
    if (text.length() - index < 2) {
        return;
    }
    write("\x1B" + characterAt(index) + characterAt(index + 1));
    index += 2;
    send();
}

QByteArray SendingModel::characterAt(qsizetype position) const {
    return text.toUpper().mid(position, 1).toLatin1();
}
