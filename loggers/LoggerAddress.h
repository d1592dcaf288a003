#pragma once

#include <QHostAddress>

/// Where a logger sends from, and has its replies sent to.
struct LoggerAddress {
    QHostAddress host;
    quint16 port = 0;

    [[nodiscard]] friend bool operator==(const LoggerAddress& one, const LoggerAddress& other) {
        return one.port == other.port && one.host == other.host;
    }
};
