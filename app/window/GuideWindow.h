#pragma once

#include "app/window/Guide.h"

#include <QWidget>

class GuidePage;
class QLabel;
class QLineEdit;
class QListWidget;
class SpokenNotice;

/// The operator's guide, in a window of its own that stays open beside the work: a page, the table
/// of contents, and a search through all chapters. Escape closes it.
class GuideWindow final : public QWidget {
    Q_OBJECT
  public:
    explicit GuideWindow(QWidget* parent);

    /// Turns to the chapter of that name, to be read on with the keyboard.
    void showChapter(const QString& name);

  protected:
    /// For the keys that close the window, whatever has the focus.
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void setUpSearch();
    void setUpLists();
    void setUpPage();
    void layOut();
    void turnTo(qsizetype chapter);
    void search();
    void goOn(int step);
    void showMatch(int row);
    void followPage();
    void markMatches();
    void tell(const QString& result, const QString& place = {});

    const Guide _guide;
    QList<Guide::Match> _found;

    QLineEdit* _searchField;
    QLabel* _result;
    SpokenNotice* _spoken;
    QListWidget* _contents;
    QListWidget* _matches;
    GuidePage* _page;
};
