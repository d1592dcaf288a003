#include "virtualkeyer/script/ScriptWords.h"

namespace virtualkeyer {

namespace {

constexpr char16_t mark = u'"';
constexpr char16_t escape = u'\\';

/// The word that begins behind a quotation mark at `at`, which is moved behind its end; nothing
/// when it has none.
std::optional<QString> quoted(const QString& line, qsizetype& at) {
    QString text;
    for (++at; at < line.size(); ++at) {
        if (line[at] == mark) {
            ++at;
            return text;
        }
        if (line[at] == escape && at + 1 < line.size()) {
            ++at;
        }
        text += line[at];
    }
    return std::nullopt;
}

QString plain(const QString& line, qsizetype& at) {
    const qsizetype begin = at;
    while (at < line.size() && !line[at].isSpace()) {
        ++at;
    }
    return line.mid(begin, at - begin);
}

} // namespace

ScriptWords::ScriptWords(const QString& line) {
    for (qsizetype at = 0; at < line.size();) {
        if (line[at].isSpace()) {
            ++at;
        } else if (line[at] == u'#') {
            return;
        } else if (line[at] == mark) {
            const auto text = quoted(line, at);
            _isComplete = text.has_value();
            _words.push_back({text.value_or(QString()), true});
        } else {
            _words.push_back({plain(line, at), false});
        }
    }
}

std::optional<ScriptWords::Word> ScriptWords::take() {
    if (isAtEnd()) {
        return std::nullopt;
    }
    return _words[_at++];
}

bool ScriptWords::takeIf(QStringView text) {
    const bool isNext = !isAtEnd() && !_words[_at].isQuoted && _words[_at].text == text;
    _at += isNext ? 1 : 0;
    return isNext;
}

} // namespace virtualkeyer
