#pragma once

#include <QString>
#include <QWidget>

namespace virtualkeyer {

/// A lamp with its name beside it: a disc that is bright or dark, and a screen reader's "Key: on".
class Lamp : public QWidget {
    Q_OBJECT
  public:
    Lamp(const QString& name, const QColor& colour, QWidget* parent = nullptr);

    void setOn(bool isOn);
    [[nodiscard]] bool isOn() const { return _isOn; }

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    void say();
    [[nodiscard]] int diameter() const;

    QString _name;
    QColor _colour;
    bool _isOn = false;
};

} // namespace virtualkeyer
