#include "app/window/PortCheckWindow.h"

#include "app/window/PortEntryView.h"

#include <QClipboard>
#include <QDialogButtonBox>
#include <QGuiApplication>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QVBoxLayout>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize preferredSize(640, 460);
constexpr int scrollBarGap = 6;

} // namespace

PortCheckWindow::PortCheckWindow(Actions actions, QWidget* parent)
    : QDialog(parent), _actions(std::move(actions)), _area(new QScrollArea) {
    setWindowTitle(tr("Check Ports"));
    auto* layout = new QVBoxLayout(this);
    auto* introduction =
        new QLabel(tr("What is in the way of each port, and what to do about it. Looking opens no "
                      "port. Commands are for a terminal."));
    introduction->setWordWrap(true);
    layout->addWidget(introduction);
    _area->setWidgetResizable(true);
    _area->setAccessibleName(tr("Ports"));
    _area->setFrameShape(QFrame::NoFrame);
    layout->addWidget(_area, 1);
    addButtons(*layout);
    resize(preferredSize.boundedTo(screen()->availableSize()));
}

void PortCheckWindow::addButtons(QVBoxLayout& layout) {
    auto* box = new QDialogButtonBox(QDialogButtonBox::Close);
    auto* again = box->addButton(tr("Check &again"), QDialogButtonBox::ActionRole);
    again->setObjectName(u"checkAgainButton"_s);
    auto* copy = box->addButton(tr("Copy &report"), QDialogButtonBox::ActionRole);
    copy->setObjectName(u"copyReportButton"_s);
    connect(again, &QPushButton::clicked, this, &PortCheckWindow::check);
    connect(copy, &QPushButton::clicked, this,
            [this] { QGuiApplication::clipboard()->setText(_report.asText()); });
    connect(box, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout.addWidget(box);
    again->setDefault(true);
}

void PortCheckWindow::check() {
    _report = _actions.look();
    showReport();
}

void PortCheckWindow::showReport() {
    _entries = new QWidget;
    auto* layout = new QVBoxLayout(_entries);
    layout->setContentsMargins(0, 0, scrollBarGap, 0);
    for (qsizetype index = 0; index < _report.entries.size(); ++index) {
        auto* view = new PortEntryView(_report.entries[index]);
        connect(view, &PortEntryView::askRequested, this,
                [this, view, index] { ask(*view, index); });
        layout->addWidget(view);
    }
    layout->addStretch();
    _area->setWidget(_entries); // which ends the former one
}

/// The view ends with the next look, and the answer with it.
void PortCheckWindow::ask(PortEntryView& view, qsizetype index) {
    _actions.ask(_report.entries[index].portToAsk, &view,
                 [this, &view, index](const PortFinding& answer) {
                     _report.entries[index].findings.append(answer);
                     view.showAnswer(answer);
                 });
}
