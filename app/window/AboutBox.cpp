#include "app/window/AboutBox.h"

#include <QCoreApplication>

AboutBox::AboutBox(QWidget* parent) : QMessageBox(parent) {
    setAttribute(Qt::WA_DeleteOnClose);
    setModal(false);
    setWindowTitle(tr("About Quorvel"));
    setIcon(QMessageBox::Information);
    setText(tr("Quorvel %1").arg(QCoreApplication::applicationVersion()));
    setInformativeText(tr("Sends Morse code through a WinKeyer USB keyer.\n\n"
                          "Free software under the MIT licence, made with Qt %1.")
                           .arg(QLatin1StringView(qVersion())));
    addButton(QMessageBox::Close);
}
