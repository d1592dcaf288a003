#pragma once

#include "virtualkeyer/core/KeyTrace.h"
#include "virtualkeyer/window/ScopePainter.h"
#include "virtualkeyer/window/ScopeRange.h"
#include "virtualkeyer/window/ScopeTap.h"

#include <QWidget>

#include <vector>

namespace virtualkeyer {

/// Key and PTT against time. It reads no clock, and paints only when what it shows has changed.
///
/// Arrows move the first cursor, with Shift the second, with Ctrl to the next edge; Page Up and
/// Page Down go back and forward, Home and End to the ends; + and - zoom, and the space bar pauses.
class ScopeView : public QWidget {
    Q_OBJECT
  public:
    explicit ScopeView(QWidget* parent = nullptr);

    /// The lines have moved; `now` is not before the last edge.
    void take(const std::vector<ScopeEdge>& edges, Time now);
    /// Goes on to `now`, for as long as something happens.
    void showNow(Time now);
    /// Whether something happens at `now`, or has just happened.
    [[nodiscard]] bool isActive(Time now) const;

    [[nodiscard]] const KeyTrace& trace() const { return _trace; }
    [[nodiscard]] const ScopeRange& range() const { return _range; }
    /// What the cursors measure.
    [[nodiscard]] QString measurement() const;

    void setPaused(bool isPaused);
    void zoomIn();
    void zoomOut();
    /// To another end.
    void moveTo(Time right);
    /// Cursor 0 or 1, to a time within what is kept.
    void setCursor(int index, Time at);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

  Q_SIGNALS:
    /// What is shown was chosen anew, or the cursors were.
    void chosen();

  protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

  private:
    [[nodiscard]] Time present(Time now) const;
    [[nodiscard]] ScopePainter picture() const;
    [[nodiscard]] bool takeKey(int key, Qt::KeyboardModifiers modifiers);
    void stepCursor(bool isForward, Qt::KeyboardModifiers modifiers);
    void tell();

    KeyTrace _trace;
    ScopeRange _range;
    QString _told;
};

} // namespace virtualkeyer
