#include "app/window/Guide.h"

#include <QFile>
#include <QRegularExpression>
#include <QTextDocument>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// How much is shown on both sides of a match.
constexpr qsizetype before = 16;
constexpr qsizetype behind = 48;

QString contentOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// Every space is a plain one, and what ends a paragraph or a cell of a table a line's end. Letter
/// for letter, so that positions stay what they are.
QString plain(QString text) {
    for (auto& each : text) {
        if (each == QChar::ParagraphSeparator || each == QChar::LineSeparator ||
            each.isNonCharacter()) {
            each = u'\n';
        } else if (each.isSpace()) {
            each = u' ';
        }
    }
    return text;
}

QString textOf(const QString& markdown) {
    QTextDocument document;
    document.setMarkdown(markdown);
    return plain(document.toRawText());
}

QString titleOf(const QString& markdown) {
    return markdown.section(u'\n', 0, 0).mid(2).trimmed();
}

/// What stands around a match in its line, from a word's beginning to a word's end.
QString surroundingsOf(const QString& text, qsizetype position, qsizetype length) {
    const auto lineStart = text.lastIndexOf(u'\n', position) + 1;
    auto lineEnd = text.indexOf(u'\n', position);
    lineEnd = lineEnd < 0 ? text.size() : lineEnd;
    auto start = std::max(lineStart, position - before);
    while (start > lineStart && text[start - 1] != u' ' && position - start < 2 * before) {
        --start;
    }
    auto end = std::min(lineEnd, position + length + behind);
    while (end < lineEnd && text[end] != u' ' && end - position < 2 * behind) {
        ++end;
    }
    return (start > lineStart ? u"…"_s : QString()) + text.sliced(start, end - start).trimmed() +
           (end < lineEnd ? u"…"_s : QString());
}

} // namespace

Guide::Guide() {
    //: The folder of docs/guide that is in this language; as it is where there is none.
    const auto language = tr("en");
    static const QRegularExpression entry(u"\\]\\(en/([a-z-]+)\\.md\\)"_s);
    const auto list = contentOf(u":/guide/README.md"_s);
    for (const auto& each : entry.globalMatch(list)) {
        const auto name = each.captured(1);
        auto path = u":/guide/%1/%2.md"_s.arg(language, name);
        if (!QFile::exists(path)) {
            path = u":/guide/en/%1.md"_s.arg(name);
        }
        const auto markdown = contentOf(path);
        _chapters.append({.name = name,
                          .source = QUrl(u"qrc"_s + path),
                          .title = titleOf(markdown),
                          .text = textOf(markdown)});
    }
}

qsizetype Guide::indexOf(const QString& name) const {
    const auto found = std::ranges::find(_chapters, name, &Chapter::name);
    return found == _chapters.end() ? -1 : found - _chapters.begin();
}

qsizetype Guide::indexOf(const QUrl& source) const {
    const auto found =
        std::ranges::find(_chapters, source.adjusted(QUrl::RemoveFragment), &Chapter::source);
    return found == _chapters.end() ? -1 : found - _chapters.begin();
}

QList<Guide::Match> Guide::find(const QString& text) const {
    QList<Match> matches;
    const auto wanted = plain(text).simplified();
    if (wanted.isEmpty()) {
        return matches;
    }
    for (qsizetype index = 0; index < _chapters.size(); ++index) {
        const auto& chapter = _chapters[index].text;
        for (auto at = chapter.indexOf(wanted, 0, Qt::CaseInsensitive);
             at >= 0 && matches.size() < mostMatches;
             at = chapter.indexOf(wanted, at + wanted.size(), Qt::CaseInsensitive)) {
            matches.append({.chapter = index,
                            .position = at,
                            .length = wanted.size(),
                            .surroundings = surroundingsOf(chapter, at, wanted.size())});
        }
    }
    return matches;
}
