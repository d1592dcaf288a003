// Text that the operator types: filtered, substituted, and handed to the sending loop.

#include "keyer/SendableText.h"
#include "keyer/WinKeyerUsb.h"

#include <algorithm>

namespace {

/// Deletes what cannot be typed. The character after a deleted one is not looked at: typing one
/// character at a time never meets the case.
QString filtered(const QString& text, const CharacterSet& allowed) {
    const auto isAllowed = [&](QChar each) { return allowed.characterIsMember(each); };
    const auto firstOther = std::find_if_not(text.begin(), text.end(), isAllowed) - text.begin();
    if (firstOther == text.size()) {
        return text; // as nearly always, however long it is
    }
    QString kept = text.first(firstOther);
    kept.reserve(text.size());
    for (qsizetype i = firstOther; i < text.size(); ++i) {
        if (isAllowed(text.at(i))) {
            kept.append(text.at(i));
        } else if (i + 1 < text.size()) {
            kept.append(text.at(++i));
        }
    }
    return kept;
}

} // namespace

bool WinKeyerUsb::textShouldBeginEditing(const QObject*) const {
    return true;
}

bool WinKeyerUsb::textShouldEndEditing(const QObject*) const {
    return true;
}

void WinKeyerUsb::textDidBeginEditing(const QObject*) {}

void WinKeyerUsb::textDidEndEditing(const QObject*) {}

void WinKeyerUsb::textDidChange() {
    if (_text.text().isEmpty()) {
        restrictToText();
        Q_EMIT sendingProgressed();
        return;
    }
    const auto typed = filtered(_text.text().toUpper(), morseKeyboardCharacterSet());
    setKeyboardBuffer(sendable(substituteTokens(typed)));
    restrictToText();
    Q_EMIT sendingProgressed();
    if (pauseState() == 0 && !_sendingState) {
        send();
    }
}

void WinKeyerUsb::appendSendableText(const QString& text) {
    if (_text.text().isEmpty()) {
        setKeyboardBuffer(sendable(text));
        return;
    }
    _text.append(u' ' + sendable(text));
    Q_EMIT keyboardBufferChanged();
}
