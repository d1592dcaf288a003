#include "virtualkeyer/window/FileSaving.h"

#include <QFileDialog>
#include <QMessageBox>
#include <QSaveFile>

namespace virtualkeyer {

void FileSaving::save(QWidget* parent, const QString& title, const QString& suffix,
                      const QByteArray& contents) {
    QFileDialog dialog(parent, title);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(suffix);
    if (dialog.exec() != QDialog::Accepted) {
        return;
    }
    const QString path = dialog.selectedFiles().constFirst();
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(contents) < 0 || !file.commit()) {
        QMessageBox::warning(parent, {},
                             tr("%1 cannot be written: %2").arg(path, file.errorString()));
    }
}

} // namespace virtualkeyer
