#pragma once

#include "keyer/KeyerMemory.h"

#include <QWidget>

/// A bar that shows how full the keyer's message memory is, a numbered segment for each message,
/// with the same in figures below.
class MemoryGauge final : public QWidget {
    Q_OBJECT
  public:
    explicit MemoryGauge(QWidget* parent = nullptr);

    void setMemory(const KeyerMemory::Layout& memory);
    /// What stands below the bar, such as "54 of 232 bytes used".
    [[nodiscard]] QString text() const;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    [[nodiscard]] QRect bar() const;
    void paintSegments(QPainter& painter) const;

    KeyerMemory::Layout _memory;
};
