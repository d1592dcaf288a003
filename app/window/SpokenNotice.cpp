#include "app/window/SpokenNotice.h"

#include <QAccessible>
#include <QAccessibleWidget>

#include <memory>

namespace {

class SpokenWords final : public QAccessibleWidget {
  public:
    explicit SpokenWords(SpokenNotice& notice)
        : QAccessibleWidget(&notice, QAccessible::Notification) {}
};

QAccessibleInterface* makeInterface(const QString& className, QObject* object) {
    if (className != QLatin1StringView(SpokenNotice::staticMetaObject.className())) {
        return nullptr;
    }
    auto* notice = qobject_cast<SpokenNotice*>(object);
    return notice == nullptr ? nullptr : std::make_unique<SpokenWords>(*notice).release();
}

} // namespace

SpokenNotice::SpokenNotice(QWidget* parent) : QWidget(parent) {
    // Once, however often it is asked for.
    QAccessible::installFactory(makeInterface);
    hide();
}

void SpokenNotice::say(const QString& text) {
    setAccessibleName(text);
    // Of an alert, which it has a kind of event for, the toolkit's bridge tells nobody.
    QAccessibleEvent shown(this, QAccessible::ObjectShow);
    QAccessible::updateAccessibility(&shown);
}
