#include "preferences/StandaloneMessages.h"

#include "formatters/MessageFormatter.h"
#include "keyer/WinKeyerUsb.h"
#include "preferences/binding/Explanation.h"
#include "ui_StandaloneMessages.h"

#include <QStyle>

#include <algorithm>

using namespace std::chrono_literals;

namespace {

/// The command and the image, each byte 11 bits on a line of 1200 baud.
constexpr int loadedBits = static_cast<int>(2 + std::tuple_size_v<KeyerMemory::Image>) * 11;
constexpr Clock::Duration loadingTime = Clock::Duration(1s) * loadedBits / 1200;

/// Characters of a message that are seen at once, even where the window is as narrow as it can be.
constexpr int readableLength = 20;

QString quoted(QChar character) {
    return StandaloneMessages::tr("“%1”").arg(character);
}

/// What is wrong with a message, in a few words; empty when nothing is.
QString faultOf(const KeyerMemory::Placement& message) {
    if (message.rejected) {
        return StandaloneMessages::tr("Cannot hold %1").arg(quoted(*message.rejected));
    }
    if (message.isLeftOut()) {
        return StandaloneMessages::tr("Does not fit");
    }
    if (message.ending) {
        return StandaloneMessages::tr("Ends at %1").arg(quoted(*message.ending));
    }
    if (message.silent) {
        return StandaloneMessages::tr("No Morse for %1").arg(quoted(*message.silent));
    }
    return {};
}

QString explanationOf(const KeyerMemory::Placement& message) {
    if (message.rejected) {
        return StandaloneMessages::tr("The keyer's memory has no place for %1. Nothing can be "
                                      "saved while it is in this message.")
            .arg(quoted(*message.rejected));
    }
    if (message.isLeftOut()) {
        return StandaloneMessages::tr("The memory has no room for this message, which is left out "
                                      "when you save. Characters too many: %1.")
            .arg(message.excess);
    }
    if (message.ending) {
        return StandaloneMessages::tr("The keyer takes %1 for the end of the message: it sends "
                                      "nothing behind it, and the sign itself is cut short.")
            .arg(quoted(*message.ending));
    }
    return StandaloneMessages::tr("%1 has no Morse code: the keyer sends nothing in its place. "
                                  "Tokens are not filled in here.")
        .arg(quoted(*message.silent));
}

} // namespace

StandaloneMessages::StandaloneMessages(QWidget* parent)
    : QWidget(parent), _ui(std::make_unique<Ui::StandaloneMessages>()) {
    _ui->setupUi(this);
    _rows = {{{_ui->field1, _ui->mark1, _ui->send1},
              {_ui->field2, _ui->mark2, _ui->send2},
              {_ui->field3, _ui->mark3, _ui->send3},
              {_ui->field4, _ui->mark4, _ui->send4},
              {_ui->field5, _ui->mark5, _ui->send5},
              {_ui->field6, _ui->mark6, _ui->send6}}};
    std::ranges::for_each(_rows, [this](const Row& row) { setUpRow(row); });
    connect(_ui->progress, &TimedProgressBar::finished, this, &StandaloneMessages::endLoading);
    showMemory();
    showAvailability();
}

StandaloneMessages::~StandaloneMessages() = default;

void StandaloneMessages::follow(const WinKeyerUsb& engine) {
    const auto show = [this, &engine] {
        _isConnected = engine.activity() != KeyerActivity::NotConnected;
        showAvailability();
    };
    connect(&engine, &WinKeyerUsb::activityChanged, this, show);
    show();
}

void StandaloneMessages::setUpRow(const Row& row) {
    row.field->setValidator(new MessageFormatter(row.field));
    row.field->setMinimumWidth(fontMetrics().averageCharWidth() * readableLength);
    connect(row.field, &QLineEdit::textChanged, this, &StandaloneMessages::showMemory);

    auto* mark = row.mark;
    mark->setIcon(style()->standardIcon(QStyle::SP_MessageBoxWarning));
    // Which has its explanation told.
    connect(mark, &QToolButton::clicked, mark, [mark] { mark->setFocus(Qt::MouseFocusReason); });
}

KeyerMemory::Layout StandaloneMessages::memory() const {
    std::array<QString, KeyerMemory::messageCount> texts;
    std::ranges::transform(_rows, texts.begin(), [](const Row& row) { return row.field->text(); });
    return KeyerMemory::layOut(texts);
}

void StandaloneMessages::showMemory() {
    const auto layout = memory();
    for (std::size_t i = 0; i < _rows.size(); ++i) {
        showMark(i, layout.messages[i]);
    }
    _ui->gauge->setMemory(layout);
}

QString StandaloneMessages::reasonNotToSave() const {
    const auto messages = memory().messages;
    const auto found =
        std::ranges::find_if(messages, [](const auto& each) { return each.rejected.has_value(); });
    return found == messages.end()
               ? QString()
               : tr("Message %1 holds %2, which has no Morse code. Take it out and save again.")
                     .arg(found - messages.begin() + 1)
                     .arg(quoted(*found->rejected));
}

void StandaloneMessages::showMark(std::size_t index, const KeyerMemory::Placement& message) {
    const auto fault = faultOf(message);
    auto& mark = *_rows[index].mark;
    mark.setVisible(!fault.isEmpty());
    if (fault.isEmpty()) {
        return;
    }
    mark.setText(fault);
    mark.setAccessibleName(tr("Message %1: %2").arg(index + 1).arg(fault));
    explain(mark, explanationOf(message));
}

void StandaloneMessages::showAvailability() {
    if (!_isConnected) {
        _ui->progress->stop();
    }
    const bool isLoading = _ui->progress->isRunning();
    const auto reason = !_isConnected ? tr("Connect the keyer to save and to send.")
                        : isLoading   ? tr("The keyer's memory is being loaded.")
                                      : QString();
    _ui->state->setCurrentWidget(isLoading ? _ui->loadingPage : _ui->gaugePage);
    const auto enable = [&reason](QPushButton& button, const QString& toolTip) {
        button.setEnabled(reason.isEmpty());
        explain(button, reason.isEmpty() ? toolTip : reason);
    };
    enable(*_ui->save, tr("Writes these messages and all settings into the keyer's own memory, "
                          "for work without a computer. It takes two and a half seconds."));
    for (const auto& row : _rows) {
        enable(*row.send, tr("Has the keyer send this message as it was last saved."));
    }
}

void StandaloneMessages::showLoading() {
    _focusBeforeLoading = window()->focusWidget();
    _ui->progress->start(loadingTime);
    showAvailability();
    _focusWhileLoading = window()->focusWidget();
}

/// A button that is disabled passes the focus on; it gets it back unless the operator has moved it.
void StandaloneMessages::endLoading() {
    showAvailability();
    if (_focusBeforeLoading && window()->focusWidget() == _focusWhileLoading) {
        _focusBeforeLoading->setFocus();
    }
}
