#include "virtualkeyer/window/KindList.h"

#include "virtualkeyer/NamedProfiles.h"

#include <QCoreApplication>

#include <string>

using namespace Qt::StringLiterals;

namespace virtualkeyer {

KindList::KindList(const QString& names, QWidget* parent) : QListWidget(parent) {
    setAccessibleName(tr("Kinds of keyer"));
    setWordWrap(true);
    const auto checked = names.split(u',');
    for (const NamedProfile& profile : namedProfiles().subspan(1)) {
        const auto name = QString::fromStdString(std::string(profile.name));
        const auto description =
            QCoreApplication::translate("NamedProfile", std::string(profile.description).c_str());
        auto* item = new QListWidgetItem(u"%1: %2"_s.arg(name, description), this);
        item->setData(Qt::UserRole, name);
        item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
        item->setCheckState(checked.contains(name) ? Qt::Checked : Qt::Unchecked);
    }
    setCurrentRow(0);
    connect(this, &QListWidget::itemChanged, this, [this] { Q_EMIT chosen(this->names()); });
}

QString KindList::names() const {
    QStringList names{QString::fromStdString(std::string(namedProfiles().front().name))};
    for (int row = 0; row < count(); ++row) {
        if (item(row)->checkState() == Qt::Checked) {
            names += item(row)->data(Qt::UserRole).toString();
        }
    }
    return names.join(u',');
}

} // namespace virtualkeyer
