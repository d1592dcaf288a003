#pragma once

#include <QHash>
#include <QString>
#include <QVariant>

/// User-information key of the message shown to the operator.
inline constexpr QLatin1StringView NSLocalizedDescriptionKey{"NSLocalizedDescription"};
/// User-information key of the informative text below the message.
inline constexpr QLatin1StringView NSLocalizedRecoverySuggestionErrorKey{
    "NSLocalizedRecoverySuggestion"};
/// User-information key of the path that an error is about.
inline constexpr QLatin1StringView NSFilePathErrorKey{"NSFilePath"};
/// Domain of errors whose code is an errno.
inline constexpr QLatin1StringView NSPOSIXErrorDomain{"NSPOSIXErrorDomain"};

/// What went wrong, for a caller's error slot and for the operator. A default-made one says
/// nothing.
struct Error {
    QString domain;
    int code = 0;
    QHash<QString, QVariant> userInfo;

    /// An error of the application itself: its domain, code 1, a message and an informative text.
    [[nodiscard]] static Error ofApplication(const QString& message, const QString& suggestion);

    /// The error that `number`, an errno, stands for, about the file at `path`.
    [[nodiscard]] static Error ofPosix(int number, const QString& path);

    [[nodiscard]] QString localizedDescription() const;
    [[nodiscard]] QString localizedRecoverySuggestion() const;
};
