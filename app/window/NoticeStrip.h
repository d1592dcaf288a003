#pragma once

#include <QFrame>

class QLabel;
class QPushButton;
class QToolButton;

/// A strip across the window that says what has happened while nobody may have looked. It stays
/// until the operator closes it; what is said next takes its place. It may offer to do something
/// about it. A screen reader announces it as an alert.
class NoticeStrip final : public QFrame {
    Q_OBJECT
    Q_PROPERTY(QString offer READ offer WRITE setOffer)

  public:
    explicit NoticeStrip(QWidget* parent = nullptr);

    /// The label of a button beside what is said; empty, as it is at first, for none.
    [[nodiscard]] QString offer() const;
    void setOffer(const QString& offer);

    void say(const QString& text);
    void putAway();

  Q_SIGNALS:
    /// The button of the offer was pressed, and the strip has gone.
    void offerTaken();
    /// It was closed by the keyboard, which needs another place now.
    void hasGivenUpFocus();

  private:
    QLabel* _label;
    QPushButton* _offerButton = nullptr;
    QToolButton* _closeButton;
};
