#include "app/keyboard/Composition.h"

#include <QInputMethodEvent>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>

#include <algorithm>

bool Composition::isAt(const QTextCursor& caret) {
    return !caret.block().layout()->preeditAreaText().isEmpty();
}

bool Composition::isIn(const QTextDocument& document) {
    for (auto block = document.begin(); block.isValid(); block = block.next()) {
        if (!block.layout()->preeditAreaText().isEmpty()) {
            return true;
        }
    }
    return false;
}

bool Composition::isDisturbedBy(const QKeyEvent& event) {
    switch (event.key()) {
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_Home:
    case Qt::Key_End:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        return true;
    default:
        return false;
    }
}

Composition::Stretch Composition::replacementAt(const QTextCursor& caret,
                                                const QInputMethodEvent& event) {
    const auto place = caret.selectionStart();
    const auto selected = caret.selectionEnd() - place;
    const auto end = caret.document()->characterCount() - 1 - selected;
    const auto start = std::clamp(place + event.replacementStart(), 0, end);
    return {start - place, std::clamp(event.replacementLength(), -start, end - start)};
}

void Composition::removeFrom(QTextDocument& document) {
    for (auto block = document.begin(); block.isValid(); block = block.next()) {
        if (!block.layout()->preeditAreaText().isEmpty()) {
            block.layout()->setPreeditArea(-1, QString());
            block.layout()->clearFormats();
            document.markContentsDirty(block.position(), block.length());
        }
    }
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
