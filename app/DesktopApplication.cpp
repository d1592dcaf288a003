#include "app/DesktopApplication.h"

#include "platform/Platform.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QScopeGuard>

AlertAnswer DesktopApplication::runModal(const Alert& alert) {
    QMessageBox box(windowInUse());
    box.setIcon(alert.alternateButton.isNull() ? QMessageBox::Warning : QMessageBox::Question);
    box.setTextFormat(Qt::PlainText);
    box.setText(alert.messageText);
    box.setInformativeText(alert.informativeText);
    const auto* defaultButton = alert.defaultButton.isNull()
                                    ? box.addButton(QMessageBox::Ok)
                                    : box.addButton(alert.defaultButton, QMessageBox::AcceptRole);
    if (!alert.alternateButton.isNull()) {
        box.addButton(alert.alternateButton, QMessageBox::RejectRole);
    }
    // Devices that come and go meanwhile wait, so that no alert ever stands on another.
    auto& devices = Platform::current().devices();
    devices.holdAnnouncements();
    const auto resume = qScopeGuard([&devices] { devices.resumeAnnouncements(); });
    box.exec();
    return box.clickedButton() == defaultButton ? AlertAnswer::Default : AlertAnswer::Alternate;
}

/// The window that the operator works in has the keyboard again afterwards, which matters: what is
/// typed in the main window goes on the air. One that may end meanwhile would take the alert along.
QWidget* DesktopApplication::windowInUse() const {
    auto* const active = QApplication::activeWindow();
    const bool stays = active != nullptr && !active->testAttribute(Qt::WA_DeleteOnClose);
    return stays ? active : _alertParent.data();
}
