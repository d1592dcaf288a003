#include "app/window/PortEntryView.h"

#include <QClipboard>
#include <QFontDatabase>
#include <QGridLayout>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStyle>

using namespace Qt::StringLiterals;

namespace {

constexpr int textColumn = 1;
constexpr int buttonColumn = 2;

QStyle::StandardPixmap iconOf(PortFinding::Kind kind) {
    switch (kind) {
    case PortFinding::Kind::Good:
        return QStyle::SP_DialogApplyButton;
    case PortFinding::Kind::Hint:
        return QStyle::SP_MessageBoxInformation;
    case PortFinding::Kind::Problem:
        return QStyle::SP_MessageBoxWarning;
    }
    return QStyle::SP_CustomBase;
}

QLabel* makeText(const QString& text) {
    auto* label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    label->setWordWrap(true);
    return label;
}

} // namespace

PortEntryView::PortEntryView(const PortEntry& entry, QWidget* parent)
    : QFrame(parent), _grid(new QGridLayout(this)) {
    setFrameStyle(QFrame::StyledPanel);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::Base);
    setAccessibleName(entry.title);
    _grid->setColumnStretch(textColumn, 1);
    auto* title = makeText(entry.title);
    auto font = title->font();
    font.setBold(true);
    title->setFont(font);
    _grid->addWidget(title, 0, 0, 1, buttonColumn + 1);
    for (const auto& finding : entry.findings) {
        addFinding(finding);
    }
    if (!entry.portToAsk.isNull()) {
        addAskButton();
    }
}

void PortEntryView::addFinding(const PortFinding& finding) {
    const int row = _grid->rowCount();
    const int size = style()->pixelMetric(QStyle::PM_SmallIconSize);
    auto* icon = new QLabel;
    icon->setPixmap(style()->standardIcon(iconOf(finding.kind)).pixmap(size));
    icon->setAccessibleName(finding.label());
    _grid->addWidget(icon, row, 0, Qt::AlignTop);
    auto* what = makeText(finding.what);
    what->setAccessibleName(tr("%1: %2").arg(finding.label(), finding.what));
    _grid->addWidget(what, row, textColumn, 1, 2);
    if (!finding.advice.isNull()) {
        _grid->addWidget(makeText(finding.advice), row + 1, textColumn, 1, 2);
    }
    if (!finding.command.isNull()) {
        addCommand(finding.command);
    }
}

void PortEntryView::addCommand(const QString& command) {
    const int row = _grid->rowCount();
    auto* line = new QLineEdit(command);
    line->setReadOnly(true);
    line->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    line->setAccessibleName(tr("Command"));
    line->setCursorPosition(0);
    _grid->addWidget(line, row, textColumn);
    auto* button = new QPushButton(tr("Copy"));
    button->setAccessibleName(tr("Copy command"));
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this,
            [command] { QGuiApplication::clipboard()->setText(command); });
    _grid->addWidget(button, row, buttonColumn);
}

void PortEntryView::addAskButton() {
    _askButton = new QPushButton(tr("Ask the keyer"));
    _askButton->setObjectName(u"askButton"_s);
    _askButton->setAutoDefault(false);
    _askButton->setToolTip(tr("Opens the port for a moment, and has a keyer send a character back. "
                              "Nothing is keyed by it; but opening raises the lines DTR and RTS, "
                              "which key a transmitter that is wired to them."));
    connect(_askButton, &QPushButton::clicked, this, [this] {
        _askButton->setEnabled(false);
        _askButton->setText(tr("Asking…"));
        Q_EMIT askRequested();
    });
    _grid->addWidget(_askButton, _grid->rowCount(), textColumn, 1, 2, Qt::AlignLeft);
}

void PortEntryView::showAnswer(const PortFinding& answer) {
    const bool hadFocus = _askButton->hasFocus();
    delete _askButton;
    _askButton = nullptr;
    addFinding(answer);
    if (hadFocus) {
        window()->setFocus();
    }
}
