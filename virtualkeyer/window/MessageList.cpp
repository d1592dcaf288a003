#include "virtualkeyer/window/MessageList.h"

#include "virtualkeyer/MessageText.h"

#include <QGridLayout>

namespace virtualkeyer {

MessageList::MessageList(QWidget* parent) : QWidget(parent) {
    auto* layout = new QGridLayout(this);
    for (std::size_t i = 0; i < _rows.size(); ++i) {
        const int number = static_cast<int>(i) + 1;
        Row& row = _rows[i];
        row = {new QPushButton(tr("Play %1").arg(number)), new QLabel};
        row.button->setAccessibleName(tr("Play message %1").arg(number));
        row.text->setWordWrap(true);
        row.text->setTextFormat(Qt::PlainText);
        layout->addWidget(row.button, number - 1, 0);
        layout->addWidget(row.text, number - 1, 1);
        connect(row.button, &QPushButton::clicked, this, [this, number] { Q_EMIT played(number); });
    }
    layout->setColumnStretch(1, 1);
    layout->setRowStretch(static_cast<int>(_rows.size()), 1);
    show(Memory());
}

void MessageList::show(const Memory& memory) {
    if (_shown == memory) {
        return;
    }
    _shown = memory;
    for (std::size_t i = 0; i < _rows.size(); ++i) {
        const int number = static_cast<int>(i) + 1;
        const QString text = QString::fromStdString(messageText(memory, number));
        _rows[i].text->setText(text.isEmpty() ? tr("empty") : text);
        _rows[i].text->setEnabled(!text.isEmpty());
        _rows[i].text->setAccessibleName(
            tr("Message %1: %2").arg(number).arg(_rows[i].text->text()));
        _rows[i].button->setEnabled(!text.isEmpty());
    }
}

} // namespace virtualkeyer
