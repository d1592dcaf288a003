#include "virtualkeyer/window/WireLogPage.h"

#include "virtualkeyer/window/FileSaving.h"
#include "virtualkeyer/window/WireTap.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QScrollBar>
#include <QToolButton>
#include <QVBoxLayout>

namespace virtualkeyer {

WireLogPage::WireLogPage(WireTap& tap, QWidget* parent)
    : QWidget(parent), _tap(tap), _table(new QTableView) {
    _filter.setSourceModel(&_log);
    makeTable();
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(makeTools());
    layout->addWidget(_table, 1);
    connect(&tap, &WireTap::heard, this, &WireLogPage::take);
}

QLayout* WireLogPage::makeTools() {
    auto* who = new QComboBox;
    who->setAccessibleName(tr("Said by"));
    who->addItem(tr("Host and keyer"));
    who->addItem(tr("The host alone"), true);
    who->addItem(tr("The keyer alone"), false);
    connect(who, &QComboBox::currentIndexChanged, this, [this, who] {
        const QVariant isFromHost = who->currentData();
        _filter.setFromHost(isFromHost.isValid() ? std::optional{isFromHost.toBool()}
                                                 : std::nullopt);
    });
    auto* text = new QLineEdit;
    text->setAccessibleName(tr("Filter of the log"));
    text->setPlaceholderText(tr("Words or bytes"));
    text->setClearButtonEnabled(true);
    connect(text, &QLineEdit::textChanged, &_filter, &WireLogFilter::setText);
    auto* empty = new QToolButton;
    empty->setText(tr("Empty"));
    empty->setAccessibleName(tr("Empty the log"));
    connect(empty, &QToolButton::clicked, &_log, &WireLog::clear);
    auto* save = new QToolButton;
    save->setText(tr("Save…"));
    save->setAccessibleName(tr("Save the log"));
    save->setToolTip(tr("Saves what is shown, with all its bytes."));
    // Later, so that whoever presses it by a screen reader does not wait for the file's name.
    connect(save, &QToolButton::clicked, this, &WireLogPage::save, Qt::QueuedConnection);
    auto* tools = new QHBoxLayout;
    tools->addWidget(who);
    tools->addWidget(text, 1);
    tools->addWidget(empty);
    tools->addWidget(save);
    return tools;
}

void WireLogPage::makeTable() {
    _table->setModel(&_filter);
    _table->setAccessibleName(tr("Log of the line"));
    _table->setSelectionBehavior(QAbstractItemView::SelectRows);
    _table->setWordWrap(false);
    _table->setShowGrid(false);
    // Tab goes on to the next control; the rows are for the arrows.
    _table->setTabKeyNavigation(false);
    _table->verticalHeader()->hide();
    _table->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    _table->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 4);
    auto* header = _table->horizontalHeader();
    header->setSectionResizeMode(WireLog::Words, QHeaderView::Stretch);
    const int letter = fontMetrics().averageCharWidth();
    header->resizeSection(WireLog::When, 11 * letter);
    header->resizeSection(WireLog::Who, 9 * letter);
    header->resizeSection(WireLog::Bytes, 18 * letter);
}

/// What was at the end stays there; who reads further up is not carried off.
void WireLogPage::take() {
    const auto* bar = _table->verticalScrollBar();
    const bool follows = bar->value() == bar->maximum();
    _log.append(_tap.takeLines());
    if (follows) {
        _table->scrollToBottom();
    }
}

void WireLogPage::save() {
    FileSaving::save(this, tr("Save the log"), QStringLiteral("txt"), _filter.toText().toUtf8());
}

} // namespace virtualkeyer
