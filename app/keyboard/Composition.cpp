#include "app/keyboard/Composition.h"

#include <QTextBlock>
#include <QTextCursor>

bool Composition::isAt(const QTextCursor& caret) {
    return !caret.block().layout()->preeditAreaText().isEmpty();
}

Composition::Composition(const QTextCursor& caret) {
    auto* layout = caret.block().layout();
    _text = layout->preeditAreaText();
    if (!_text.isEmpty()) {
        _formats = layout->formats();
        layout->setPreeditArea(-1, QString());
        layout->clearFormats();
    }
}

void Composition::putAt(const QTextCursor& caret) const {
    if (_text.isEmpty()) {
        return;
    }
    auto* layout = caret.block().layout();
    layout->setPreeditArea(caret.positionInBlock(), _text);
    layout->setFormats(_formats);
}
