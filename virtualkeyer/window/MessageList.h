#pragma once

#include "virtualkeyer/core/Memory.h"

#include <QLabel>
#include <QPushButton>
#include <QWidget>

#include <array>
#include <optional>

namespace virtualkeyer {

/// The six messages of the keyer's memory, each with a button that has it keyed.
class MessageList : public QWidget {
    Q_OBJECT
  public:
    explicit MessageList(QWidget* parent = nullptr);

    void show(const Memory& memory);

  Q_SIGNALS:
    /// Message 1 to 6.
    void played(int number);

  private:
    struct Row {
        QPushButton* button;
        QLabel* text;
    };

    std::array<Row, 6> _rows{};
    std::optional<Memory> _shown;
};

} // namespace virtualkeyer
