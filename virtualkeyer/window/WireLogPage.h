#pragma once

#include "virtualkeyer/window/WireLog.h"
#include "virtualkeyer/window/WireLogFilter.h"

#include <QTableView>
#include <QWidget>

namespace virtualkeyer {

class WireTap;

/// The log of the line, with what it is filtered by, and saved to a file.
class WireLogPage : public QWidget {
    Q_OBJECT
  public:
    /// `tap` must outlive the page.
    explicit WireLogPage(WireTap& tap, QWidget* parent = nullptr);

  private:
    [[nodiscard]] QLayout* makeTools();
    void makeTable();
    void take();
    void save();

    WireTap& _tap;
    WireLog _log;
    WireLogFilter _filter;
    QTableView* _table;
};

} // namespace virtualkeyer
