#pragma once

#include <QTableView>

/// The list of runs. What is typed into it is not looked for in it: that would read all of the
/// record, row by row.
class SentTable final : public QTableView {
    Q_OBJECT
  public:
    explicit SentTable(QWidget* parent = nullptr);

    void keyboardSearch(const QString& typed) override;

  Q_SIGNALS:
    /// A letter or the like, without Ctrl or Alt.
    void typed(const QString& text);
};
