#pragma once

#include "keyer/KeyerMemory.h"

#include <QPointer>
#include <QWidget>

#include <array>
#include <memory>

class QLineEdit;
class QPushButton;
class QToolButton;
class WinKeyerUsb;

namespace Ui {
class StandaloneMessages;
}

/// The six messages that the keyer keeps in its own memory: their texts, how they share that
/// memory, and buttons that save them and have the keyer send them.
///
/// Fields carry their setting, and buttons their action ("saveSettings", "sendStandaloneMessage")
/// and tag, 1 to 6, as dynamic properties, for the pane that hosts this view to bind. Saving and
/// sending are possible while the keyer is connected and is not being loaded. Main thread only.
class StandaloneMessages final : public QWidget {
    Q_OBJECT
  public:
    explicit StandaloneMessages(QWidget* parent = nullptr);
    ~StandaloneMessages() override;

    /// Has saving and sending from now on be possible while `engine` is connected.
    void follow(const WinKeyerUsb& engine);

    /// The keyer's memory is being loaded from now on: shows how far that is, for as long as it
    /// takes on the line. For whoever carries out "saveSettings" to call when that has succeeded.
    void showLoading();
    /// Which message holds a character that keeps all from being saved, in words; empty when none
    /// does.
    [[nodiscard]] QString reasonNotToSave() const;

  private:
    /// What belongs to one message.
    struct Row {
        QLineEdit* field;
        QToolButton* mark;
        QPushButton* send;
    };

    void setUpRow(const Row& row);
    [[nodiscard]] KeyerMemory::Layout memory() const;
    void showMemory();
    void showMark(std::size_t index, const KeyerMemory::Placement& message);
    void showAvailability();
    void endLoading();

    const std::unique_ptr<Ui::StandaloneMessages> _ui;
    std::array<Row, KeyerMemory::messageCount> _rows;
    bool _isConnected = false;
    QPointer<QWidget> _focusBeforeLoading;
    QPointer<QWidget> _focusWhileLoading;
};
