#include "preferences/KeyedWaveView.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QSpinBox>

KeyedWaveView::KeyedWaveView(QWidget* parent) : QWidget(parent), _speed(new QSpinBox(this)) {
    auto* label = new QLabel(tr("&Picture at"), this);
    label->setBuddy(_speed);
    _speed->setRange(5, 99);
    _speed->setValue(KeyedWave::Timing{}.wpm);
    _speed->setSuffix(tr(" wpm"));
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins({});
    row->addWidget(label);
    row->addWidget(_speed);
    row->addStretch();
}
