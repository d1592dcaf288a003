#include "preferences/StandaloneMessages.h"

#include "ui_StandaloneMessages.h"

StandaloneMessages::StandaloneMessages(QWidget* parent)
    : QWidget(parent), _ui(std::make_unique<Ui::StandaloneMessages>()) {
    _ui->setupUi(this);
}

StandaloneMessages::~StandaloneMessages() = default;

void StandaloneMessages::showLoading() {
    _ui->progress->setVisible(true);
}
