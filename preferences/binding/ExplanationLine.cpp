#include "preferences/binding/ExplanationLine.h"

#include "preferences/binding/SettingBinder.h"

#include <QEvent>
#include <QPainter>
#include <QRegularExpression>
#include <QTextDocument>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

/// Enough for what most controls have to tell, in the narrowest pane.
constexpr int lines = 2;

/// Between the rule and the text.
constexpr int gap = 4;

QString explanationOf(const QWidget* widget) {
    if (widget == nullptr) {
        return {};
    }
    QTextDocument toolTip;
    toolTip.setHtml(widget->toolTip());
    // Raw, for the text's own spaces, some of which no line may end at.
    static const QRegularExpression breaks(u"[ \n\\x{2028}\\x{2029}]+"_s);
    return toolTip.toRawText().replace(breaks, u" "_s).trimmed();
}

} // namespace

ExplanationLine::ExplanationLine(QWidget* parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    setContentsMargins(0, gap, 0, 0);
    setAlignment(Qt::AlignLeading | Qt::AlignTop);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Minimum);
}

void ExplanationLine::follow(const SettingBinder& binder) {
    _binder = &binder;
    connect(&binder, &SettingBinder::troubleChanged, this, &ExplanationLine::tell);
}

QSize ExplanationLine::sizeHint() const {
    // Of so many lines, as a label measures them.
    const auto text = QStringList(lines, u"X"_s).join(u'\n');
    return {0,
            fontMetrics().boundingRect(QRect(0, 0, 1000, 1000), Qt::TextWordWrap, text).height() +
                gap};
}

int ExplanationLine::heightForWidth(int width) const {
    return std::max(sizeHint().height(), QLabel::heightForWidth(width));
}

void ExplanationLine::showEvent(QShowEvent* event) {
    QLabel::showEvent(event);
    if (!std::exchange(_isWatching, true)) {
        for (auto* each : parentWidget()->findChildren<QWidget*>()) {
            each->installEventFilter(this);
        }
    }
    auto* focused = window()->focusWidget();
    _focused = parentWidget()->isAncestorOf(focused) ? focused : nullptr;
    tell();
}

void ExplanationLine::paintEvent(QPaintEvent* event) {
    QLabel::paintEvent(event);
    if (!text().isEmpty()) {
        QPainter painter(this);
        painter.setPen(palette().color(QPalette::Mid));
        painter.drawLine(rect().topLeft(), rect().topRight());
    }
}

bool ExplanationLine::eventFilter(QObject* watched, QEvent* event) {
    auto* widget = qobject_cast<QWidget*>(watched);
    switch (event->type()) {
    case QEvent::FocusIn:
        _focused = widget;
        tell();
        break;
    case QEvent::ToolTip:
        if (widget->toolTip().isEmpty()) {
            break; // its parent may have one
        }
        _hovered = widget;
        tell();
        return true;
    case QEvent::Leave:
        if (widget == _hovered) {
            _hovered = nullptr;
            tell();
        }
        break;
    case QEvent::ToolTipChange:
        tell();
        break;
    default:
        break;
    }
    return QLabel::eventFilter(watched, event);
}

void ExplanationLine::tell() {
    const auto* told = _hovered ? _hovered.get() : _focused.get();
    QStringList words{_binder ? _binder->trouble(told) : QString(), explanationOf(told)};
    words.removeAll(QString());
    setText(words.join(u' '));
}
