#include "app/DesktopApplication.h"

#include <QMessageBox>
#include <QPushButton>

AlertAnswer DesktopApplication::runModal(const Alert& alert) {
    QMessageBox box(_alertParent);
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
    box.exec();
    return box.clickedButton() == defaultButton ? AlertAnswer::Default : AlertAnswer::Alternate;
}
