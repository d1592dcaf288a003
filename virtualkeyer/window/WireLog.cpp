#include "virtualkeyer/window/WireLog.h"

#include "virtualkeyer/window/WireWords.h"

#include <algorithm>

namespace virtualkeyer {

namespace {

constexpr int columns = 4;
/// Of a memory's image or the like only the beginning is shown; a file has them all.
constexpr qsizetype shownBytes = 15;

QString when(const WireLine& line) {
    return QString::number(std::chrono::duration<double>(line.at).count(), 'f', 3);
}

QString who(const WireLine& line) {
    if (line.kind == WireLine::Kind::Restarted) {
        return {};
    }
    return line.isFromHost() ? WireLog::tr("Host") : WireLog::tr("Keyer");
}

QString someBytes(const WireLine& line) {
    constexpr qsizetype digits = 3; // and a space
    const QString all = WireWords::bytes(line);
    return all.size() <= shownBytes * digits ? all : all.first(shownBytes * digits) + QChar(u'…');
}

} // namespace

void WireLog::append(const std::vector<WireLine>& lines) {
    const std::size_t added = std::min(lines.size(), mostLines);
    if (added == 0) {
        return;
    }
    if (const std::size_t all = _lines.size() + added; all > mostLines) {
        const auto excess = static_cast<int>(all - mostLines);
        beginRemoveRows({}, 0, excess - 1);
        _lines.erase(_lines.begin(), _lines.begin() + excess);
        endRemoveRows();
    }
    const int first = rowCount();
    beginInsertRows({}, first, first + static_cast<int>(added) - 1);
    _lines.insert(_lines.end(), lines.end() - static_cast<std::ptrdiff_t>(added), lines.end());
    endInsertRows();
}

void WireLog::clear() {
    beginResetModel();
    _lines.clear();
    endResetModel();
}

int WireLog::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(_lines.size());
}

int WireLog::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : columns;
}

QVariant WireLog::data(const QModelIndex& index, int role) const {
    const WireLine& line = _lines[static_cast<std::size_t>(index.row())];
    switch (role) {
    case Qt::DisplayRole:
        return cell(line, index.column());
    case Qt::ToolTipRole:
        return index.column() == Words ? QVariant(WireWords::of(line)) : QVariant();
    case FromHostRole:
        return line.kind == WireLine::Kind::Restarted ? QVariant() : line.isFromHost();
    case LineRole:
        return QStringList{when(line), who(line), WireWords::of(line), WireWords::bytes(line)}.join(
            u'\t');
    default:
        return {};
    }
}

QVariant WireLog::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation == Qt::Vertical || role != Qt::DisplayRole) {
        return {};
    }
    switch (section) {
    case When:
        return tr("Seconds");
    case Who:
        return tr("Said by");
    case Words:
        return tr("In words");
    default:
        return tr("Bytes");
    }
}

QString WireLog::cell(const WireLine& line, int column) {
    switch (column) {
    case When:
        return when(line);
    case Who:
        return who(line);
    case Words:
        return WireWords::of(line);
    default:
        return someBytes(line);
    }
}

} // namespace virtualkeyer
