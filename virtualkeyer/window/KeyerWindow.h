#pragma once

#include "virtualkeyer/CommandLine.h"
#include "virtualkeyer/window/KeyerLink.h"

#include <QCheckBox>
#include <QDial>
#include <QLabel>
#include <QPlainTextEdit>
#include <QWidget>

namespace virtualkeyer {

class LiveSidetone;
class KindList;
class LampRow;
class MessageList;
class PaddlePanel;
class RegisterTable;
class ScopeTap;
class WireTap;

/// The keyer as one has it on the table: its plug, knob, buttons and paddle, its lamps, and what is
/// in it.
class KeyerWindow : public QWidget {
    Q_OBJECT
  public:
    /// All must outlive the window.
    KeyerWindow(const CommandLine& commandLine, KeyerLink& link, WireTap& wire, ScopeTap& scope,
                ScopeTap& practice, LiveSidetone& sidetone);

  private:
    [[nodiscard]] QWidget* makeTop(const QString& port);
    [[nodiscard]] QWidget* makeHands(const CommandLine& commandLine, LiveSidetone& sidetone);
    [[nodiscard]] QWidget* makeKnob(int wpm);
    [[nodiscard]] QWidget* makeVolume(LiveSidetone& sidetone);
    [[nodiscard]] QWidget* makeButtons();
    [[nodiscard]] QWidget* makeInside(const CommandLine& commandLine, WireTap& wire,
                                      ScopeTap& scope, ScopeTap& practice);
    [[nodiscard]] QWidget* makeText();
    void movePaddle(bool dit, bool dah);
    void turnKnob(int wpm);
    void record(bool isRecording);
    void refresh();

    KeyerLink& _link;
    QCheckBox* _plug = nullptr;
    LampRow* _lamps = nullptr;
    PaddlePanel* _paddle = nullptr;
    QDial* _knob = nullptr;
    QLabel* _speed = nullptr;
    RegisterTable* _registers = nullptr;
    MessageList* _messages = nullptr;
    KindList* _kinds = nullptr;
    QPlainTextEdit* _text = nullptr;
    bool _dit = false;
    bool _dah = false;
};

} // namespace virtualkeyer
