#pragma once

#include <QByteArray>

#include <optional>

/// What a settings file holds, as plain text.
namespace SettingsText {

/// The text without the lines in which a quotation mark is not closed; nothing when there is no
/// such line. The reader of the file would take all that follows the mark for its value.
[[nodiscard]] std::optional<QByteArray> withoutOpenQuotes(const QByteArray& text);

} // namespace SettingsText
