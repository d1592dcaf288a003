#include "platform/Log.h"

#include "platform/VisibleText.h"

#include <QDebug>

void logLine(const QString& line) {
    qInfo().noquote().nospace() << visibleText(line);
}
