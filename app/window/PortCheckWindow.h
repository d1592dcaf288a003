#pragma once

#include "portcheck/PortReport.h"

#include <QDialog>

#include <functional>

class PortEntryView;
class QVBoxLayout;

/// What is in the way of each serial port, in plain words, in a window that stays open beside the
/// work. It looks when it is opened and when it is told to, and asks a keyer only when it is told
/// to. Escape closes it.
class PortCheckWindow final : public QDialog {
    Q_OBJECT
  public:
    /// What the window lets the operator do; both are called on the main thread.
    struct Actions {
        /// Looks at all ports.
        std::function<PortReport()> look;
        /// Asks the keyer on a port, and calls back with what came of it, unless `context` has
        /// ended by then.
        std::function<void(const QString& port, QObject* context,
                           const std::function<void(const PortFinding&)>& then)>
            ask;
    };

    PortCheckWindow(Actions actions, QWidget* parent);

    /// Looks anew, and shows what is found.
    void check();

  private:
    void addButtons(QVBoxLayout& layout);
    void showReport();
    void ask(PortEntryView& view, qsizetype index);

    Actions _actions;
    PortReport _report;
    QWidget* _entries = nullptr;
    class QScrollArea* _area;
};
