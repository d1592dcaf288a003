#include "tests/preferences/PaneOperator.h"

#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QStyleOptionButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <QToolButton>

#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

/// A check box may be wider than what can be clicked of it.
QPoint middleOfClickable(const QCheckBox& box) {
    QStyleOptionButton option;
    option.initFrom(&box);
    return box.style()->subElementRect(QStyle::SE_CheckBoxClickRect, &option, &box).center();
}

} // namespace

PaneOperator::PaneOperator(QWidget& pane) : _pane(pane) {
    pane.show();
    if (!QTest::qWaitForWindowActive(&pane)) {
        throw std::runtime_error("The pane is not the active window.");
    }
}

QList<QWidget*> PaneOperator::controls(QLatin1StringView key) const {
    QList<QWidget*> found;
    for (auto* widget : _pane.findChildren<QWidget*>()) {
        if (widget->property("setting").toString() == key) {
            found.append(widget);
        }
    }
    return found;
}

QWidget& PaneOperator::control(QLatin1StringView key) const {
    const auto found = controls(key);
    if (found.size() != 1) {
        throw std::runtime_error(key.data());
    }
    return *found.first();
}

QToolButton& PaneOperator::resetButton(QLatin1StringView key) const {
    for (auto* button : _pane.findChildren<QToolButton*>()) {
        if (button->property("resets").toString() == key) {
            return *button;
        }
    }
    throw std::runtime_error(key.data());
}

QList<QWidget*> PaneOperator::inputs() const {
    QList<QWidget*> found;
    for (auto* widget : _pane.findChildren<QWidget*>()) {
        if (widget->focusPolicy() != Qt::NoFocus && !isPart(*widget) &&
            !isInside(*widget, "KeyedWaveView") && !widget->inherits("QTabBar") &&
            !widget->inherits("QTabWidget")) {
            found.append(widget);
        }
    }
    return found;
}

bool PaneOperator::isInside(const QWidget& widget, const char* type) {
    for (const auto* each = &widget; each != nullptr; each = each->parentWidget()) {
        if (each->inherits(type)) {
            return true;
        }
    }
    return false;
}

bool PaneOperator::isPart(const QWidget& widget) {
    const auto& parent = *widget.parentWidget();
    return isInside(parent, "QAbstractSpinBox") || isInside(parent, "QComboBox") ||
           isInside(parent, "QTabBar");
}

void PaneOperator::turnTo(const QWidget& widget) {
    auto* tabs = _pane.findChild<QTabWidget*>();
    for (int i = 0; i < tabs->count(); ++i) {
        if (tabs->widget(i)->isAncestorOf(&widget) && tabs->currentIndex() != i) {
            QTest::mouseClick(tabs->tabBar(), Qt::LeftButton, {},
                              tabs->tabBar()->tabRect(i).center());
        }
    }
}

void PaneOperator::meetNeeds(QLatin1StringView key) {
    const auto need = control(key).property("needs").toString().toLatin1().split('=');
    const QLatin1StringView needed(need.constFirst());
    if (need.size() == 2) {
        choose(needed, QString::fromLatin1(need.last()));
    } else if (!needed.isEmpty() && shown(needed) == u"off") {
        toggle(needed);
    }
}

void PaneOperator::toggle(QLatin1StringView key) {
    auto& box = control<QCheckBox>(key);
    turnTo(box);
    QTest::mouseClick(&box, Qt::LeftButton, {}, middleOfClickable(box));
}

void PaneOperator::choose(QLatin1StringView key, const QString& entry) {
    auto& box = control<QComboBox>(key);
    turnTo(box);
    QTest::mouseClick(&box, Qt::LeftButton);
    QTest::keyClick(box.view(), Qt::Key_Home);
    for (int i = 0; i < box.findText(entry); ++i) {
        QTest::keyClick(box.view(), Qt::Key_Down);
    }
    QTest::keyClick(box.view(), Qt::Key_Return);
}

void PaneOperator::type(QLatin1StringView key, const QString& text) {
    auto& field = control(key);
    turnTo(field);
    field.setFocus();
    QTest::keyClick(&field, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(&field, text);
}

void PaneOperator::enter(QLatin1StringView key, const QString& text) {
    type(key, text);
    QTest::keyClick(&control(key), Qt::Key_Return);
}

void PaneOperator::reset(QLatin1StringView key) {
    auto& button = resetButton(key);
    turnTo(button);
    QTest::mouseClick(&button, Qt::LeftButton);
}

QString PaneOperator::shown(QLatin1StringView key) const {
    auto& widget = control(key);
    if (const auto* box = qobject_cast<QCheckBox*>(&widget)) {
        return box->isChecked() ? u"on"_s : u"off"_s;
    }
    if (const auto* list = qobject_cast<QComboBox*>(&widget)) {
        return list->currentText();
    }
    if (const auto* number = qobject_cast<QAbstractSpinBox*>(&widget)) {
        return number->text();
    }
    return dynamic_cast<QLineEdit&>(widget).text();
}
