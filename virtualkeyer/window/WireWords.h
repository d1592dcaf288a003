#pragma once

#include "virtualkeyer/core/WireLine.h"

#include <QCoreApplication>
#include <QString>

namespace virtualkeyer {

/// What host and keyer say to each other, in words and with units.
struct WireWords {
    Q_DECLARE_TR_FUNCTIONS(WireWords)

  public:
    /// Such as "Set PTT lead/tail 0, 100 ms", "echo C" or "status: busy".
    [[nodiscard]] static QString of(const WireLine& line);

    /// The line's bytes in hexadecimal, such as "04 00 0A".
    [[nodiscard]] static QString bytes(const WireLine& line);
};

} // namespace virtualkeyer
