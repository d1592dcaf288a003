#pragma once

#include "portcheck/PortReport.h"

#include <QFrame>

class QGridLayout;
class QPushButton;

/// What was found about one port: its name, and each finding with what to do, and the command to
/// copy for that.
class PortEntryView final : public QFrame {
    Q_OBJECT
  public:
    explicit PortEntryView(const PortEntry& entry, QWidget* parent = nullptr);

    /// Adds what the keyer answered, in place of the button that asks it.
    void showAnswer(const PortFinding& answer);

  Q_SIGNALS:
    /// The operator wants the keyer on the port to be asked.
    void askRequested();

  private:
    void addFinding(const PortFinding& finding);
    void addCommand(const QString& command);
    void addAskButton();

    QGridLayout* _grid;
    QPushButton* _askButton = nullptr;
};
