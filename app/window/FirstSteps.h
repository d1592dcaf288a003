#pragma once

#include <QFrame>

class QGridLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class WinKeyerUsb;

/// Leads a new operator from the first start to the first message: a keyer, one's own call sign,
/// F1. A part of the window that takes no focus by itself, and goes when it is told to.
class FirstSteps final : public QFrame {
    Q_OBJECT
  public:
    explicit FirstSteps(QWidget* parent = nullptr);

    /// Follows `engine`, which must outlive it.
    void setEngine(const WinKeyerUsb& engine);
    /// Whether a keyer made of software can be started here.
    void setHasVirtualKeyer(bool has);

  Q_SIGNALS:
    /// The operator wants to choose a port.
    void portRequested();
    /// The operator wants to know why a port does not work.
    void portCheckRequested();
    /// The operator has no keyer at hand.
    void virtualKeyerRequested();
    /// It was closed.
    void done();

  private:
    void addSteps();
    void addButtons();
    void addStep(int number, QWidget& what, QWidget* control);
    QPushButton* makeButton(const QString& text, const QString& name);
    void markStep(int number, bool isDone);
    void storeCall(const QString& call);
    void showCall();

    QGridLayout* _grid;
    QLabel* _keyerLabel = nullptr;
    QLineEdit* _callField = nullptr;
    QPushButton* _virtualKeyerButton = nullptr;
};
