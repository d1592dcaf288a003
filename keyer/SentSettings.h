#pragma once

#include <QByteArray>
#include <QList>

/// The commands that have set something in the keyer since its link came up, so that they can be
/// sent once more: of each command the last one, in the order in which these were sent. What
/// belongs to the text, or acts once, is none of them.
class SentSettings {
  public:
    /// Takes down a command that is being sent, if it is one of these.
    void note(const QByteArray& command);
    void clear() { _commands.clear(); }

    [[nodiscard]] const QList<QByteArray>& commands() const { return _commands; }

  private:
    QList<QByteArray> _commands;
};
