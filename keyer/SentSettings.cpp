#include "keyer/SentSettings.h"

#include "keyer/KeyerCommand.h"

void SentSettings::note(const QByteArray& command) {
    if (command.isEmpty() || !KeyerCommand::isSetting(command)) {
        return;
    }
    _commands.removeIf([&](const QByteArray& each) { return each.front() == command.front(); });
    _commands.append(command);
}
