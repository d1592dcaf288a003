#pragma once

#include "platform/Application.h"
#include "platform/NotificationCenter.h"

#include <QObject>
#include <QStringList>

class QLineEdit;
class WinKeyerUsb;

/// Controls the application: brings the keyer link up at launch and down at quit, keeps the list
/// of ports that can be chosen, and asks the operator when ports come and go. Main thread only.
class QuorvelDelegate final : public QObject, public ApplicationDelegate {
    Q_OBJECT
    Q_PROPERTY(
        QStringList serialPortNameArray READ serialPortNameArray NOTIFY serialPortNameArrayChanged)

  public:
    enum class TerminateReply { TerminateNow = 1 };

    /// `engine` must outlive it.
    explicit QuorvelDelegate(WinKeyerUsb& engine);
    ~QuorvelDelegate() override;

    /// Has the field take nothing but what a call sign is made of.
    void awakeFromNib(QLineEdit& hisCallsignTextField);

    /// Lists the ports, begins to follow them, and connects to the keyer.
    void applicationDidFinishLaunching();

    /// Takes the keyer link down. Quitting is never refused.
    TerminateReply applicationShouldTerminate();

    [[nodiscard]] bool applicationShouldTerminateAfterLastWindowClosed() const { return true; }

    void changeSerialPort(const QObject* sender) override;

    /// "None" and the names of the ports that are present, in the port manager's order.
    [[nodiscard]] QStringList serialPortNameArray() const { return _serialPortNameArray; }

    [[nodiscard]] WinKeyerUsb& winKeyerUsb() const { return _engine; }

  Q_SIGNALS:
    void serialPortNameArrayChanged();
    /// The keyer link is about to be taken down, which takes two seconds: the last moment to tell
    /// the keyer anything.
    void willDisconnect();

  private:
    bool disconnectFromKeyer(Error* error);
    void connectToKeyer();
    void setSerialPortNameArray(const QStringList& names);
    void updateSerialPortList();
    void serialPortAdded(const Notification& notification);
    void serialPortRemoved(const Notification& notification);

    WinKeyerUsb& _engine;
    QStringList _serialPortNameArray;
    bool _isTerminating = false;
};
