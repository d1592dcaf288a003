#include "app/DesktopApplication.h"

#include "app/AlertBox.h"
#include "platform/Log.h"
#include "platform/Platform.h"

#include <QApplication>
#include <QScopeGuard>
#include <QTimer>

using namespace std::chrono_literals;

DesktopApplication::DesktopApplication() {
    _showSoon.setSingleShot(true);
    _showSoon.setInterval(0);
    QObject::connect(&_showSoon, &QTimer::timeout, &_showSoon, [this] { showWaiting(); });
}

AlertAnswer DesktopApplication::runModal(const Alert& alert) {
    if (_limit && *_limit == std::chrono::milliseconds::zero()) {
        logLine(alert.messageText);
        return alert.alternateButton.isNull() ? AlertAnswer::Default : AlertAnswer::Alternate;
    }
    ++_alertsUp;
    const auto answer = show(alert);
    --_alertsUp;
    _showSoon.start();
    return answer;
}

void DesktopApplication::runModalWhenFree(const LateAlert& alert) {
    _waiting.append(alert);
    _showSoon.start();
}

void DesktopApplication::showWaiting() {
    if (_alertsUp == 0 && !_waiting.isEmpty()) {
        if (const auto alert = _waiting.takeFirst()()) {
            runModal(*alert);
        }
        _showSoon.start();
    }
}

AlertAnswer DesktopApplication::show(const Alert& alert) {
    AlertBox box(alert, windowInUse());
    // Devices that come and go meanwhile wait, so that no alert ever stands on another.
    auto& devices = Platform::current().devices();
    devices.holdAnnouncements();
    const auto resume = qScopeGuard([&devices] { devices.resumeAnnouncements(); });
    if (_limit) {
        QTimer::singleShot(*_limit, &box, &QDialog::reject);
    }
    box.exec();
    return box.answer();
}

/// The window that the operator works in has the keyboard again afterwards, which matters: what is
/// typed in the main window goes on the air. One that may end meanwhile would take the alert along.
QWidget* DesktopApplication::windowInUse() const {
    auto* const active = QApplication::activeWindow();
    const bool stays = active != nullptr && !active->testAttribute(Qt::WA_DeleteOnClose);
    return stays ? active : _alertParent.data();
}
