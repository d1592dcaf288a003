#pragma once

#include "keyer/CharacterSet.h"
#include "keyer/CharactersOnTheirWay.h"
#include "keyer/KeyerActivity.h"
#include "keyer/KeyerMemory.h"
#include "keyer/SendingText.h"
#include "keyer/SentSettings.h"
#include "keyer/TextSource.h"
#include "keyer/UnheardCharacters.h"
#include "platform/Clock.h"
#include "platform/Error.h"
#include "serial/ORSSerialPort.h"
#include "serial/ORSSerialPortDelegate.h"

#include <QByteArray>
#include <QObject>
#include <QString>

#include <memory>
#include <optional>
#include <utility>

/// The keyer engine: the one object that owns the link to the keyer, and everything that is sent
/// over it and read from it.
///
/// Its concerns stand in files of their own: connection, receive path, sending, progress, output,
/// keyboard, modes, memory.
/// All sending is paced by the keyer: one plain character is on its way, or as many as the operator
/// allows for a keyer far away, and the echo lets the next one go. Main thread only.
class WinKeyerUsb final : public QObject, public ORSSerialPortDelegate {
    Q_OBJECT
    Q_PROPERTY(QString speedString READ speedString NOTIFY speedStringChanged)
    Q_PROPERTY(
        QString versionString READ versionString WRITE setVersionString NOTIFY versionStringChanged)
    Q_PROPERTY(QString keyboardBuffer READ keyboardBuffer WRITE setKeyboardBuffer NOTIFY
                   keyboardBufferChanged)
    Q_PROPERTY(QString hisCallsign READ hisCallsign WRITE setHisCallsign NOTIFY hisCallsignChanged)
    Q_PROPERTY(
        qint64 serialNumber READ serialNumber WRITE setSerialNumber NOTIFY serialNumberChanged)
    Q_PROPERTY(int pauseState READ pauseState WRITE setPauseState NOTIFY pauseStateChanged)
    Q_PROPERTY(int tuneState READ tuneState WRITE setTuneState NOTIFY tuneStateChanged)
    Q_PROPERTY(int hscwState READ hscwState WRITE setHscwState NOTIFY hscwStateChanged)
    Q_PROPERTY(int beaconState READ beaconState WRITE setBeaconState NOTIFY beaconStateChanged)

  public:
    /// The one engine of the running program, made at the first call.
    [[nodiscard]] static WinKeyerUsb& sharedInstance();
    ~WinKeyerUsb() override;

    /// What may be typed or stored in a message: the characters that the keyer keys, the tokens
    /// and the control characters.
    [[nodiscard]] static const CharacterSet& morseKeyboardCharacterSet();

    // Connection. Each operation is true on success; on failure it fills `error`, where one is
    // given. A step of connecting that fails, from finding the port on, also closes and forgets
    // the port and sets the stored port name to "None". The steps after that need a port found.

    /// Brings the keyer on the stored port into host mode. Never waits for the keyer: what it
    /// answers is handled after this has returned.
    [[nodiscard]] bool connect(Error* error);
    [[nodiscard]] bool isConnected() const;
    /// What the keyer is doing, as far as it has told.
    [[nodiscard]] KeyerActivity activity() const;
    /// The name of the port that the keyer is on; null while not connected.
    [[nodiscard]] QString serialPortName() const;
    /// Whether that port is open; it is closed while the machine sleeps.
    [[nodiscard]] bool isPortOpen() const;
    /// Whether another has closed that port, and is to open it again.
    [[nodiscard]] bool isAsleep() const { return isConnected() && _isAsleep; }
    /// The port that the keyer is on; empty while not connected.
    [[nodiscard]] const std::shared_ptr<ORSSerialPort>& winKeyerSerialPort() const {
        return _winKeyerSerialPort;
    }
    /// Takes the link down, blocking for two seconds while the port is open. Whatever it returns,
    /// the port is closed and forgotten.
    bool disconnect(Error* error);
    /// Fills `name` with the stored port name; fails, changing nothing, when that is "None".
    [[nodiscard]] bool determinePortName(QString* name, Error* error);
    /// Takes the first port whose name equals `name`.
    [[nodiscard]] bool determineSerialPortForName(const QString& name, Error* error);
    /// 1200 baud, no parity, 2 stop bits, no flow control; what comes in is handed over byte by
    /// byte. Cannot fail.
    bool configureSerialPort(Error* error);
    [[nodiscard]] bool openSerialPort(Error* error);
    /// Sends four null commands, so that the keyer's parser begins anew.
    [[nodiscard]] bool syncWinKeyer(Error* error);
    /// Has the keyer send a character back, which is not waited for.
    [[nodiscard]] bool echoTest(Error* error);
    /// Host mode, push-button reports, all settings, and a reading of the speed pot.
    [[nodiscard]] bool openHostMode(Error* error);
    [[nodiscard]] bool hostOpen(Error* error);
    /// Succeeds at once: the version byte is not waited for.
    [[nodiscard]] bool readVersion(Error* error);
    /// Fails unless versionString is a number from 20 to 23. Not part of connecting.
    [[nodiscard]] bool validateVersion(Error* error);
    /// Has push-buttons reported.
    [[nodiscard]] bool setWK2Mode(Error* error);
    /// Leaves host mode, if the keyer is in it. A failure keeps port and stored name.
    [[nodiscard]] bool closeHostMode(Error* error);
    /// The port goes, or the machine sleeps: stops the keyer and all sending, and leaves host mode,
    /// as far as the line still takes it.
    void serialPortWillBeClosed(ORSSerialPort& port) override;
    /// The port has gone and is closed: lets go of it. Sends nothing.
    void serialPortWasRemovedFromSystem(ORSSerialPort& port) override;
    /// After a sleep, greets the keyer anew.
    void serialPortWasOpened(ORSSerialPort& port) override;
    /// Only looked at when a port was to be opened after a sleep.
    void serialPortDidEncounterError(ORSSerialPort& port, const Error& error) override;
    [[nodiscard]] bool hearsErrorsOfOpenPort() const override { return false; }
    /// Sends the keyer, on the open port, all that connecting sends it; a refused write is logged.
    /// Text that was on its way, to a keyer that has not heard it, is sent once more.
    void greetAgain();

    // Traffic.

    /// Writes one command to the keyer. Bytes that no connected keyer takes are dropped; a refused
    /// write is logged.
    void putToWinKeyer(const QByteArray& bytes);
    void serialPortDidReceiveData(ORSSerialPort& port, const QByteArray& data) override;
    /// Of what sends no echo, such as half spaces, so many bytes are written ahead of the line, and
    /// the rest as the line sends them, so that a stop never queues behind a long run of them. 0,
    /// as at first, for no limit.
    void setRunLimit(int bytes) { _runLimit = bytes; }
    /// Sends all keyer settings as one block, when connected.
    void loadDefaults();

    // Messages.

    /// Sends the stored message that the control's tag, 0 to 7, selects.
    void sendMessage(const QObject* sender);
    /// Adds a message, its tokens already substituted, to the text to be sent.
    void appendMessage(const QString& message);
    /// Sends the beacon's message again, while the beacon is on.
    void repeatMessage();
    /// Sends the message of the push-button that the last status byte reports.
    void handleButtonPressed();
    /// Sends the next character of the text, with the control sequences before it.
    void send();
    /// Whether text is being handed to the keyer: neither exhausted nor held back.
    [[nodiscard]] bool isSending() const {
        return (_sendingState || _onTheirWay.holdCommandsBack()) && _pauseState == 0;
    }
    /// Whether a character is on its way to the keyer, which has not told that it is sent.
    [[nodiscard]] bool isAwaitingEcho() const { return _onTheirWay.areAwaited(); }
    /// Forgets all text, sent or not, and switches the beacon off.
    void clearSending();
    /// Empties the keyer's buffer and forgets all text.
    void stopMessageSending(const QObject* sender);
    /// Keys up and empties the keyer's buffer at once, whatever it keys: tune, text, or a message
    /// of its own. The text of the engine stays.
    void silence();
    /// Whether the keyer may be keying, by what it was given and what it has told since. While tune
    /// is on it may: many a keyer tells nothing of a tune, and is idle by what it says.
    [[nodiscard]] bool mayBeKeying() const { return _mayBeKeying || _tuneState != 0; }
    /// Who what is being added to the text is from: the operator, at the keyboard, while nobody
    /// says otherwise. See TextSourceScope.
    [[nodiscard]] const TextSource& textSource() const { return _textSource; }
    void setTextSource(const TextSource& source) { _textSource = source; }
    /// The text with "`" replaced by the operator's call sign and "#" by the cut serial number.
    /// Where that would lengthen it beyond all use, both are left out, and the log says so.
    [[nodiscard]] QString substituteTokens(const QString& text) const;
    [[nodiscard]] QString myCall() const;
    /// The serial number, three digits at least, with T for 0.
    [[nodiscard]] QString cutifiedSerialNumber() const;
    void incrementSerialNumber(const QObject* sender);
    /// Stays at 1.
    void decrementSerialNumber(const QObject* sender);

    // The keyboard view's delegate. Editing may always begin and end.

    [[nodiscard]] bool textShouldBeginEditing(const QObject* text) const;
    [[nodiscard]] bool textShouldEndEditing(const QObject* text) const;
    void textDidBeginEditing(const QObject* text);
    void textDidEndEditing(const QObject* text);
    /// The operator has changed keyboardBuffer: filters it and starts sending it.
    void textDidChange();

    // Modes.

    /// Keys the transmitter steadily while the control is on.
    void tune(const QObject* sender);
    /// Keys up, ahead of the output that waits, whatever any control shows.
    void keyUp();
    /// High-speed CW while the control is on, else the speed of the pot. Leaves hscwState alone.
    void changeHSCWMode(const QObject* sender);

    // The keyer's own memory. Written straight to the port, each command apart.

    /// Loads the settings and the six standalone messages into the keyer. False when a message
    /// holds a character without a code (nothing is loaded then) or the port did not take the
    /// bytes. Never fills `error`. A message too long for the space left is left out.
    [[nodiscard]] bool writeEeprom(Error* error);
    /// Whether an image of its memory is on its way to the keyer, which takes the line more than
    /// two seconds. Text waits meanwhile.
    [[nodiscard]] bool isLoadingMemory() const { return _memoryLoad != nullptr; }
    /// Has the keyer key one of its stored messages, 1 to 6; the low 8 bits are sent as they are.
    /// Nothing happens while isLoadingMemory(), when no stop would reach the keyer.
    void sendStandaloneMessage(int number);
    /// Writes the codes of `message` from `start` on. False, and nothing written, when it holds a
    /// character without a code or reaches beyond the image.
    [[nodiscard]] static bool encodeMessage(const QString& message, std::uint8_t start,
                                            KeyerMemory::Image& image);
    /// The message that begins at `start`, up to its end mark, the first byte that is no code, or
    /// the size of the message area. Wraps at the end of the image.
    [[nodiscard]] static QString decodeMessage(const KeyerMemory::Image& image, std::uint8_t start);
    /// The character of a code; of those that share it, the first in the table. 0 for no code.
    [[nodiscard]] static char morseToAscii(std::uint8_t code);

    [[nodiscard]] int pauseState() const { return _pauseState; }
    /// Also tells the keyer, and sends waiting text when the pause ends.
    void setPauseState(int state);
    [[nodiscard]] int tuneState() const { return _tuneState; }
    void setTuneState(int state);
    [[nodiscard]] int hscwState() const { return _hscwState; }
    void setHscwState(int state);
    [[nodiscard]] int beaconState() const { return _beaconState; }
    void setBeaconState(int state);

    /// The speed pot's last reading, in wpm; nothing before the first.
    [[nodiscard]] std::optional<qint64> speedOfPot() const { return _speedOfPot; }
    /// The same as "25 WPM"; null before the first.
    [[nodiscard]] QString speedString() const;
    /// The keyer's firmware version; nothing fills it by itself.
    [[nodiscard]] QString versionString() const { return _versionString; }
    void setVersionString(const QString& version);
    /// All text of this sending run, sent and to be sent.
    [[nodiscard]] QString keyboardBuffer() const { return _text.text(); }
    void setKeyboardBuffer(const QString& text);
    /// The other station's call sign.
    [[nodiscard]] QString hisCallsign() const { return _text.callsign(); }
    void setHisCallsign(const QString& callsign);
    /// The contest serial number.
    [[nodiscard]] qint64 serialNumber() const { return _serialNumber; }
    void setSerialNumber(qint64 number);

    /// Index of the next character of keyboardBuffer to be sent.
    [[nodiscard]] qsizetype outputBufferIndex() const { return _text.index(); }
    /// The rate of high-speed CW that the keyer was told last, in hundreds of letters a minute;
    /// nothing before the first. The setting may be another one by now.
    [[nodiscard]] std::optional<qint64> highSpeed() const { return _highSpeed; }

    /// When the beacon is to send again, by the platform's clock; nothing while it is off, or waits
    /// for the keyer to be idle.
    [[nodiscard]] std::optional<Clock::Duration> beaconDue() const;

    /// Index of the first character of keyboardBuffer that the keyer has been given and has not
    /// echoed; outputBufferIndex() when there is none.
    [[nodiscard]] qsizetype inFlightIndex() const { return _text.inFlightIndex(); }
    /// As inFlightIndex(), but of a near keyer, too, only an echo counts. With echoes switched off
    /// it is the same.
    [[nodiscard]] qsizetype unheardIndex() const;

    /// What has been handed over of the call sign at the "~" that was come upon last.
    [[nodiscard]] const QString& takenOfCallsign() const { return _text.takenOfCallsign(); }
    /// How many of the characters at the place in the text that the keyer has come to have no echo.
    [[nodiscard]] qsizetype unheardAtOldest() const;

  Q_SIGNALS:
    /// activity() or serialPortName() is another one now.
    void activityChanged();
    /// inFlightIndex(), unheardIndex() or outputBufferIndex() may be another one now.
    void sendingProgressed();
    /// What was sent in place of the "~" at `position` of keyboardBuffer, all of it by now: the
    /// call sign may have changed meanwhile, or since.
    void callsignSent(qsizetype position, const QString& call);
    /// The keyer was sent all that brings it into host mode.
    void greeted();
    /// The port that a sleep had closed does not open again.
    void reopeningFailed();
    /// A byte has come from the keyer, and has been handled.
    void heard();
    /// The keyer is idle and says nothing more: what was on its way counts as keyed.
    void countedAsKeyed();
    /// Text, or a change of speed within it, is about to be written.
    void willSend();
    /// The keyer was told to go back to a speed that is not set by the computer.
    void setSpeedEnded();
    /// The keyer has told its status, in a byte that reports no push-buttons; see KeyerStatus.
    void statusReceived(std::uint8_t status);
    /// Sending was stopped by stopMessageSending(), which ends a tune in the keyer too.
    void messageSendingStopped();
    /// The port is being closed by another, which stops what was being sent or waited to be.
    void sendingCutShort();
    /// An image of the keyer's memory is about to be written, behind which a key up would queue.
    void willLoadMemory();
    /// isLoadingMemory() is another one now, or an image could not be written.
    void isLoadingMemoryChanged();
    /// silence() has keyed up, over a line that took all of it, and so ended a tune.
    void silenced();
    void speedStringChanged();
    void highSpeedChanged();
    void versionStringChanged();
    void keyboardBufferChanged();
    void hisCallsignChanged();
    void serialNumberChanged();
    void pauseStateChanged();
    void tuneStateChanged();
    void hscwStateChanged();
    void beaconStateChanged();

  private:
    /// What the sending loop does after one step.
    enum class Step { GoOn, WaitForEcho };

    WinKeyerUsb();

    [[nodiscard]] bool sendToPort(const QByteArray& bytes);
    [[nodiscard]] bool refuse(Error* error, const Error& reason);
    void forgetPortName();
    void releasePort();
    void setSpeedOfPot(std::optional<qint64> wpm);
    void appendSendableText(const QString& text);
    void announceActivity();
    void clearKeyer();
    void makeWay();
    void keepWhole(qsizetype bytes);
    void oweSettings();
    void sendSettingsAgain();
    void beginHostMode();
    void completeHostMode();

    void handleByte(std::uint8_t byte);
    void handleStatus(std::uint8_t status);
    void handleIdle();
    void handleBreakIn();
    void takeEcho(std::uint8_t echo);

    void restrictToText();
    void followEchoes();
    void tellSentCall();
    void endCallsign();
    void noteUnheard(char character, bool isJoined);
    void takeBackUnheard();
    void forgetOnTheirWay();
    void awaitSilence();
    void endSilence();
    void countAsKeyed();

    void beginMemoryLoad();
    void endMemoryLoad();

    void continueRun();
    [[nodiscard]] bool isRunUnderWay() const;
    [[nodiscard]] Clock::Duration runAhead() const;
    void writeAhead(const QByteArray& bytes);
    [[nodiscard]] Step sendNext();
    [[nodiscard]] Step sendNextOfHisCallsign();
    [[nodiscard]] Step sendCharacter(char character);
    [[nodiscard]] Step beginHSCW();
    [[nodiscard]] Step endHSCW();
    [[nodiscard]] Step mergeLetters();
    void sendText(const QByteArray& bytes);
    [[nodiscard]] Step sendPlain(char character);
    [[nodiscard]] bool isNextHeldBack() const;
    [[nodiscard]] qint64 hscwSpeed() const;
    void noteHighSpeed(qint64 speed);

    std::shared_ptr<ORSSerialPort> _winKeyerSerialPort;
    bool _isHostMode = false;
    std::uint8_t _wkStatus = 0;
    bool _hasHeardFromKeyer = false;
    bool _mayBeKeying = false;
    bool _isKeyerPlaying = false;
    bool _isToBeGreetedAgain = false;
    bool _isAsleep = false;
    Clock::Duration _uncutUntil{0};
    SentSettings _sentSettings;
    std::shared_ptr<Timer> _settingsTimer;
    std::shared_ptr<Timer> _memoryLoad;
    Clock::Duration _memoryLoadEnd{0};
    std::optional<std::uint8_t> _lastStatus;
    KeyerActivity _announcedActivity = KeyerActivity::NotConnected;
    QString _announcedPortName;
    std::optional<qint64> _speedOfPot;
    QString _versionString;

    SendingText _text;
    TextSource _textSource;
    bool _sendingState = false;
    bool _sendIsDue = false;
    CharactersOnTheirWay _onTheirWay;
    UnheardCharacters _unheard;
    /// Where in the text begins what is sent with the next plain character.
    qsizetype _unitBegin = 0;
    /// A call sign that is not yet keyed as a whole, and the place of its sign.
    std::optional<std::pair<qsizetype, QString>> _sentCall;
    std::shared_ptr<Timer> _silenceTimer;
    int _runLimit = 0;
    Clock::Duration _runIsOut{0};
    std::shared_ptr<Timer> _runTimer;
    qint64 _serialNumber = 1;

    int _pauseState = 0;
    int _tuneState = 0;
    int _hscwState = 0;
    std::optional<qint64> _highSpeed;
    int _beaconState = 0;
    QString _beaconMessage;
    std::shared_ptr<Timer> _beaconTimer;
    Clock::Duration _beaconDue{0};
};
