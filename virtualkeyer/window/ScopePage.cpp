#include "virtualkeyer/window/ScopePage.h"

#include "virtualkeyer/core/TraceTable.h"
#include "virtualkeyer/window/FileSaving.h"

#include <QBuffer>
#include <QHBoxLayout>
#include <QScreen>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <algorithm>

namespace virtualkeyer {

namespace {

int milliseconds(Time time) {
    return static_cast<int>(std::chrono::duration_cast<std::chrono::milliseconds>(time).count());
}

} // namespace

ScopePage::ScopePage(ScopeTap& tap, QWidget* parent)
    : QWidget(parent),
      _tap(tap),
      _view(new ScopeView),
      _place(new QScrollBar(Qt::Horizontal)),
      _measurement(new QLabel) {
    _place->setAccessibleName(tr("Place in the last ten minutes"));
    _place->setFocusPolicy(Qt::TabFocus);
    _place->setRange(0, milliseconds(KeyTrace::kept));
    _place->setValue(_place->maximum());
    _measurement->setTextInteractionFlags(Qt::TextSelectableByMouse);
    _measurement->setWordWrap(true);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(_view, 1);
    layout->addWidget(_place);
    layout->addWidget(_measurement);
    layout->addLayout(makeTools());
    _frames.setTimerType(Qt::PreciseTimer);
    connect(&_frames, &QTimer::timeout, this, &ScopePage::follow);
    connect(&tap, &ScopeTap::moved, this, &ScopePage::take);
    connect(_view, &ScopeView::chosen, this, &ScopePage::adoptChoice);
    // From the newest, so that it need not move while the present is shown.
    connect(_place, &QScrollBar::valueChanged, this, [this](int value) {
        _view->moveTo(_view->range().newest() -
                      std::chrono::milliseconds{_place->maximum() - value});
    });
    adoptChoice();
}

QLayout* ScopePage::makeTools() {
    auto* tools = new QHBoxLayout;
    const auto add = [tools](const QString& text, const QString& name) {
        auto* button = new QToolButton;
        button->setText(text);
        button->setAccessibleName(name);
        tools->addWidget(button);
        return button;
    };
    _pause = add(tr("Pause"), tr("Pause the scope"));
    _pause->setCheckable(true);
    connect(_pause, &QToolButton::clicked, _view, &ScopeView::setPaused);
    connect(add(tr("Closer"), tr("Less time, closer")), &QToolButton::clicked, _view,
            &ScopeView::zoomIn);
    connect(add(tr("Wider"), tr("More time, wider")), &QToolButton::clicked, _view,
            &ScopeView::zoomOut);
    tools->addStretch();
    // Later, so that whoever presses it by a screen reader does not wait for the file's name.
    connect(add(tr("Picture…"), tr("Save a picture")), &QToolButton::clicked, this,
            &ScopePage::savePicture, Qt::QueuedConnection);
    connect(add(tr("Table…"), tr("Save a table of the last ten minutes")), &QToolButton::clicked,
            this, &ScopePage::saveTable, Qt::QueuedConnection);
    return tools;
}

void ScopePage::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    take();
}

void ScopePage::hideEvent(QHideEvent* event) {
    _frames.stop();
    QWidget::hideEvent(event);
}

void ScopePage::take() {
    const Time now = _tap.now();
    _view->take(_tap.takeEdges(), now);
    if (_view->range().isPaused()) {
        // What is seen stands still, and comes to lie further back.
        placeBar();
    }
    if (isVisible() && !_view->range().isPaused() && _view->isActive(now) && !_frames.isActive()) {
        constexpr double second = 1000;
        _frames.start(static_cast<int>(second / std::max(1.0, screen()->refreshRate())));
    }
}

void ScopePage::follow() {
    const Time now = _tap.now();
    _view->take(_tap.takeEdges(), now);
    if (!_view->isActive(now) || _view->range().isPaused()) {
        _frames.stop();
    }
}

void ScopePage::adoptChoice() {
    placeBar();
    const ScopeRange& range = _view->range();
    _pause->setChecked(range.isPaused());
    _measurement->setText(_view->measurement());
    if (!range.isPaused()) {
        take();
    }
}

void ScopePage::placeBar() {
    const ScopeRange& range = _view->range();
    const QSignalBlocker blocker(_place);
    _place->setPageStep(milliseconds(range.span()));
    _place->setValue(_place->maximum() - milliseconds(range.newest() - range.right()));
}

void ScopePage::savePicture() {
    QBuffer picture;
    picture.open(QIODevice::WriteOnly);
    _view->grab().save(&picture, "PNG");
    FileSaving::save(this, tr("Save a picture"), QStringLiteral("png"), picture.data());
}

void ScopePage::saveTable() {
    FileSaving::save(this, tr("Save a table"), QStringLiteral("csv"),
                     QByteArray::fromStdString(traceTable(_view->trace())));
}

} // namespace virtualkeyer
