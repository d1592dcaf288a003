#pragma once

#include "virtualkeyer/core/WireLine.h"

#include <QAbstractTableModel>

#include <cstddef>
#include <deque>
#include <vector>

namespace virtualkeyer {

/// What was said on the line of late, a row each: when, who, the words, the bytes.
class WireLog : public QAbstractTableModel {
    Q_OBJECT
  public:
    enum Column { When, Who, Words, Bytes };
    /// The roles, beside those of Qt's, of any column.
    enum Role {
        FromHostRole = Qt::UserRole, ///< whether the host said it; invalid where nobody did
        LineRole,                    ///< all of it as a line of text, as it is saved
    };

    /// Older rows go when there are more.
    static constexpr std::size_t mostLines = 20'000;

    using QAbstractTableModel::QAbstractTableModel;

    void append(const std::vector<WireLine>& lines);
    void clear();

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;

  private:
    [[nodiscard]] static QString cell(const WireLine& line, int column);

    std::deque<WireLine> _lines;
};

} // namespace virtualkeyer
