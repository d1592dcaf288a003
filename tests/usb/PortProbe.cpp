#include "app/KeyGuard.h"
#include "app/QuorvelDelegate.h"
#include "keyer/GeneralSettings.h"
#include "keyer/KeyerSettings.h"
#include "keyer/MessageSettings.h"
#include "keyer/WinKeyerUsb.h"
#include "platform/Platform.h"
#include "platform/SystemClock.h"
#include "platform/linux/KeyGuardProcess.h"
#include "platform/linux/LinuxDeviceRegistry.h"
#include "serial/ORSSerialPortManager.h"

#include <QCoreApplication>
#include <QSocketNotifier>

#include <cstdio>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

void say(const QString& line) {
    std::puts(line.toUtf8().constData());
    std::fflush(stdout);
}

/// An operator who reads every alert aloud and wants every port.
class TalkingApplication final : public Application {
  public:
    AlertAnswer runModal(const Alert& alert) override {
        say(u"alert "_s + alert.messageText);
        return AlertAnswer::Default;
    }
};

/// The application without its window: what it tells is lines on the standard output, what the
/// operator does is lines on the standard input.
///
///     choose NAME    chooses the keyer's port, as the preferences do
///     type TEXT      types into the keyboard view
///     tune           keys the transmitter down
///     quit           ends, also when the input ends
class PortProbe final : public QObject {
  public:
    explicit PortProbe(QuorvelDelegate& delegate)
        : _delegate(delegate), _input(STDIN_FILENO, QSocketNotifier::Read) {
        QObject::connect(&_input, &QSocketNotifier::activated, this, [this] { read(); });
        QObject::connect(&engine(), &WinKeyerUsb::speedStringChanged, this,
                         [] { say(u"speed "_s + engine().speedString()); });
        auto& manager = ORSSerialPortManager::sharedSerialPortManager();
        QObject::connect(&manager, &ORSSerialPortManager::availablePortsInserted, this,
                         &PortProbe::watch);
        for (qsizetype index = 0; index < manager.countOfAvailablePorts(); ++index) {
            watch({index});
        }
    }

    /// After the delegate's launch, so that each event is told once the delegate has dealt with it.
    void start() {
        auto& center = NotificationCenter::defaultCenter();
        center.addObserver(
            this, ORSSerialPortWasConnectedNotification,
            [](const Notification& each) { tell(u"arrived"_s, each, ORSConnectedSerialPortsKey); });
        center.addObserver(this, ORSSerialPortWasDisconnectedNotification,
                           [](const Notification& each) {
                               tell(u"removed"_s, each, ORSDisconnectedSerialPortsKey);
                           });
        const auto& ports = ORSSerialPortManager::sharedSerialPortManager().availablePorts();
        if (!ports) {
            say(u"blind"_s);
            return;
        }
        for (const auto& port : *ports) {
            tell(u"present"_s, *port);
        }
        say(u"watching"_s);
    }

  private:
    [[nodiscard]] static WinKeyerUsb& engine() { return WinKeyerUsb::sharedInstance(); }

    void watch(const QList<qsizetype>& indexes) {
        for (const auto index : indexes) {
            auto& port =
                *ORSSerialPortManager::sharedSerialPortManager().objectInAvailablePortsAtIndex(
                    index);
            // A port that somebody holds is the same object when its device comes again.
            QObject::disconnect(&port, &ORSSerialPort::isOpenChanged, this, nullptr);
            QObject::connect(&port, &ORSSerialPort::isOpenChanged, this,
                             [&port] { tell(port.isOpen() ? u"opened"_s : u"closed"_s, port); });
        }
    }

    static void tell(const QString& what, const Notification& notification, QLatin1StringView key) {
        const auto ports = notification.userInfo.value(key).value<ORSSerialPortManager::Ports>();
        for (const auto& port : ports) {
            tell(what, *port);
        }
        tellConnection();
    }

    static void tell(const QString& what, const ORSSerialPort& port) {
        say(u"%1 %2 %3"_s.arg(what, port.name(), port.path()));
    }

    static void tellConnection() {
        say(engine().isConnected() ? u"keyer connected"_s : u"keyer disconnected"_s);
    }

    void read() {
        char bytes[4096];
        const auto count = ::read(STDIN_FILENO, bytes, sizeof bytes);
        if (count <= 0) {
            quit();
            return;
        }
        _received.append(bytes, count);
        for (auto end = _received.indexOf('\n'); end >= 0; end = _received.indexOf('\n')) {
            const auto line = QString::fromUtf8(_received.left(end));
            _received.remove(0, end + 1);
            obey(line.section(u' ', 0, 0), line.section(u' ', 1));
        }
    }

    void obey(const QString& command, const QString& argument) {
        if (command == "choose"_L1) {
            SettingsStore::standardUserDefaults().setObject(argument, WKPortName);
            _delegate.changeSerialPort(this);
            tellConnection();
        } else if (command == "type"_L1) {
            engine().setKeyboardBuffer(argument);
            engine().textDidChange();
        } else if (command == "tune"_L1) {
            tune();
        } else if (command == "quit"_L1) {
            quit();
        } else {
            say(u"unknown "_s + command);
        }
    }

    static void tune() {
        QObject sender;
        sender.setProperty("state", 1);
        engine().setTuneState(1);
        engine().tune(&sender);
    }

    void quit() {
        _input.setEnabled(false);
        _delegate.applicationShouldTerminate();
        NotificationCenter::defaultCenter().post(NSApplicationWillTerminateNotification, nullptr);
        say(u"ended"_s);
        QCoreApplication::exit();
    }

    QuorvelDelegate& _delegate;
    QSocketNotifier _input;
    QByteArray _received;
};

} // namespace

int main(int argc, char* argv[]) {
    const QCoreApplication toolkit(argc, argv);
    Platform platform({.settings = std::make_unique<SettingsStore>(SettingsStore::standardPath()),
                       .clock = std::make_unique<SystemClock>(),
                       .devices = std::make_unique<LinuxDeviceRegistry>(),
                       .application = std::make_unique<TalkingApplication>()});
    platform.settings().registerDefaults(defaultsOf(keyerSettings));
    platform.settings().registerDefaults(messageDefaults());
    platform.settings().registerDefaults(defaultsOf(generalSettings));

    QuorvelDelegate delegate(WinKeyerUsb::sharedInstance());
    const KeyGuard guard(WinKeyerUsb::sharedInstance(), KeyGuardProcess::standardProgram());
    PortProbe probe(delegate);
    delegate.applicationDidFinishLaunching();
    probe.start();
    return QCoreApplication::exec();
}
