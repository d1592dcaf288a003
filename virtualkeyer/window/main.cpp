#include "translations/Translations.h"
#include "virtualkeyer/CommandLine.h"
#include "virtualkeyer/Session.h"
#include "virtualkeyer/pty/StopSignals.h"
#include "virtualkeyer/sound/LiveSidetone.h"
#include "virtualkeyer/window/KeyerLink.h"
#include "virtualkeyer/window/KeyerThread.h"
#include "virtualkeyer/window/KeyerWindow.h"
#include "virtualkeyer/window/ScopeTap.h"
#include "virtualkeyer/window/WireTap.h"

#include <QApplication>
#include <QLocale>
#include <QMessageBox>
#include <QSocketNotifier>

#include <csignal>
#include <cstdlib>
#include <stdexcept>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace virtualkeyer;

namespace {

char** startArguments = nullptr;
QtMessageHandler usualHandler = nullptr;

/// A display that is set and not there: the other program does without it, and says so.
void goOnWithoutWindow(QtMsgType type, const QMessageLogContext& context, const QString& text) {
    if (type == QtFatalMsg) {
        ::unsetenv("DISPLAY");
        ::unsetenv("WAYLAND_DISPLAY");
        ::execvp(startArguments[0], startArguments);
    }
    usualHandler(type, context, text);
}

int run(const CommandLine& commandLine, const StopSignals& stopSignals) {
    KeyerLink link;
    WireTap wire;
    ScopeTap scope;
    ScopeTap practice;
    LiveSidetone sidetone;
    Session session(commandLine);
    session.add(link, link);
    session.add(wire);
    session.add(scope);
    session.add(practice);
    session.add(sidetone);
    KeyerWindow window(commandLine, link, wire, scope, practice, sidetone);
    KeyerThread keyer(session);
    QObject::connect(&keyer, &KeyerThread::failed, &window, [&window](const QString& reason) {
        QMessageBox::critical(&window, {}, reason);
        QApplication::quit();
    });
    const QSocketNotifier signal(stopSignals.descriptor(), QSocketNotifier::Read);
    QObject::connect(&signal, &QSocketNotifier::activated, qApp, &QApplication::quit);
    keyer.start();
    sidetone.start();
    window.show();
    QApplication::exec();
    // Lets go of what is held while there is somebody to tell.
    window.hide();
    return static_cast<int>(keyer.end());
}

} // namespace

/// The other program has read the arguments, and answered those that want no window.
int main(int argc, char* argv[]) {
    std::signal(SIGPIPE, SIG_IGN);
    const StopSignals stopSignals;
    startArguments = argv;
    usualHandler = qInstallMessageHandler(goOnWithoutWindow);
    const QApplication application(argc, argv);
    qInstallMessageHandler(nullptr);
    QApplication::setApplicationName(u"quorvel-virtual-keyer"_s);
    QApplication::setApplicationVersion(QStringLiteral(QUORVEL_VERSION));
    const Translations translations{QLocale()};
    const CommandLine commandLine = CommandLine::parse(QApplication::arguments());
    try {
        if (!commandLine.error.isEmpty()) {
            throw std::runtime_error(commandLine.error.toStdString());
        }
        return run(commandLine, stopSignals);
    } catch (const std::runtime_error& error) {
        complain(error.what());
        return static_cast<int>(ExitStatus::BadOptions);
    }
}
