#pragma once

#include <QSortFilterProxyModel>
#include <QString>

#include <optional>

namespace virtualkeyer {

/// The rows of a WireLog that are asked for.
class WireLogFilter : public QSortFilterProxyModel {
    Q_OBJECT
  public:
    using QSortFilterProxyModel::QSortFilterProxyModel;

    /// Only what the host said, only what the keyer did, or both. That the keyer started anew
    /// always shows.
    void setFromHost(std::optional<bool> isFromHost);
    /// Only rows that hold this, in whatever case; all for an empty one.
    void setText(const QString& text);

    /// The rows, a line of text each.
    [[nodiscard]] QString toText() const;

  protected:
    [[nodiscard]] bool filterAcceptsRow(int row, const QModelIndex& parent) const override;

  private:
    std::optional<bool> _isFromHost;
    QString _text;
};

} // namespace virtualkeyer
