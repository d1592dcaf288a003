#pragma once

#include "virtualkeyer/core/Registers.h"

#include <QTableWidget>

#include <optional>

namespace virtualkeyer {

/// The keyer's registers in words.
class RegisterTable : public QTableWidget {
    Q_OBJECT
  public:
    explicit RegisterTable(QWidget* parent = nullptr);

    void show(const Registers& registers);

  private:
    std::optional<Registers> _shown;
};

} // namespace virtualkeyer
