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
    _range = _isAll ? record.numbers() : RunNumbers{0, _numbers.size() - 1};
    _next = _range.first;
    QStringList headings;
    for (int column = 0; column < RunText::Columns; ++column) {
        headings.append(RunText::heading(static_cast<RunText::Column>(column)));
    }
    writeLine(headings);
    return true;
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
    _next = end;
    return _next <= _range.last && _file.error() == QFileDevice::NoError;
}

QString RunTable::finish() {
    if (!_problem.isNull()) {
        return _problem;
    }
    return _file.commit() ? QString() : _file.errorString();
}
