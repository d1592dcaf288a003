#include "portcheck/linux/NodeReader.h"

#include <QFile>

#include <algorithm>
#include <grp.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace {

QString nameOfGroup(gid_t group) {
    const auto* const entry = ::getgrgid(group);
    return entry != nullptr ? QString::fromLocal8Bit(entry->gr_name) : QString::number(group);
}

/// By the list of users, which a session that began earlier does not go by.
bool isMemberOf(gid_t group) {
    const auto* const user = ::getpwuid(::geteuid());
    if (user == nullptr) {
        return false;
    }
    int count = 0;
    ::getgrouplist(user->pw_name, user->pw_gid, nullptr, &count);
    std::vector<gid_t> groups(static_cast<std::size_t>(count));
    return ::getgrouplist(user->pw_name, user->pw_gid, groups.data(), &count) >= 0 &&
           std::ranges::find(groups, group) != groups.end();
}

} // namespace

NodeAccess NodeReader::access(const QString& path) {
    constexpr mode_t groupsAccess = S_IRGRP | S_IWGRP;
    const auto name = QFile::encodeName(path);
    struct stat status {};
    if (::stat(name.constData(), &status) != 0) {
        return {};
    }
    const bool isGroups = (status.st_mode & groupsAccess) == groupsAccess;
    return {.isThere = true,
            .isGranted = ::access(name.constData(), R_OK | W_OK) == 0,
            .group = isGroups ? nameOfGroup(status.st_gid) : QString(),
            .isMember = isGroups && isMemberOf(status.st_gid)};
}
