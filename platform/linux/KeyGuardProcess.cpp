#include "platform/linux/KeyGuardProcess.h"

#include "platform/Uninterrupted.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

#include <cerrno>
#include <csignal>
#include <poll.h>
#include <spawn.h>
#include <string>
#include <sys/socket.h>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

/// A guard that sleeps leaves at once; one that the system has stopped never does.
constexpr int patience = 500; // milliseconds

[[noreturn]] void fail(int error) {
    throw std::system_error(error, std::generic_category(), "key guard");
}

void check(int error) {
    if (error != 0) {
        fail(error);
    }
}

/// What the new process has from the start, so that no signal that ends this one reaches it in
/// between: a session of its own, and all signals blocked.
class SpawnAttributes {
  public:
    SpawnAttributes() {
        sigset_t all;
        ::sigfillset(&all);
        check(::posix_spawnattr_init(&_attributes));
        ::posix_spawnattr_setsigmask(&_attributes, &all);
        ::posix_spawnattr_setflags(&_attributes, POSIX_SPAWN_SETSID | POSIX_SPAWN_SETSIGMASK);
    }
    SpawnAttributes(const SpawnAttributes&) = delete;
    SpawnAttributes& operator=(const SpawnAttributes&) = delete;
    ~SpawnAttributes() { ::posix_spawnattr_destroy(&_attributes); }

    [[nodiscard]] const posix_spawnattr_t* get() const { return &_attributes; }

  private:
    posix_spawnattr_t _attributes;
};

/// Descriptors that the new process inherits, under the same numbers.
class InheritedDescriptors {
  public:
    InheritedDescriptors(std::initializer_list<int> descriptors) {
        check(::posix_spawn_file_actions_init(&_actions));
        for (const int each : descriptors) {
            check(::posix_spawn_file_actions_adddup2(&_actions, each, each));
        }
    }
    InheritedDescriptors(const InheritedDescriptors&) = delete;
    InheritedDescriptors& operator=(const InheritedDescriptors&) = delete;
    ~InheritedDescriptors() { ::posix_spawn_file_actions_destroy(&_actions); }

    [[nodiscard]] const posix_spawn_file_actions_t* get() const { return &_actions; }

  private:
    posix_spawn_file_actions_t _actions;
};

} // namespace

QString KeyGuardProcess::standardProgram() {
    const QDir here(QCoreApplication::applicationDirPath());
    const QString beside = here.filePath(u"quorvel-key-guard"_s);
    const QString installed =
        here.filePath(QStringLiteral(QUORVEL_LIBEXEC_DIRECTORY "/quorvel-key-guard"));
    return QFile::exists(beside) ? beside : installed;
}

KeyGuardProcess::KeyGuardProcess(const QString& program, int port) {
    int ends[2] = {};
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends) != 0) {
        fail(errno);
    }
    _channel = FileDescriptor(ends[0]);
    const FileDescriptor guardsEnd(ends[1]);
    start(program, port, guardsEnd.get());
    _notifier = std::make_unique<QSocketNotifier>(_channel.get(), QSocketNotifier::Read);
    connect(_notifier.get(), &QSocketNotifier::activated, this, &KeyGuardProcess::collect);
}

KeyGuardProcess::~KeyGuardProcess() {
    if (_process == 0) {
        return;
    }
    tell(GuardMessage::Farewell);
    if (!hasHungUpWithin(patience)) {
        ::kill(_process, SIGKILL);
    }
    static_cast<void>(reap());
}

void KeyGuardProcess::start(const QString& program, int port, int channel) {
    const SpawnAttributes attributes;
    const InheritedDescriptors inherited{port, channel};
    const auto path = QFile::encodeName(program);
    auto name = path.toStdString();
    auto portArgument = std::to_string(port);
    auto channelArgument = std::to_string(channel);
    char* const arguments[] = {name.data(), portArgument.data(), channelArgument.data(), nullptr};
    check(::posix_spawn(&_process, path.constData(), inherited.get(), attributes.get(), arguments,
                        environ));
}

void KeyGuardProcess::tell(GuardMessage message) {
    // Where it has ended, the notifier says so. A guard that does not listen is stopped for good.
    static_cast<void>(
        ::send(_channel.get(), &message, sizeof message, MSG_NOSIGNAL | MSG_DONTWAIT));
}

/// The guard never says anything: the end of its end is all that can come.
void KeyGuardProcess::collect() {
    _notifier->setEnabled(false);
    Q_EMIT ended(reap());
}

std::optional<GuardEnd> KeyGuardProcess::reap() {
    int status = 0;
    const auto process = std::exchange(_process, 0);
    const auto result = uninterrupted([&] { return ::waitpid(process, &status, 0); });
    if (result != process || !WIFEXITED(status)) {
        return {};
    }
    return static_cast<GuardEnd>(WEXITSTATUS(status));
}

bool KeyGuardProcess::hasHungUpWithin(int milliseconds) const {
    pollfd waited{_channel.get(), POLLIN, 0};
    return uninterrupted([&] { return ::poll(&waited, 1, milliseconds); }) > 0;
}
