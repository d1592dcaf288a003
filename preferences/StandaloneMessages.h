#pragma once

#include "platform/Clock.h"
#include "preferences/MemoryUse.h"

#include <QWidget>

#include <array>
#include <memory>

namespace Ui {
class StandaloneMessages;
}

/// The six messages that the keyer keeps in its own memory: their texts, how they share that
/// memory, and buttons that save them and have the keyer send them.
///
/// Fields carry their setting, and buttons their action ("saveSettings", "sendStandaloneMessage")
/// and tag (1 to 6), as dynamic properties, for the pane that hosts this view to bind.
class StandaloneMessages final : public QWidget {
    Q_OBJECT
  public:
    explicit StandaloneMessages(QWidget* parent = nullptr);
    ~StandaloneMessages() override;

    /// The keyer's memory is being loaded from now on: shows how far that is, for as long as it
    /// takes on the line, and keeps the buttons from disturbing it. For whoever carries out
    /// "saveSettings" to call when that has succeeded.
    void showLoading();

  private:
    const std::unique_ptr<Ui::StandaloneMessages> _ui;
};
