#include "app/window/SentModel.h"

#include "record/RecordStore.h"
#include "record/RunText.h"

#include <QCoreApplication>

#include <algorithm>
#include <limits>
#include <memory>
#include <utility>

namespace {

/// What is read at a time, and how much is kept of it.
constexpr int page = 200;
constexpr int keptPages = 50;

} // namespace

SentModel::SentModel(RecordStore& store, QObject* parent)
    : QAbstractTableModel(parent), _store(store), _runs(page * keptPages) {
    QObject::connect(&_store, &RecordStore::grown, this, [this](const RunNumbers& numbers) {
        if (isSearch()) {
            look();
        } else {
            takeNumbers(numbers);
        }
    });
}

void SentModel::look() {
    if (isSearch()) {
        _store.find(_words, mostFound, this, [this, words = _words](const QList<qint64>& found) {
            takeFound(words, found);
        });
    } else {
        _store.readNumbers(this, [this](const RunNumbers& numbers) {
            if (!isSearch()) {
                takeNumbers(numbers);
            }
        });
    }
}

void SentModel::setWords(const QString& words) {
    if (std::exchange(_words, words) == words) {
        return;
    }
    look();
}

void SentModel::takeNumbers(const RunNumbers& numbers) {
    const auto gained = numbers.last - _numbers.last;
    const auto lost = numbers.first - _numbers.first;
    const bool isMore = _found.isEmpty() && _numbers.count() > 0 && gained >= 0 && lost >= 0 &&
                        numbers.first <= _numbers.last;
    if (isMore && lost > 0) {
        const int rows = rowCount();
        beginRemoveRows({}, rows - static_cast<int>(lost), rows - 1);
        _numbers.first = numbers.first;
        endRemoveRows();
    }
    if (isMore && gained > 0) {
        beginInsertRows({}, 0, static_cast<int>(gained) - 1);
        _numbers = numbers;
        endInsertRows();
    } else if (!isMore) {
        beginResetModel();
        const bool isSame = numbers.last >= _numbers.last;
        _numbers = numbers;
        _found.clear();
        if (!isSame) {
            _runs.clear(); // another file, with numbers of its own
        }
        endResetModel();
    }
    Q_EMIT counted();
}

void SentModel::takeFound(const QString& words, const QList<qint64>& found) {
    if (words != _words) {
        return;
    }
    const auto gained = _found.isEmpty() ? -1 : found.indexOf(_found.constFirst());
    const auto kept = found.size() - gained;
    const bool isMore =
        gained >= 0 && kept <= _found.size() && _found.first(kept) == found.last(kept);
    if (isMore && kept < _found.size()) {
        beginRemoveRows({}, static_cast<int>(kept), static_cast<int>(_found.size()) - 1);
        _found.resize(kept);
        endRemoveRows();
    }
    if (isMore && gained > 0) {
        beginInsertRows({}, 0, static_cast<int>(gained) - 1);
        _found = found;
        endInsertRows();
    } else if (!isMore) {
        beginResetModel();
        _found = found;
        // Nothing of all that there is, where nothing was found.
        _numbers = {};
        endResetModel();
    }
    Q_EMIT counted();
}

int SentModel::rowCount(const QModelIndex& parent) const {
    if (parent.isValid()) {
        return 0;
    }
    const auto count = _found.isEmpty() ? _numbers.count() : _found.size();
    return static_cast<int>(std::min<qint64>(count, std::numeric_limits<int>::max()));
}

int SentModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : RunText::Columns;
}

qint64 SentModel::numberAt(int row) const {
    return _found.isEmpty() ? _numbers.last - row : _found.value(row, 0);
}

std::optional<int> SentModel::rowOf(qint64 number) const {
    if (_found.isEmpty()) {
        const auto row = _numbers.last - number;
        return row >= 0 && row < rowCount() ? std::optional(static_cast<int>(row)) : std::nullopt;
    }
    const auto place = std::lower_bound(_found.begin(), _found.end(), number, std::greater());
    return place != _found.end() && *place == number
               ? std::optional(static_cast<int>(place - _found.begin()))
               : std::nullopt;
}

std::optional<RecordedRun> SentModel::runAt(int row) const {
    if (row < 0 || row >= rowCount()) {
        return std::nullopt;
    }
    const auto* run = _runs.object(numberAt(row));
    if (run != nullptr) {
        return *run;
    }
    ask(row);
    return std::nullopt;
}

/// For the page that the row is on.
void SentModel::ask(int row) const {
    if (_asked.contains(numberAt(row))) {
        return;
    }
    const int first = row - row % page;
    const int end = std::min(first + page, rowCount());
    QList<qint64> numbers;
    for (int each = first; each < end; ++each) {
        numbers.append(numberAt(each));
        _asked.insert(numbers.last());
    }
    auto* self = const_cast<SentModel*>(this);
    _store.read(numbers, self,
                [self, numbers](const QList<StoredRun>& runs) { self->takeRuns(numbers, runs); });
}

/// A run that is not there any more is an empty one, and not asked for time and again.
void SentModel::takeRuns(const QList<qint64>& asked, const QList<StoredRun>& runs) {
    for (const auto number : asked) {
        _asked.remove(number);
        _runs.insert(number, new RecordedRun);
    }
    for (const auto& each : runs) {
        _runs.insert(each.number, new RecordedRun(each.run));
    }
    for (const auto number : asked) {
        if (const auto row = rowOf(number)) {
            Q_EMIT dataChanged(index(*row, 0), index(*row, RunText::Columns - 1));
        }
    }
}

QVariant SentModel::data(const QModelIndex& index, int role) const {
    const auto column = static_cast<RunText::Column>(index.column());
    const bool isText = role == Qt::DisplayRole ||
                        (role == Qt::ToolTipRole && column == RunText::Text) ||
                        role == Qt::AccessibleTextRole;
    const auto run = isText ? runAt(index.row()) : std::nullopt;
    if (!run || (run->text.isEmpty() && run->begun == 0)) {
        return {};
    }
    const auto text = RunText::of(*run, column);
    return role == Qt::ToolTipRole ? Qt::convertFromPlainText(text, Qt::WhiteSpaceNormal) : text;
}

QVariant SentModel::headerData(int section, Qt::Orientation orientation, int role) const {
    const bool isHeading = orientation == Qt::Horizontal && role == Qt::DisplayRole;
    return isHeading ? RunText::heading(static_cast<RunText::Column>(section)) : QVariant();
}
