#include "virtualkeyer/window/ScopeView.h"

#include "virtualkeyer/window/ScopeAccessible.h"
#include "virtualkeyer/window/ScopeWords.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QPainter>

#include <algorithm>

namespace virtualkeyer {

namespace {

/// How long it goes on after the last edge.
constexpr Time afterglow = std::chrono::seconds{2};

} // namespace

ScopeView::ScopeView(QWidget* parent) : QWidget(parent) {
    ScopeAccessible::install();
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setAccessibleName(tr("Scope of key and PTT"));
    setToolTip(tr("Arrows move the first cursor, with Shift the second, with Ctrl from edge to "
                  "edge. + and - zoom, the space bar pauses; Page Up, Page Down, Home and End go "
                  "through the last ten minutes."));
    _told = measurement();
}

QSize ScopeView::sizeHint() const {
    return {30 * fontMetrics().height(), 8 * fontMetrics().height()};
}

QSize ScopeView::minimumSizeHint() const {
    return {10 * fontMetrics().height(), 5 * fontMetrics().height()};
}

void ScopeView::take(const std::vector<ScopeEdge>& edges, Time now) {
    for (const ScopeEdge& edge : edges) {
        if (edge.line == ScopeEdge::Line::Key) {
            _trace.key(edge.isOn, edge.timing, edge.at);
        } else {
            _trace.ptt(edge.isOn, edge.at);
        }
    }
    const bool mayShow = _range.right() + afterglow > present(now);
    showNow(now);
    // What was under way when it was paused has ended.
    if (!edges.empty() && _range.isPaused() && mayShow) {
        update();
    }
}

void ScopeView::showNow(Time now) {
    const Time end = present(now);
    _trace.advance(now);
    const auto pixelOfEnd = [this] { return _range.right() / picture().pixelTime(); };
    const auto before = pixelOfEnd();
    _range.setBounds(std::max(Time{0}, end - KeyTrace::kept), end);
    if (pixelOfEnd() != before) {
        update();
    }
}

bool ScopeView::isActive(Time now) const {
    const auto last = _trace.lastEdge();
    return _trace.downSince() || _trace.onSince() || (last && now < *last + afterglow);
}

/// The time stands still while nothing happens.
Time ScopeView::present(Time now) const {
    if (isActive(now)) {
        return std::max(now, *_trace.lastEdge());
    }
    return _trace.lastEdge() ? *_trace.lastEdge() + afterglow : Time{0};
}

QString ScopeView::measurement() const {
    return ScopeWords::of(_trace, _range);
}

void ScopeView::setPaused(bool isPaused) {
    _range.setPaused(isPaused);
    tell();
}

void ScopeView::zoomIn() {
    _range.zoomIn();
    tell();
}

void ScopeView::zoomOut() {
    _range.zoomOut();
    tell();
}

void ScopeView::moveTo(Time right) {
    _range.moveTo(right);
    tell();
}

void ScopeView::setCursor(int index, Time at) {
    _range.setCursor(index, at);
    tell();
}

void ScopeView::tell() {
    update();
    const QString words = measurement();
    if (words != _told) {
        _told = words;
        QAccessibleEvent described(this, QAccessible::DescriptionChanged);
        QAccessible::updateAccessibility(&described);
        QAccessibleValueChangeEvent measured(this, ScopeAccessible::valueOf(*this));
        QAccessible::updateAccessibility(&measured);
    }
    Q_EMIT chosen();
}

ScopePainter ScopeView::picture() const {
    return {_trace, _range, rect(), palette(), fontMetrics()};
}

void ScopeView::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    picture().paint(painter);
    if (hasFocus()) {
        painter.setPen(palette().color(QPalette::Highlight));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }
}

void ScopeView::keyPressEvent(QKeyEvent* event) {
    if (!takeKey(event->key(), event->modifiers())) {
        QWidget::keyPressEvent(event);
    }
}

bool ScopeView::takeKey(int key, Qt::KeyboardModifiers modifiers) {
    const Time page = _range.span() * 3 / 4;
    switch (key) {
    case Qt::Key_Left:
    case Qt::Key_Right:
        stepCursor(key == Qt::Key_Right, modifiers);
        return true;
    case Qt::Key_PageUp:
        moveTo(_range.right() - page);
        return true;
    case Qt::Key_PageDown:
        moveTo(_range.right() + page);
        return true;
    case Qt::Key_Home:
        _range.moveToOldest();
        tell();
        return true;
    case Qt::Key_End:
        _range.moveToNewest();
        tell();
        return true;
    case Qt::Key_Plus:
    case Qt::Key_Equal:
        zoomIn();
        return true;
    case Qt::Key_Minus:
        zoomOut();
        return true;
    case Qt::Key_Space:
        setPaused(!_range.isPaused());
        return true;
    default:
        return false;
    }
}

void ScopeView::stepCursor(bool isForward, Qt::KeyboardModifiers modifiers) {
    const int index = modifiers.testFlag(Qt::ShiftModifier) ? 1 : 0;
    if (!modifiers.testFlag(Qt::ControlModifier)) {
        const Time step = picture().pixelTime();
        _range.moveCursor(index, isForward ? step : -step);
        return tell();
    }
    const Time from = _range.cursor(index).value_or(isForward ? _range.left() : _range.right());
    if (const auto edge = ScopeWords::nextEdge(_trace, from, isForward)) {
        setCursor(index, *edge);
    }
}

void ScopeView::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        setCursor(0, picture().timeAt(event->position().toPoint().x()));
    }
}

void ScopeView::mouseMoveEvent(QMouseEvent* event) {
    const int x = std::clamp(event->position().toPoint().x(), 0, width() - 1);
    if (event->buttons().testFlag(Qt::LeftButton)) {
        setCursor(1, picture().timeAt(x));
    }
}

void ScopeView::wheelEvent(QWheelEvent* event) {
    constexpr int notch = 120;
    const QPoint angle = event->angleDelta();
    const int turned = angle.y() != 0 ? angle.y() : angle.x();
    if (turned == 0) {
        event->ignore(); // a touchpad's begin or end
        return;
    }
    if (event->modifiers().testFlag(Qt::ControlModifier)) {
        turned > 0 ? zoomIn() : zoomOut();
    } else {
        moveTo(_range.right() - _range.span() * turned / (notch * 8));
    }
    event->accept();
}

} // namespace virtualkeyer
