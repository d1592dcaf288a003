#pragma once

#include "virtualkeyer/core/Practice.h"
#include "virtualkeyer/window/ScopeTap.h"

#include <QLabel>
#include <QLineEdit>
#include <QTableWidget>
#include <QTimer>
#include <QWidget>

namespace virtualkeyer {

/// Scores what the paddle sends against a text: which letters were right, and how long elements and
/// spaces were.
class PracticePage : public QWidget {
    Q_OBJECT
  public:
    /// `tap` must outlive the page, and is its own.
    explicit PracticePage(ScopeTap& tap, QWidget* parent = nullptr);

  protected:
    void showEvent(QShowEvent* event) override;

  private:
    void makeTable();
    void start();
    void take();
    void refresh();
    [[nodiscard]] QString marked() const;
    void showLengths();

    ScopeTap& _tap;
    Practice _practice;
    QTimer _letterEnd;
    QLineEdit* _text;
    QLabel* _result;
    QLabel* _count;
    QTableWidget* _lengths;
};

} // namespace virtualkeyer
