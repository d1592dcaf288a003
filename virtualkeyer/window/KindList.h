#pragma once

#include <QListWidget>
#include <QString>

namespace virtualkeyer {

/// The kinds of keyer, of which it may be several at once; none is the default.
class KindList : public QListWidget {
    Q_OBJECT
  public:
    /// `names` are checked, separated by commas.
    explicit KindList(const QString& names, QWidget* parent = nullptr);

    /// Those that are checked, as NamedProfiles takes them.
    [[nodiscard]] QString names() const;

  Q_SIGNALS:
    void chosen(const QString& names);
};

} // namespace virtualkeyer
