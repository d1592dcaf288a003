#pragma once

#include <QString>

#include <optional>
#include <vector>

namespace virtualkeyer {

/// The words of one line of a script, read from its beginning. What stands between quotation marks
/// is one word; within it a backslash takes the next character as it is. A word that begins with
/// "#" ends the line.
class ScriptWords {
  public:
    struct Word {
        QString text;
        bool isQuoted = false;
    };

    explicit ScriptWords(const QString& line);

    /// False when a quotation mark has no partner.
    [[nodiscard]] bool isComplete() const { return _isComplete; }
    [[nodiscard]] bool isAtEnd() const { return _at == _words.size(); }

    /// The next word; nothing at the end.
    std::optional<Word> take();
    /// Takes the next word if it is this one, without quotation marks.
    bool takeIf(QStringView text);

  private:
    std::vector<Word> _words;
    std::size_t _at = 0;
    bool _isComplete = true;
};

} // namespace virtualkeyer
