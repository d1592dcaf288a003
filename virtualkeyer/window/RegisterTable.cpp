#include "virtualkeyer/window/RegisterTable.h"

#include "virtualkeyer/window/RegisterWords.h"

#include <QHeaderView>

namespace virtualkeyer {

RegisterTable::RegisterTable(QWidget* parent) : QTableWidget(parent) {
    setAccessibleName(tr("Registers"));
    setColumnCount(2);
    setHorizontalHeaderLabels({tr("Register"), tr("Value")});
    horizontalHeader()->setStretchLastSection(true);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    setEditTriggers(NoEditTriggers);
    setSelectionBehavior(SelectRows);
    // Tab goes on to the next control; the rows are for the arrows.
    setTabKeyNavigation(false);
    show(Registers());
    resizeColumnToContents(0);
}

void RegisterTable::show(const Registers& registers) {
    if (_shown == registers) {
        return;
    }
    _shown = registers;
    const auto words = RegisterWords::of(registers);
    setRowCount(static_cast<int>(words.size()));
    for (int row = 0; row < rowCount(); ++row) {
        const auto& [name, value] = words[static_cast<std::size_t>(row)];
        if (item(row, 0) == nullptr) {
            setItem(row, 0, new QTableWidgetItem(name));
            setItem(row, 1, new QTableWidgetItem(value));
        } else if (item(row, 1)->text() != value) {
            item(row, 1)->setText(value);
        }
    }
}

} // namespace virtualkeyer
