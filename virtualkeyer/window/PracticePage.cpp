#include "virtualkeyer/window/PracticePage.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace virtualkeyer {

namespace {

/// A text of more is no exercise.
constexpr int longestExercise = 500;

using Mark = PracticeScore::Mark;

enum Column { Element, Count, Ideal, Mean, Spread, ColumnCount };

/// As high as the bin is full, compared with the fullest. An empty one is a bar, too, since all of
/// those are of one width.
QString bars(const std::vector<std::size_t>& bins) {
    constexpr std::size_t highest = 7;
    constexpr char16_t lowestBar = u'▁';
    const std::size_t most = std::max<std::size_t>(1, std::ranges::max(bins));
    QString text;
    for (const std::size_t count : bins) {
        const std::size_t height = (count * highest + most - 1) / most;
        text += QChar(static_cast<char16_t>(lowestBar + height));
    }
    return text;
}

} // namespace

PracticePage::PracticePage(ScopeTap& tap, QWidget* parent)
    : QWidget(parent),
      _tap(tap),
      _text(new QLineEdit(u"PARIS PARIS"_s)),
      _result(new QLabel),
      _count(new QLabel),
      _lengths(new QTableWidget(PracticeScore::kindCount, ColumnCount)) {
    _text->setMaxLength(longestExercise);
    _text->setAccessibleName(tr("Text to be sent"));
    _text->setToolTip(tr("Letters that work the paddle are letters while this has the keyboard; "
                         "Enter begins, and hands them back."));
    auto* again = new QToolButton;
    again->setText(tr("Begin anew"));
    _result->setTextFormat(Qt::RichText);
    _result->setWordWrap(true);
    _result->setToolTip(tr("X for A: X was sent instead of A. No A: A was left out. And X: X was "
                           "one too many."));
    makeTable();
    auto* top = new QHBoxLayout;
    top->addWidget(_text, 1);
    top->addWidget(again);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(top);
    layout->addWidget(_result);
    layout->addWidget(_count);
    layout->addWidget(_lengths, 1);
    _letterEnd.setSingleShot(true);
    connect(_text, &QLineEdit::returnPressed, again, [again] { again->setFocus(); });
    connect(_text, &QLineEdit::returnPressed, this, &PracticePage::start);
    connect(again, &QToolButton::clicked, this, &PracticePage::start);
    connect(&_letterEnd, &QTimer::timeout, this, &PracticePage::take);
    connect(&tap, &ScopeTap::moved, this, &PracticePage::take);
    start();
}

void PracticePage::makeTable() {
    _lengths->setAccessibleName(tr("Lengths in dits"));
    _lengths->setHorizontalHeaderLabels(
        {tr("Element"), tr("Sent"), tr("Ideal"), tr("Mean"), tr("From half to 1.5 of the ideal")});
    _lengths->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    _lengths->horizontalHeader()->setStretchLastSection(true);
    _lengths->verticalHeader()->hide();
    _lengths->verticalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    _lengths->setEditTriggers(QTableWidget::NoEditTriggers);
    _lengths->setSelectionBehavior(QTableWidget::SelectRows);
    // Tab goes on to the next control; the rows are for the arrows.
    _lengths->setTabKeyNavigation(false);
    const QStringList names{tr("Dit"), tr("Dah"), tr("Space"), tr("Letter space"),
                            tr("Word space")};
    for (int row = 0; row < _lengths->rowCount(); ++row) {
        for (int column = 0; column < ColumnCount; ++column) {
            _lengths->setItem(row, column, new QTableWidgetItem);
        }
        _lengths->item(row, Element)->setText(names[row]);
    }
}

void PracticePage::start() {
    static_cast<void>(_tap.takeEdges());
    _practice.start(_text->text().toStdString());
    refresh();
}

void PracticePage::take() {
    for (const ScopeEdge& edge : _tap.takeEdges()) {
        if (edge.line == ScopeEdge::Line::Key) {
            _practice.key(edge.isOn, edge.timing, edge.at);
        }
    }
    const Time now = _tap.now();
    _practice.advance(now);
    if (const auto due = _practice.nextEvent()) {
        _letterEnd.start(
            std::chrono::ceil<std::chrono::milliseconds>(std::max(Time{0}, *due - now)));
    }
    if (isVisible()) {
        refresh();
    }
}

void PracticePage::showEvent(QShowEvent* event) {
    refresh();
    QWidget::showEvent(event);
}

void PracticePage::refresh() {
    _result->setText(marked());
    const auto marks = _practice.marks();
    const auto right = std::ranges::count(marks, Mark::Kind::Right, &Mark::kind);
    _count->setText(tr("Right: %1 of %2").arg(right).arg(marks.size()));
    showLengths();
}

/// In words and not by colours alone.
QString PracticePage::marked() const {
    QString text;
    const auto shown = [](char character) {
        return character == ' ' ? tr("space") : QString(QLatin1Char(character)).toHtmlEscaped();
    };
    for (const Mark& mark : _practice.marks()) {
        switch (mark.kind) {
        case Mark::Kind::Right:
            text += mark.sent == ' ' ? u" "_s : shown(mark.sent);
            break;
        case Mark::Kind::Wrong:
            text +=
                u" <b>"_s + tr("%1 for %2").arg(shown(mark.sent), shown(mark.wanted)) + u"</b> "_s;
            break;
        case Mark::Kind::Missing:
            text += u" <b>"_s + tr("no %1").arg(shown(mark.wanted)) + u"</b> "_s;
            break;
        case Mark::Kind::TooMany:
            text += u" <b>"_s + tr("and %1").arg(shown(mark.sent)) + u"</b> "_s;
            break;
        }
    }
    return text.isEmpty() ? tr("Send the text with the paddle.") : text;
}

void PracticePage::showLengths() {
    for (int row = 0; row < _lengths->rowCount(); ++row) {
        const auto& lengths = _practice.score().lengths(static_cast<TraceElement::Kind>(row));
        _lengths->item(row, Count)->setText(QString::number(lengths.count));
        _lengths->item(row, Ideal)->setText(QString::number(lengths.ideal));
        _lengths->item(row, Mean)->setText(
            lengths.count == 0 ? QString() : QString::number(lengths.mean, 'f', 2));
        _lengths->item(row, Spread)->setText(bars(lengths.bins));
    }
}

} // namespace virtualkeyer
