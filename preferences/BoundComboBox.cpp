#include "preferences/BoundComboBox.h"

#include <QLineEdit>
#include <QVariant>

using namespace Qt::StringLiterals;

namespace {

/// Marks the item that stands for a stored text beside the list.
constexpr int extraRole = Qt::UserRole + 1;

} // namespace

BoundComboBox::BoundComboBox(QComboBox& box, const Setting& setting, QObject& controller)
    : BoundControl(box, setting, controller),
      _box(box),
      _missingText(box.property("missingText").toString()) {
    if (!setting.choices.empty()) {
        box.clear();
        for (const auto& choice : setting.choices) {
            box.addItem(choice.text);
        }
    }
    connect(&box, &QComboBox::currentIndexChanged, this, &BoundComboBox::choose);
    connect(&box, &QComboBox::activated, this, &BoundComboBox::chosen);
    if (auto* field = box.lineEdit()) {
        box.setInsertPolicy(QComboBox::NoInsert);
        // What is typed is what is stored, not what a completer makes of its beginning.
        box.setCompleter(nullptr);
        connect(field, &QLineEdit::textEdited, this, &BoundComboBox::change);
        connect(field, &QLineEdit::editingFinished, this, &BoundComboBox::settle);
    }
}

QString BoundComboBox::textToStore(int index) const {
    const auto data = _box.itemData(index);
    return data.isValid() ? data.toString() : _box.itemText(index);
}

bool BoundComboBox::isExtra(int index) const {
    return _box.itemData(index, extraRole).toBool();
}

int BoundComboBox::indexOf(const QString& stored) const {
    for (int i = 0; i < _box.count(); ++i) {
        if (!isExtra(i) && textToStore(i) == stored) {
            return i;
        }
    }
    return -1;
}

bool BoundComboBox::offersStored() const {
    return setting().choices.empty() || indexOf(storedText()) >= 0;
}

/// An assistive tool may choose without activating: the action then follows by and by.
void BoundComboBox::choose(int index) {
    if (index >= 0) {
        change(textToStore(index));
    }
}

void BoundComboBox::chosen(int index) {
    change(textToStore(index)); // of an editable box, the item may be the old one, and the text not
    if (isUnsettled()) {
        settle();
    } else if (_box.property("actsOnEveryChoice").toBool()) {
        act();
    }
}

void BoundComboBox::removeExtraItem() {
    for (int i = _box.count() - 1; i >= 0; --i) {
        if (isExtra(i)) {
            _box.removeItem(i);
        }
    }
}

void BoundComboBox::addExtraItem(const QString& stored) {
    _box.addItem(_missingText.isEmpty() ? stored : _missingText.arg(stored), stored);
    _box.setItemData(_box.count() - 1, true, extraRole);
}

void BoundComboBox::showStored() {
    const auto stored = storedText();
    if (_box.isEditable() && _box.currentText() == stored) {
        return; // being typed
    }
    auto index = indexOf(stored);
    if (index < 0 && setting().choices.empty()) {
        removeExtraItem();
        addExtraItem(stored);
        index = _box.count() - 1;
    }
    _box.setPlaceholderText(index < 0 ? strangeText() : QString());
    _box.setCurrentIndex(index);
    if (_box.isEditable()) {
        _box.setEditText(stored);
    }
    if (!isExtra(index)) {
        removeExtraItem();
    }
}
