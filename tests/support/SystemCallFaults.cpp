#include "tests/support/SystemCallFaults.h"

#include <algorithm>
#include <cerrno>
#include <cstdarg>
#include <fcntl.h>
#include <linux/serial.h>
#include <map>
#include <mutex>
#include <poll.h>
#include <stdexcept>
#include <sys/ioctl.h>
#include <utility>
#include <vector>

namespace {

using Key = std::pair<SystemCall, unsigned long>;

struct Rule {
    Key key;
    int error;
    int first;
    int last;
    int seen = 0;
};

struct Table {
    std::vector<Rule> rules;
    std::map<Key, int> counts;
    std::map<SystemCall, std::function<void(int)>> before;
    std::optional<size_t> writeLength;
    std::optional<int> openResult;
    bool pollIsReadable = false;
    QList<SystemCallFaults::SetAttributes> setAttributes;
    std::optional<int> modemWord;
    QList<int> modemWordsSet;
    std::optional<int> serialFlags;
    int knownSerialFlags = 0;
    std::optional<int> outputWaiting;
    std::optional<int> closeError;
};

std::mutex mutex;
std::optional<Table> table;

// Whether the call is to fail; errno is set then.
bool fails(SystemCall call, int descriptor, unsigned long request = 0) {
    std::unique_lock lock(mutex);
    if (!table) {
        return false;
    }
    const Key key{call, request};
    ++table->counts[key];
    int error = 0;
    for (auto& rule : table->rules) {
        if (rule.key == key && ++rule.seen >= rule.first && rule.seen <= rule.last) {
            error = rule.error;
        }
    }
    if (const auto found = table->before.find(call); found != table->before.end()) {
        const auto action = found->second;
        lock.unlock();
        action(descriptor);
    }
    if (error != 0) {
        errno = error;
    }
    return error != 0;
}

bool answersModemRequest(unsigned long request, void* argument) {
    const std::scoped_lock lock(mutex);
    if (!table || !table->modemWord) {
        return false;
    }
    auto* const word = static_cast<int*>(argument);
    if (request == TIOCMGET) {
        *word = *table->modemWord;
    } else if (request == TIOCMSET) {
        table->modemWordsSet.append(*word);
        table->modemWord = *word;
    } else {
        return false;
    }
    return true;
}

bool answersSerialRequest(unsigned long request, void* argument) {
    const std::scoped_lock lock(mutex);
    if (!table || !table->serialFlags || (request != TIOCGSERIAL && request != TIOCSSERIAL)) {
        return false;
    }
    auto& settings = *static_cast<serial_struct*>(argument);
    if (request == TIOCGSERIAL) {
        settings.flags = *table->serialFlags;
    } else {
        table->serialFlags = settings.flags & table->knownSerialFlags;
    }
    return true;
}

bool answersOutputRequest(unsigned long request, void* argument) {
    const std::scoped_lock lock(mutex);
    if (!table || !table->outputWaiting || request != TIOCOUTQ) {
        return false;
    }
    *static_cast<int*>(argument) = *table->outputWaiting;
    return true;
}

template <typename Result>
std::optional<Result> taken(std::optional<Result> Table::*member) {
    const std::scoped_lock lock(mutex);
    return table ? std::exchange((*table).*member, std::nullopt) : std::nullopt;
}

} // namespace

SystemCallFaults::SystemCallFaults() {
    const std::scoped_lock lock(mutex);
    if (table) {
        throw std::logic_error("System calls are watched already.");
    }
    table.emplace();
}

SystemCallFaults::~SystemCallFaults() {
    const std::scoped_lock lock(mutex);
    table.reset();
}

void SystemCallFaults::fail(SystemCall call, int error, int first, int last) {
    const std::scoped_lock lock(mutex);
    table->rules.push_back({{call, 0}, error, first, last});
}

void SystemCallFaults::failIoctl(unsigned long request, int error, int first, int last) {
    const std::scoped_lock lock(mutex);
    table->rules.push_back({{SystemCall::Ioctl, request}, error, first, last});
}

void SystemCallFaults::mend() {
    const std::scoped_lock lock(mutex);
    table->rules.clear();
    table->pollIsReadable = false;
}

void SystemCallFaults::failNextCloseAfterwards(int error) {
    const std::scoped_lock lock(mutex);
    table->closeError = error;
}

void SystemCallFaults::shortenNextWrite(size_t length) {
    const std::scoped_lock lock(mutex);
    table->writeLength = length;
}

void SystemCallFaults::nextOpenReturns(int descriptor) {
    const std::scoped_lock lock(mutex);
    table->openResult = descriptor;
}

void SystemCallFaults::pollSaysReadable() {
    const std::scoped_lock lock(mutex);
    table->pollIsReadable = true;
}

void SystemCallFaults::beforeEach(SystemCall call, std::function<void(int)> action) {
    const std::scoped_lock lock(mutex);
    table->before[call] = std::move(action);
}

int SystemCallFaults::count(SystemCall call) const {
    const std::scoped_lock lock(mutex);
    return table->counts[{call, 0}];
}

int SystemCallFaults::countIoctl(unsigned long request) const {
    const std::scoped_lock lock(mutex);
    return table->counts[{SystemCall::Ioctl, request}];
}

QList<SystemCallFaults::SetAttributes> SystemCallFaults::setAttributes() const {
    const std::scoped_lock lock(mutex);
    return table->setAttributes;
}

void SystemCallFaults::setModemWord(int word) {
    const std::scoped_lock lock(mutex);
    table->modemWord = word;
}

int SystemCallFaults::modemWord() const {
    const std::scoped_lock lock(mutex);
    return table->modemWord.value_or(0);
}

void SystemCallFaults::setSerialFlags(int flags, int known) {
    const std::scoped_lock lock(mutex);
    table->serialFlags = flags;
    table->knownSerialFlags = known;
}

int SystemCallFaults::serialFlags() const {
    const std::scoped_lock lock(mutex);
    return table->serialFlags.value_or(0);
}

void SystemCallFaults::setOutputWaiting(int count) {
    const std::scoped_lock lock(mutex);
    table->outputWaiting = count;
}

QList<int> SystemCallFaults::modemWordsSet() const {
    const std::scoped_lock lock(mutex);
    return table->modemWordsSet;
}

extern "C" {

int __real_open(const char* path, int flags, ...);
int __real_openat(int directory, const char* path, int flags, ...);
int __real_fcntl(int descriptor, int command, ...);
int __real_tcgetattr(int descriptor, termios* record);
int __real_tcsetattr(int descriptor, int actions, const termios* record);
int __real_ioctl(int descriptor, unsigned long request, ...);
int __real_flock(int descriptor, int operation);
int __real_poll(pollfd* descriptors, nfds_t count, int timeout);
ssize_t __real_read(int descriptor, void* buffer, size_t length);
ssize_t __real_write(int descriptor, const void* buffer, size_t length);
int __real_close(int descriptor);

int __wrap_open(const char* path, int flags, ...) {
    std::va_list arguments;
    va_start(arguments, flags);
    const auto mode = va_arg(arguments, mode_t);
    va_end(arguments);
    if (fails(SystemCall::Open, -1)) {
        return -1;
    }
    if (const auto descriptor = taken(&Table::openResult)) {
        return *descriptor;
    }
    return __real_open(path, flags, mode);
}

int __wrap_openat(int directory, const char* path, int flags, ...) {
    std::va_list arguments;
    va_start(arguments, flags);
    const auto mode = va_arg(arguments, mode_t);
    va_end(arguments);
    return fails(SystemCall::OpenAt, directory) ? -1 : __real_openat(directory, path, flags, mode);
}

int __wrap_fcntl(int descriptor, int command, ...) {
    std::va_list arguments;
    va_start(arguments, command);
    void* const argument = va_arg(arguments, void*);
    va_end(arguments);
    return fails(SystemCall::Fcntl, descriptor) ? -1 : __real_fcntl(descriptor, command, argument);
}

int __wrap_tcgetattr(int descriptor, termios* record) {
    return fails(SystemCall::TcGetAttr, descriptor) ? -1 : __real_tcgetattr(descriptor, record);
}

int __wrap_tcsetattr(int descriptor, int actions, const termios* record) {
    if (fails(SystemCall::TcSetAttr, descriptor)) {
        return -1;
    }
    {
        const std::scoped_lock lock(mutex);
        if (table) {
            table->setAttributes.append({actions, *record});
        }
    }
    return __real_tcsetattr(descriptor, actions, record);
}

int __wrap_ioctl(int descriptor, unsigned long request, ...) {
    std::va_list arguments;
    va_start(arguments, request);
    void* const argument = va_arg(arguments, void*);
    va_end(arguments);
    if (fails(SystemCall::Ioctl, descriptor, request)) {
        return -1;
    }
    if (answersModemRequest(request, argument) || answersSerialRequest(request, argument) ||
        answersOutputRequest(request, argument)) {
        return 0;
    }
    return __real_ioctl(descriptor, request, argument);
}

int __wrap_flock(int descriptor, int operation) {
    return fails(SystemCall::Flock, descriptor) ? -1 : __real_flock(descriptor, operation);
}

int __wrap_poll(pollfd* descriptors, nfds_t count, int timeout) {
    if (fails(SystemCall::Poll, descriptors[0].fd)) {
        return -1;
    }
    {
        const std::scoped_lock lock(mutex);
        if (table && table->pollIsReadable) {
            descriptors[0].revents = POLLIN;
            return 1;
        }
    }
    return __real_poll(descriptors, count, timeout);
}

ssize_t __wrap_read(int descriptor, void* buffer, size_t length) {
    return fails(SystemCall::Read, descriptor) ? -1 : __real_read(descriptor, buffer, length);
}

ssize_t __wrap_write(int descriptor, const void* buffer, size_t length) {
    if (fails(SystemCall::Write, descriptor)) {
        return -1;
    }
    const auto limit = taken(&Table::writeLength);
    return __real_write(descriptor, buffer, limit ? std::min(*limit, length) : length);
}

int __wrap_close(int descriptor) {
    if (fails(SystemCall::Close, descriptor)) {
        return -1;
    }
    const int result = __real_close(descriptor);
    if (const auto error = taken(&Table::closeError)) {
        errno = *error;
        return -1;
    }
    return result;
}
}
