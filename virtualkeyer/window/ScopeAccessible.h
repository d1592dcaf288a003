#pragma once

#include <QAccessibleWidget>

namespace virtualkeyer {

class ScopeView;

/// A scope as an assistive tool sees it: what the cursors measure is its description, and the time
/// from the one to the other, in milliseconds, its value.
class ScopeAccessible final : public QAccessibleWidget, public QAccessibleValueInterface {
  public:
    explicit ScopeAccessible(ScopeView& view);

    /// Has every scope seen so. As often as one likes.
    static void install();
    [[nodiscard]] static double valueOf(const ScopeView& view);

    [[nodiscard]] void* interface_cast(QAccessible::InterfaceType type) override;
    [[nodiscard]] QString text(QAccessible::Text kind) const override;

    [[nodiscard]] QVariant currentValue() const override;
    /// Moves the second cursor, which is set from the first on.
    void setCurrentValue(const QVariant& value) override;
    [[nodiscard]] QVariant maximumValue() const override;
    [[nodiscard]] QVariant minimumValue() const override { return 0.0; }
    [[nodiscard]] QVariant minimumStepSize() const override { return 0.1; }

  private:
    ScopeView& _view;
};

} // namespace virtualkeyer
