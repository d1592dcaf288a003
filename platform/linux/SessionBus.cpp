#include "platform/linux/SessionBus.h"

#include "platform/Log.h"

using namespace Qt::StringLiterals;

/// The library tells of it by a signal of its own making, which no bus has sent.
SessionBus::SessionBus(const QDBusConnection& bus) {
    QDBusConnection(bus).connect({}, u"/org/freedesktop/DBus/Local"_s,
                                 u"org.freedesktop.DBus.Local"_s, u"Disconnected"_s, this,
                                 SLOT(noteEnd()));
}

void SessionBus::noteEnd() {
    logLine(u"The bus of the session has gone"_s);
    Q_EMIT hasGone();
}
