#pragma once

#include <QFrame>

class QAbstractButton;
class QLabel;
class QPushButton;

/// A strip across the window: a text that is broken into lines, and buttons beside it. Not there at
/// first.
class Strip : public QFrame {
    Q_OBJECT
  public:
    explicit Strip(QWidget* parent = nullptr);

  protected:
    /// Also what a screen reader calls the strip.
    void setText(const QString& text);
    [[nodiscard]] QLabel& label() const { return *_label; }
    /// Puts a button of that label and name behind the text, ahead of all others.
    [[nodiscard]] QPushButton& addButton(const QString& text, const QString& name);
    /// Puts a button at the end. What is typed after a click on it is text for the keyer: it takes
    /// the keyboard by Tab alone, as do those of addButton().
    void append(QAbstractButton& button);

  private:
    QLabel* _label;
};
