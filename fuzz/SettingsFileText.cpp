// Any bytes as a settings file: it is read, or its damage is told, and what was read of it is the
// same when it has been written and read again.

#include "platform/SettingsFile.h"

#include <QFile>
#include <QTemporaryDir>

#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const QTemporaryDir folder;
    static const auto path = folder.filePath(QStringLiteral("quorvel.conf"));
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate)) {
        std::abort();
    }
    file.write(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    file.close();
    const auto content = SettingsFile::read(path);
    if (content.damage != SettingsFile::Damage::None) {
        return 0;
    }
    const auto result = SettingsFile::write(
        path, {{QStringLiteral("Added"), {1, std::chrono::system_clock::now()}}}, content.values);
    const auto again = SettingsFile::read(path);
    auto expected = content.values;
    expected.insert(QStringLiteral("Added"), QStringLiteral("1"));
    if (!result.problem.isNull() || again.damage != SettingsFile::Damage::None ||
        again.values.keys().size() != expected.keys().size()) {
        std::abort();
    }
    return 0;
}
