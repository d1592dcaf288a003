#pragma once

#include "virtualkeyer/window/ScopeView.h"

#include <QLabel>
#include <QScrollBar>
#include <QTimer>
#include <QToolButton>
#include <QWidget>

namespace virtualkeyer {

/// The scope, with what it is worked by, and saved to files. It follows the keyer picture by
/// picture while something happens and somebody can see it; else it does nothing.
class ScopePage : public QWidget {
    Q_OBJECT
  public:
    /// `tap` must outlive the page.
    explicit ScopePage(ScopeTap& tap, QWidget* parent = nullptr);

  protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

  private:
    [[nodiscard]] QLayout* makeTools();
    void take();
    void follow();
    void adoptChoice();
    void placeBar();
    void savePicture();
    void saveTable();

    ScopeTap& _tap;
    ScopeView* _view;
    QScrollBar* _place;
    QLabel* _measurement;
    QToolButton* _pause = nullptr;
    QTimer _frames;
};

} // namespace virtualkeyer
