#include "virtualkeyer/window/KeyerWindow.h"

#include "virtualkeyer/sound/LiveSidetone.h"
#include "virtualkeyer/window/FileSaving.h"
#include "virtualkeyer/window/KindList.h"
#include "virtualkeyer/window/LampRow.h"
#include "virtualkeyer/window/MessageList.h"
#include "virtualkeyer/window/PaddlePanel.h"
#include "virtualkeyer/window/PracticePage.h"
#include "virtualkeyer/window/RegisterTable.h"
#include "virtualkeyer/window/ScopePage.h"
#include "virtualkeyer/window/WireLogPage.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QSlider>
#include <QSplitter>
#include <QTabWidget>
#include <QVBoxLayout>

#include <utility>

namespace virtualkeyer {

namespace {

constexpr int slowest = 5;
constexpr int fastest = 99;
constexpr int buttonCount = 4;
constexpr int usualVolume = 40; // percent
/// Lines of the keyed text that are kept.
constexpr int longestText = 1000;
/// Of the screen, beside the frame that the desktop adds.
constexpr double roomForFrame = 0.92;
/// Of the text's colour, what says what will stand there.
constexpr float hintOpacity = 0.6F;

/// On a small screen not all of it is seen at a time. Sideways it is if it `keepsWidth`.
QScrollArea* scrolled(QWidget* content, bool keepsWidth = false) {
    auto* area = new QScrollArea;
    area->setWidget(content);
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    // As if it were not there.
    area->viewport()->setAutoFillBackground(false);
    content->setAutoFillBackground(false);
    area->setFocusPolicy(Qt::NoFocus);
    if (keepsWidth) {
        area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        area->setMinimumWidth(content->minimumSizeHint().width() +
                              area->verticalScrollBar()->sizeHint().width());
    }
    return area;
}

} // namespace

KeyerWindow::KeyerWindow(const CommandLine& commandLine, KeyerLink& link, WireTap& wire,
                         ScopeTap& scope, ScopeTap& practice, LiveSidetone& sidetone)
    : _link(link) {
    setWindowTitle(tr("Virtual keyer"));
    auto* middle = new QSplitter(Qt::Horizontal);
    middle->addWidget(scrolled(makeHands(commandLine, sidetone), true));
    middle->addWidget(makeInside(commandLine, wire, scope, practice));
    middle->setStretchFactor(1, 1);
    middle->setSizes({1, QWIDGETSIZE_MAX});
    auto* all = new QSplitter(Qt::Vertical);
    all->addWidget(middle);
    all->addWidget(makeText());
    all->setStretchFactor(0, 1);
    all->setSizes({QWIDGETSIZE_MAX, 1});
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(makeTop(commandLine.linkName));
    layout->addWidget(all, 1);
    connect(&link, &KeyerLink::changed, this, &KeyerWindow::refresh);
    const int line = fontMetrics().height();
    const QSize usual = sizeHint().expandedTo({54 * line, 34 * line});
    resize(usual.boundedTo(screen()->availableSize() * roomForFrame));
    // The paddle's keys work wherever the focus is, and a knob that turns by itself surprises.
    _plug->setFocus();
}

QWidget* KeyerWindow::makeTop(const QString& port) {
    auto* top = new QWidget;
    _plug = new QCheckBox(tr("Plugged in as %1").arg(port));
    _plug->setAccessibleName(tr("Plugged in"));
    _plug->setToolTip(tr("Pulls the adapter and plugs it in again. Without it the keyer has no "
                         "power, and forgets its host."));
    _plug->setChecked(true);
    connect(_plug, &QCheckBox::toggled, this, [this](bool isIn) { _link.order(MovePlug{isIn}); });
    _lamps = new LampRow;
    auto* recording = new QPushButton(tr("Record a script"));
    recording->setCheckable(true);
    recording->setToolTip(tr("Writes down what is done here, for --script to do again: press once "
                             "more to save it."));
    // Later, so that whoever presses it by a screen reader does not wait for the file's name.
    connect(recording, &QPushButton::toggled, this, &KeyerWindow::record, Qt::QueuedConnection);
    auto* plug = new QHBoxLayout;
    plug->addWidget(_plug, 1);
    plug->addWidget(recording);
    auto* layout = new QVBoxLayout(top);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(plug);
    layout->addWidget(_lamps);
    return top;
}

QWidget* KeyerWindow::makeHands(const CommandLine& commandLine, LiveSidetone& sidetone) {
    auto* hands = new QWidget;
    _paddle = new PaddlePanel;
    connect(_paddle, &PaddlePanel::moved, this, &KeyerWindow::movePaddle);
    auto* layout = new QVBoxLayout(hands);
    layout->setContentsMargins(0, 0, 0, 0);
    // What is most in use first, since a small screen does not show all.
    layout->addWidget(_paddle);
    layout->addWidget(makeKnob(commandLine.profile.potWpm));
    layout->addWidget(makeButtons());
    layout->addWidget(makeVolume(sidetone));
    layout->addStretch();
    return hands;
}

QWidget* KeyerWindow::makeKnob(int wpm) {
    auto* box = new QGroupBox(tr("Speed knob"));
    box->setToolTip(tr("Counts within the range that the host has set, and only while the host "
                       "leaves the speed to it."));
    _knob = new QDial;
    _knob->setAccessibleName(tr("Speed knob"));
    _knob->setRange(slowest, fastest);
    _knob->setValue(wpm);
    _knob->setNotchesVisible(true);
    _knob->setWrapping(false);
    const int size = 6 * fontMetrics().height();
    _knob->setFixedSize(size, size);
    _speed = new QLabel;
    connect(_knob, &QDial::valueChanged, this, &KeyerWindow::turnKnob);
    _speed->setText(tr("%1 WPM").arg(wpm));
    auto* layout = new QHBoxLayout(box);
    layout->addWidget(_knob);
    layout->addWidget(_speed);
    layout->addStretch();
    return box;
}

QWidget* KeyerWindow::makeVolume(LiveSidetone& sidetone) {
    auto* box = new QGroupBox(tr("Sidetone"));
    box->setToolTip(tr("How loud this machine plays what is keyed; the host sets the pitch."));
    auto* volume = new QSlider(Qt::Horizontal);
    volume->setAccessibleName(tr("Volume"));
    volume->setRange(0, 100);
    volume->setPageStep(10);
    connect(volume, &QSlider::valueChanged, &sidetone,
            [&sidetone](int percent) { sidetone.setVolume(percent / 100.0); });
    volume->setValue(usualVolume);
    auto* silence = new QLabel(tr("No sound device: it is silent."));
    silence->setWordWrap(true);
    silence->hide();
    connect(&sidetone, &LiveSidetone::silent, volume, [volume, silence] {
        volume->setEnabled(false);
        silence->show();
    });
    auto* layout = new QVBoxLayout(box);
    layout->addWidget(volume);
    layout->addWidget(silence);
    return box;
}

QWidget* KeyerWindow::makeButtons() {
    auto* box = new QGroupBox(tr("Push-buttons"));
    box->setToolTip(tr("The host hears of them once it has asked for version 2 status."));
    auto* layout = new QHBoxLayout(box);
    for (int number = 1; number <= buttonCount; ++number) {
        auto* button = new QPushButton(QString::number(number));
        button->setAccessibleName(tr("Push-button %1").arg(number));
        button->setMinimumWidth(fontMetrics().height() * 2);
        layout->addWidget(button);
        connect(button, &QPushButton::pressed, this, [this, number] {
            _link.order(MoveButton{number, true});
        });
        connect(button, &QPushButton::released, this, [this, number] {
            _link.order(MoveButton{number, false});
        });
    }
    return box;
}

QWidget* KeyerWindow::makeInside(const CommandLine& commandLine, WireTap& wire, ScopeTap& scope,
                                 ScopeTap& practice) {
    auto* pages = new QTabWidget;
    _registers = new RegisterTable;
    _messages = new MessageList;
    _kinds = new KindList(commandLine.profileNames);
    pages->addTab(_registers, tr("Registers"));
    pages->addTab(scrolled(_messages), tr("Memory"));
    pages->addTab(_kinds, tr("Kind of keyer"));
    pages->addTab(new ScopePage(scope), tr("Scope"));
    pages->addTab(new WireLogPage(wire), tr("Line log"));
    pages->addTab(new PracticePage(practice), tr("Practice"));
    connect(_messages, &MessageList::played, this,
            [this](int number) { _link.order(PlayMessage{number}); });
    connect(_kinds, &KindList::chosen, this,
            [this](const QString& names) { _link.order(ChangeProfile{names}); });
    return pages;
}

QWidget* KeyerWindow::makeText() {
    auto* box = new QGroupBox(tr("Keyed text"));
    _text = new QPlainTextEdit;
    _text->setAccessibleName(tr("Keyed text"));
    _text->setReadOnly(true);
    _text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    _text->setTabChangesFocus(true);
    _text->setMaximumBlockCount(longestText);
    _text->setPlaceholderText(tr("What is keyed, by the host or the paddle, is read back here from "
                                 "the key line."));
    // A dark desktop's own may be as dark as what is around it.
    auto colors = _text->palette();
    auto hint = colors.color(QPalette::Text);
    hint.setAlphaF(hintOpacity);
    colors.setColor(QPalette::PlaceholderText, hint);
    _text->setPalette(colors);
    _text->setMinimumHeight(3 * fontMetrics().height());
    auto* layout = new QVBoxLayout(box);
    layout->addWidget(_text);
    return box;
}

/// Says what has changed, which is what a script would say.
void KeyerWindow::movePaddle(bool dit, bool dah) {
    const auto changed = [](bool& before, bool now) {
        return std::exchange(before, now) == now ? std::nullopt : std::optional{now};
    };
    const auto ditMoved = changed(_dit, dit);
    _link.order(MovePaddle{ditMoved, changed(_dah, dah)});
}

void KeyerWindow::turnKnob(int wpm) {
    _speed->setText(tr("%1 WPM").arg(wpm));
    _link.order(TurnKnob{wpm});
}

void KeyerWindow::record(bool isRecording) {
    if (isRecording) {
        return _link.beginRecording();
    }
    FileSaving::save(this, tr("Save the script"), {}, _link.endRecording().toUtf8());
}

void KeyerWindow::refresh() {
    const KeyerState state = _link.state();
    {
        // A script may have moved it.
        const QSignalBlocker blocker(_plug);
        _plug->setChecked(state.isPluggedIn);
    }
    _lamps->show(state);
    _registers->show(state.registers);
    _messages->show(state.memory);
    const QString text = _link.takeKeyedText();
    if (!text.isEmpty()) {
        _text->moveCursor(QTextCursor::End);
        _text->insertPlainText(text);
        _text->ensureCursorVisible();
    }
}

} // namespace virtualkeyer
