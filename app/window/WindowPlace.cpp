#include "app/window/WindowPlace.h"

#include "platform/NotificationCenter.h"
#include "platform/SettingsStore.h"

#include <QEvent>
#include <QWidget>

WindowPlace::WindowPlace(QWidget& window, const QString& key, QObject* parent)
    : QObject(parent), _window(window), _key(key) {
    const auto place = SettingsStore::standardUserDefaults().stringForKey(_key);
    _window.restoreGeometry(QByteArray::fromBase64(place.toLatin1()));
    _window.installEventFilter(this);
    NotificationCenter::defaultCenter().addObserver(this, NSApplicationWillTerminateNotification,
                                                    [this](const Notification&) { store(); });
}

bool WindowPlace::eventFilter(QObject* watched, QEvent* event) {
    if (watched == &_window && event->type() == QEvent::Close) {
        store();
    }
    return QObject::eventFilter(watched, event);
}

/// As one word: the file is one that people read and edit.
void WindowPlace::store() {
    SettingsStore::standardUserDefaults().setObject(
        QString::fromLatin1(_window.saveGeometry().toBase64()), _key);
}
