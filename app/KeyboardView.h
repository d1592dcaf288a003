#pragma once

#include <QPlainTextEdit>

class WinKeyerUsb;

/// The text that is being sent, for the operator to type into. Bound both ways to the keyer
/// engine's text: what is typed is there before the engine filters it, and what the engine makes
/// of it, or adds, shows here with the caret left in its place.
class KeyboardView final : public QPlainTextEdit {
    Q_OBJECT
  public:
    explicit KeyboardView(QWidget* parent = nullptr);

    /// Binds the view to `engine`, which must outlive it.
    void setEngine(WinKeyerUsb& engine);

  protected:
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

  private:
    void takeOperatorsText();
    void showEnginesText();

    WinKeyerUsb* _engine = nullptr;
    bool _isShowingEnginesText = false;
};
