#include "preferences/StandaloneMessages.h"

#include "formatters/MessageFormatter.h"
#include "keyer/WinKeyerUsb.h"
#include "preferences/binding/Explanation.h"
#include "ui_StandaloneMessages.h"

#include <QStyle>
#include <QToolTip>

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
QString faultOf(const MemoryUse::Share& share) {
    if (share.rejected) {
        return StandaloneMessages::tr("Cannot hold %1").arg(quoted(*share.rejected));
    }
    if (share.isLeftOut()) {
        return StandaloneMessages::tr("Does not fit");
    }
    if (share.silent) {
        return StandaloneMessages::tr("No Morse for %1").arg(quoted(*share.silent));
    }
    return {};
}

QString explanationOf(const MemoryUse::Share& share) {
    if (share.rejected) {
        return StandaloneMessages::tr("The keyer's memory has no place for %1. Nothing can be "
                                      "saved while it is in this message.")
            .arg(quoted(*share.rejected));
    }
    if (share.isLeftOut()) {
        return StandaloneMessages::tr("The memory has no room for this message, which is left out "
                                      "when you save. Characters too many: %1.")
            .arg(share.excess);
    }
    return StandaloneMessages::tr("%1 has no Morse code: the keyer sends nothing in its place. "
                                  "Tokens are not filled in here.")
        .arg(quoted(*share.silent));
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
    connect(&WinKeyerUsb::sharedInstance(), &WinKeyerUsb::activityChanged, this,
            &StandaloneMessages::showAvailability);
    showShares();
    showAvailability();
}

StandaloneMessages::~StandaloneMessages() = default;

void StandaloneMessages::setUpRow(const Row& row) {
    row.field->setValidator(new MessageFormatter(row.field));
    row.field->setMinimumWidth(fontMetrics().averageCharWidth() * readableLength);
    connect(row.field, &QLineEdit::textChanged, this, &StandaloneMessages::showShares);

    auto* mark = row.mark;
    mark->setIcon(style()->standardIcon(QStyle::SP_MessageBoxWarning));
    // The fields keep their width while marks come and go.
    auto policy = mark->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    mark->setSizePolicy(policy);
    mark->setText(faultOf({.silent = u'W'}));
    mark->setFixedWidth(mark->sizeHint().width());
    mark->setText({});
    connect(mark, &QToolButton::clicked, mark, [mark] {
        QToolTip::showText(mark->mapToGlobal(mark->rect().bottomLeft()), mark->toolTip(), mark);
    });
}

void StandaloneMessages::showShares() {
    std::array<QString, KeyerMemory::messageCount> texts;
    std::ranges::transform(_rows, texts.begin(), [](const Row& row) { return row.field->text(); });
    const auto shares = MemoryUse::sharesOf(KeyerMemory::layOut(texts));
    for (std::size_t i = 0; i < _rows.size(); ++i) {
        showMark(i, shares.messages[i]);
    }
    _ui->gauge->setShares(shares);
}

void StandaloneMessages::showMark(std::size_t index, const MemoryUse::Share& share) {
    const auto fault = faultOf(share);
    auto& mark = *_rows[index].mark;
    mark.setVisible(!fault.isEmpty());
    if (fault.isEmpty()) {
        return;
    }
    mark.setText(fault);
    mark.setAccessibleName(tr("Message %1: %2").arg(index + 1).arg(fault));
    explain(mark, explanationOf(share));
}

void StandaloneMessages::showAvailability() {
    const bool isConnected =
        WinKeyerUsb::sharedInstance().activity() != KeyerActivity::NotConnected;
    if (!isConnected) {
        _ui->progress->stop();
    }
    const bool isLoading = _ui->progress->isRunning();
    const auto reason = !isConnected ? tr("Connect the keyer to save and to send.")
                        : isLoading  ? tr("The keyer's memory is being loaded.")
                                     : QString();
    _ui->state->setCurrentWidget(isLoading ? _ui->loadingPage : _ui->reasonPage);
    _ui->reason->setText(reason);
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
