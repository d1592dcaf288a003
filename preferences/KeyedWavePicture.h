#pragma once

#include "keyer/KeyedWave.h"

#include <QWidget>

/// Paints a keyed text in front of the same text in plain keying, over a scale in ms and a grid of
/// dits. Time runs from left to right in every language.
class KeyedWavePicture final : public QWidget {
    Q_OBJECT
  public:
    explicit KeyedWavePicture(QWidget* parent = nullptr);

    void setWord(const QString& word, const KeyedWave::Timing& timing);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    [[nodiscard]] QRectF waves() const;
    [[nodiscard]] double xOf(KeyedWave::Milliseconds time) const;
    void paintGrid(QPainter& painter) const;
    void paintWave(QPainter& painter, const std::vector<KeyedWave::KeyDown>& wave, double height,
                   const QColor& color) const;
    void paintName(QPainter& painter, const std::vector<KeyedWave::KeyDown>& wave, double top,
                   double bottom, const QString& name, QPalette::ColorRole role) const;
    void paintScale(QPainter& painter) const;

    std::vector<KeyedWave::KeyDown> _keyed;
    std::vector<KeyedWave::KeyDown> _plain;
    KeyedWave::Milliseconds _dit{1};
    KeyedWave::Milliseconds _end{1};
};
