#pragma once

#include <QFrame>

class QLabel;
class QToolButton;

/// A strip across the window that says what has happened while nobody may have looked. It stays
/// until the operator closes it; what is said next takes its place. A screen reader announces it as
/// an alert.
class NoticeStrip final : public QFrame {
    Q_OBJECT
  public:
    explicit NoticeStrip(QWidget* parent = nullptr);

    void say(const QString& text);

  Q_SIGNALS:
    /// It was closed by the keyboard, which needs another place now.
    void hasGivenUpFocus();

  private:
    void putAway();

    QLabel* _label;
    QToolButton* _closeButton;
};
