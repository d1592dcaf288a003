#pragma once

#include <QList>
#include <QString>

/// One thing that was found about a port, in plain words.
struct PortFinding {
    enum class Kind {
        /// As it should be.
        Good,
        /// May be in the way one day.
        Hint,
        /// In the way.
        Problem
    };

    Kind kind;
    QString what;
    /// What to do about it; null for nothing.
    QString advice = {};
    /// What to type in a terminal for that; null for nothing.
    QString command = {};

    /// What kind of finding it is, in a word.
    [[nodiscard]] QString label() const;
};

/// What was found about one port, or about the machine.
struct PortEntry {
    QString title;
    QList<PortFinding> findings = {};
    /// The port, where a keyer on it may be asked: it is there, free, and may be opened.
    QString portToAsk = {};

    [[nodiscard]] bool hasProblem() const;
};

/// What is in the way of each port, and what to do about it.
struct PortReport {
    QList<PortEntry> entries;

    /// Whether there is a port with nothing in its way.
    [[nodiscard]] bool hasUsablePort() const;

    /// All of it as lines to be printed or copied, and without what names the user.
    [[nodiscard]] QString asText() const;
    /// The same for a user with that home directory and login name.
    [[nodiscard]] QString asText(const QString& home, const QString& login) const;
};
