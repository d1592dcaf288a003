#pragma once

#include <QLabel>
#include <QPointer>

class SettingBinder;

/// A line of a pane that tells what the control does that has the focus, so that nobody needs a
/// mouse for it, or the one that the mouse rests on: its tool tip stands here, where it covers
/// nothing. A rule parts it from the controls above. It always has the height of two lines, so that
/// the pane keeps still, and asks for more where that is not enough, as for a stored number out of
/// range. It watches all that its parent holds when it is first shown. Main thread only.
class ExplanationLine final : public QLabel {
    Q_OBJECT
  public:
    explicit ExplanationLine(QWidget* parent = nullptr);

    /// What is wrong in the view of `binder`, while something is, it tells ahead of what the
    /// control does; what is wrong with the control itself is part of that.
    void follow(const SettingBinder& binder);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }
    [[nodiscard]] int heightForWidth(int width) const override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  protected:
    void showEvent(QShowEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    void tell();

    QPointer<QWidget> _focused;
    QPointer<QWidget> _hovered;
    QPointer<const SettingBinder> _binder;
    bool _isWatching = false;
};
