#include "record/RunTable.h"

#include "record/RecordFile.h"
#include "record/RunText.h"

#include <QStringList>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 piece = 1000;

/// With these a spreadsheet begins to calculate.
bool isFormula(const QString& value) {
    return !value.isEmpty() && u"=+-@\t\r"_s.contains(value.front());
}

} // namespace

RunTable::RunTable(const QString& path, const QList<qint64>& numbers)
    : _file(path), _numbers(numbers), _isAll(numbers.isEmpty()) {
    std::sort(_numbers.begin(), _numbers.end());
}

QString RunTable::field(const QString& value) {
    auto text = isFormula(value) ? u'\'' + value : value;
    const bool isQuoted =
        text.contains(u',') || text.contains(u'"') || text.contains(u'\n') || text.contains(u'\r');
    return isQuoted ? u'"' + text.replace(u"\""_s, u"\"\""_s) + u'"' : text;
}

void RunTable::writeLine(const QStringList& values) {
    QStringList fields;
    for (const auto& each : values) {
        fields.append(field(each));
    }
    _file.write((fields.join(u',') + u"\r\n"_s).toUtf8());
}

bool RunTable::begin(RecordFile& record) {
    if (!_file.open(QIODevice::WriteOnly)) {
        _problem = _file.errorString();
        return false;
    }
    if (!findRange(record)) {
        return false;
    }
    _next = _range.first;
    QStringList headings;
    for (int column = 0; column < RunText::Columns; ++column) {
        headings.append(RunText::heading(static_cast<RunText::Column>(column)));
    }
    writeLine(headings);
    return true;
}

/// Of a record that cannot be read there is no table, rather than an empty one.
bool RunTable::findRange(RecordFile& record) {
    if (!_isAll) {
        _range = {0, _numbers.size() - 1};
        return true;
    }
    _range = record.numbers();
    const auto& trouble = record.trouble();
    if (!trouble.aside.isNull()) {
        _problem = tr("the record is damaged");
    } else {
        _problem = trouble.problem;
    }
    return _problem.isNull();
}

/// Old runs that have gone meanwhile are none of them.
void RunTable::countMissing(RecordFile& record, qint64 end, qsizetype found) {
    if (found == end - _next) {
        return;
    }
    const auto oldest = record.numbers().first;
    const auto first = std::lower_bound(_numbers.begin(), _numbers.end(), oldest);
    const auto begin = _isAll ? oldest : first - _numbers.begin();
    _missing += std::max<qint64>(0, end - std::max<qint64>(_next, begin) - found);
}

bool RunTable::writeNext(RecordFile& record) {
    if (!_file.isOpen() && !begin(record)) {
        return false;
    }
    const auto end = std::min(_next + piece, _range.last + 1);
    const auto runs =
        _isAll ? record.read(_next, end - 1) : record.read(_numbers.mid(_next, end - _next));
    for (const auto& each : runs) {
        QStringList values;
        for (int column = 0; column < RunText::Columns; ++column) {
            values.append(RunText::of(each.run, static_cast<RunText::Column>(column)));
        }
        writeLine(values);
    }
    countMissing(record, end, runs.size());
    _next = end;
    return _next <= _range.last && _file.error() == QFileDevice::NoError;
}

SavedTable RunTable::finish() {
    if (_problem.isNull() && !_file.commit()) {
        _problem = _file.errorString();
    }
    return {_problem, _missing};
}
