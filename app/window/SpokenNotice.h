#pragma once

#include <QWidget>

/// Has a screen reader speak what the operator has to hear at once, whatever has the focus. It is a
/// notification of the desktop's accessibility, which is spoken when it comes up, and is never
/// seen. Main thread only.
class SpokenNotice final : public QWidget {
    Q_OBJECT
  public:
    explicit SpokenNotice(QWidget* parent);

    void say(const QString& text);
};
