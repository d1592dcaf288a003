#pragma once

#include <QAccessibleWidget>
#include <QCoreApplication>

class KeyboardView;

/// The keyboard view as a screen reader and other assistive programs see it.
///
/// The usual one for such a widget would show the ends of its paragraphs as line ends, where the
/// text has spaces, and take line ends. This one also tells, when it is asked, how much waits to
/// be sent; it never announces that, for it changes with every character.
class KeyboardViewAccessible final : public QAccessibleWidget,
                                     public QAccessibleTextInterface,
                                     public QAccessibleEditableTextInterface {
    Q_DECLARE_TR_FUNCTIONS(KeyboardView)
  public:
    explicit KeyboardViewAccessible(KeyboardView& view);

    /// Makes new keyboard views known to assistive programs in this way.
    static void install();

    [[nodiscard]] void* interface_cast(QAccessible::InterfaceType type) override;
    [[nodiscard]] QAccessible::State state() const override;
    [[nodiscard]] QString text(QAccessible::Text kind) const override;
    void setText(QAccessible::Text kind, const QString& text) override;

    void selection(int index, int* start, int* end) const override;
    [[nodiscard]] int selectionCount() const override;
    void addSelection(int start, int end) override;
    void removeSelection(int index) override;
    void setSelection(int index, int start, int end) override;
    [[nodiscard]] int cursorPosition() const override;
    void setCursorPosition(int position) override;
    [[nodiscard]] QString text(int start, int end) const override;
    [[nodiscard]] int characterCount() const override;
    [[nodiscard]] QRect characterRect(int offset) const override;
    [[nodiscard]] int offsetAtPoint(const QPoint& point) const override;
    void scrollToSubstring(int start, int end) override;
    /// The view has one format throughout.
    [[nodiscard]] QString attributes(int offset, int* start, int* end) const override;

    void deleteText(int start, int end) override;
    void insertText(int offset, const QString& text) override;
    void replaceText(int start, int end, const QString& text) override;

  private:
    void select(int start, int end);
    [[nodiscard]] int bounded(int position) const;

    KeyboardView& _view;
};
