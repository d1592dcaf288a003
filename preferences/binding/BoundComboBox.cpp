#include "preferences/binding/BoundComboBox.h"

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QVariant>

using namespace Qt::StringLiterals;

namespace {

/// Marks the item that stands for a stored text beside the list.
constexpr int extraRole = Qt::UserRole + 1;

/// Whether the key chooses an entry of a list that is not even open, by its place.
bool isStep(const QKeyEvent& event) {
    switch (event.key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
    case Qt::Key_Home:
    case Qt::Key_End:
        return true;
    default:
        return false;
    }
}

/// Whether the key looks for an entry by its text.
bool isSearch(const QKeyEvent& event) {
    return !event.text().isEmpty() && event.text().front().isPrint();
}

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
    for (int i = 0; i < box.count(); ++i) {
        if (!box.itemData(i).isValid()) {
            box.setItemData(i, box.itemText(i));
            box.setItemText(i, shownText(box.itemText(i)));
        }
    }
    connect(&box, &QComboBox::currentIndexChanged, this, &BoundComboBox::choose);
    connect(&box, &QComboBox::activated, this, &BoundComboBox::chosen);
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

/// Who passes entries on the closed list wants the last; who opens it wants the chosen one at once.
void BoundComboBox::chosen(int) {
    if (_isStepping) {
        return;
    }
    if (isUnsettled()) {
        settle();
    } else if (actsOnEveryChoice()) {
        act();
    }
}

bool BoundComboBox::actsOnEveryChoice() const {
    return _box.property("actsOnEveryChoice").toBool();
}

bool BoundComboBox::eventFilter(QObject* watched, QEvent* event) {
    if (BoundControl::eventFilter(watched, event)) {
        return true;
    }
    const bool isChoice = event->type() == QEvent::KeyPress || event->type() == QEvent::Wheel;
    if (!isChoice || _box.view()->isVisible()) {
        return false;
    }
    return actsOnEveryChoice() ? preventChoice(*event) : step(*event);
}

/// No stray key or turn of the wheel may choose what acts at once: keys open the list.
bool BoundComboBox::preventChoice(QEvent& event) {
    if (event.type() == QEvent::Wheel) {
        event.ignore();
        return true;
    }
    const auto& key = static_cast<const QKeyEvent&>(event);
    if (isStep(key) || key.key() == Qt::Key_Space) {
        _box.showPopup();
        return true;
    }
    return isSearch(key);
}

bool BoundComboBox::step(QEvent& event) {
    const QScopedValueRollback stepping(_isStepping, true);
    _box.event(&event);
    return true;
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
    auto index = indexOf(stored);
    if (index < 0 && setting().choices.empty()) {
        removeExtraItem();
        addExtraItem(stored);
        index = _box.count() - 1;
    }
    _box.setPlaceholderText(index < 0 ? strangeText() : QString());
    _box.setCurrentIndex(index);
    if (!isExtra(index)) {
        removeExtraItem();
    }
}
