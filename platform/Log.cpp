#include "platform/Log.h"

#include <QDebug>

void logLine(const QString& line) {
    qInfo().noquote().nospace() << line;
}
