#include "virtualkeyer/window/WireLogFilter.h"

#include "virtualkeyer/window/WireLog.h"

namespace virtualkeyer {

void WireLogFilter::setFromHost(std::optional<bool> isFromHost) {
    _isFromHost = isFromHost;
    invalidateFilter();
}

void WireLogFilter::setText(const QString& text) {
    _text = text;
    invalidateFilter();
}

QString WireLogFilter::toText() const {
    QString text;
    for (int row = 0; row < rowCount(); ++row) {
        text += data(index(row, 0), WireLog::LineRole).toString() + u'\n';
    }
    return text;
}

bool WireLogFilter::filterAcceptsRow(int row, const QModelIndex& parent) const {
    const QModelIndex index = sourceModel()->index(row, 0, parent);
    const QVariant isFromHost = index.data(WireLog::FromHostRole);
    if (!isFromHost.isValid()) {
        return true;
    }
    if (_isFromHost && *_isFromHost != isFromHost.toBool()) {
        return false;
    }
    return _text.isEmpty() ||
           index.data(WireLog::LineRole).toString().contains(_text, Qt::CaseInsensitive);
}

} // namespace virtualkeyer
