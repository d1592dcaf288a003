#include "app/window/SentTable.h"

#include "record/RunText.h"

#include <QHeaderView>

using namespace Qt::StringLiterals;

SentTable::SentTable(QWidget* parent) : QTableView(parent) {
    setSelectionBehavior(SelectRows);
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false);
    setAlternatingRowColors(true);
    setShowGrid(false);
    setWordWrap(false);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() * 3 / 2);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
}

void SentTable::keyboardSearch(const QString& text) {
    Q_EMIT typed(text);
}
