#pragma once

#include "record/RecordedRun.h"

#include <QDialog>
#include <QTimer>

#include <optional>

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QTableView;
class QVBoxLayout;
class RecordStore;
class SentModel;
class WinKeyerUsb;
struct SavedTable;

/// What was sent, run by run, in a window that stays open beside the work.
///
/// Nothing is sent from it but by its button: keys that are typed into it search, and neither
/// Return nor a double click does anything. Escape closes it, as the application's key that stops
/// the sending wherever it is pressed.
class SentWindow final : public QDialog {
    Q_OBJECT
  public:
    /// Both must outlive it.
    SentWindow(WinKeyerUsb& engine, RecordStore& store, QWidget* parent);

    /// Shows what there is now.
    void look();
    /// Writes what is shown into a file, and says what came of it.
    void save(const QString& path);

  Q_SIGNALS:
    /// The operator wants this text to be sent, as if he had typed it.
    void sendRequested(const QString& text);

  private:
    [[nodiscard]] static QString savedText(const QString& path, const SavedTable& table);
    void addSearch(QVBoxLayout& layout);
    void addTable(QVBoxLayout& layout);
    void addSettings(QVBoxLayout& layout);
    void addButtons(QVBoxLayout& layout);
    void addKeys();
    [[nodiscard]] QPushButton* addButton(const QString& text, const QString& name);
    void followSetting(const QString& key);
    void followSelection();
    void showCount();
    void showMessages();
    void sendAgain();
    void makeMessage(std::size_t index);
    void copy();
    void chooseFile();
    [[nodiscard]] QList<int> selectedRows() const;
    [[nodiscard]] std::optional<RecordedRun> selectedRun() const;

    WinKeyerUsb& _engine;
    RecordStore& _store;
    SentModel* _model;
    QLineEdit* _search = nullptr;
    QTimer _searchSoon;
    QLabel* _count = nullptr;
    QTableView* _table = nullptr;
    QCheckBox* _keep = nullptr;
    QComboBox* _age = nullptr;
    bool _isShowingAge = false;
    QPushButton* _sendAgain = nullptr;
    QPushButton* _makeMessage = nullptr;
    QPushButton* _copy = nullptr;
    QPushButton* _save = nullptr;
};
