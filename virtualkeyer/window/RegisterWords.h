#pragma once

#include "virtualkeyer/core/Registers.h"

#include <QCoreApplication>
#include <QString>

#include <utility>
#include <vector>

namespace virtualkeyer {

/// What the keyer's registers mean, in words and with units.
struct RegisterWords {
    Q_DECLARE_TR_FUNCTIONS(RegisterWords)

  public:
    /// A name and a value each, always the same names in the same order.
    [[nodiscard]] static std::vector<std::pair<QString, QString>> of(const Registers& registers);

    /// What `which` decides, in one line.
    [[nodiscard]] static QString of(const Registers& registers, Register which);
    /// All of them, in one line.
    [[nodiscard]] static QString line(const Registers& registers);
};

} // namespace virtualkeyer
