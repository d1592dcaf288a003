#include "portcheck/PortReport.h"

#include <QCoreApplication>
#include <QDir>
#include <QRegularExpression>

#include <algorithm>
#include <pwd.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

QString linesOf(const PortFinding& finding) {
    auto lines = u"  %1: %2\n"_s.arg(finding.label(), finding.what);
    if (!finding.advice.isNull()) {
        lines += u"    %1\n"_s.arg(finding.advice);
    }
    if (!finding.command.isNull()) {
        lines += u"        %1\n"_s.arg(finding.command);
    }
    return lines;
}

/// A report is meant for strangers' eyes. The superuser's name is everybody's.
QString withoutUser(QString text, const QString& home, const QString& login) {
    if (home.size() > 1) {
        text.replace(home, u"~"_s);
    }
    if (!login.isEmpty() && login != "root"_L1) {
        text.replace(
            QRegularExpression(u"(?<![\\w-])%1(?![\\w-])"_s.arg(QRegularExpression::escape(login))),
            u"USER"_s);
    }
    return text;
}

} // namespace

QString PortFinding::label() const {
    switch (kind) {
    case Kind::Good:
        return QCoreApplication::translate("PortReport", "OK");
    case Kind::Hint:
        return QCoreApplication::translate("PortReport", "Note");
    case Kind::Problem:
        return QCoreApplication::translate("PortReport", "Problem");
    }
    return {};
}

bool PortEntry::hasProblem() const {
    return std::ranges::any_of(
        findings, [](const PortFinding& each) { return each.kind == PortFinding::Kind::Problem; });
}

bool PortReport::hasUsablePort() const {
    return std::ranges::any_of(entries, [](const PortEntry& each) {
        return !each.hasProblem() &&
               std::ranges::any_of(each.findings, [](const PortFinding& finding) {
                   return finding.kind == PortFinding::Kind::Good;
               });
    });
}

QString PortReport::asText() const {
    const auto* const user = ::getpwuid(::geteuid());
    return asText(QDir::homePath(),
                  user != nullptr ? QString::fromLocal8Bit(user->pw_name) : QString());
}

QString PortReport::asText(const QString& home, const QString& login) const {
    QStringList paragraphs;
    for (const auto& entry : entries) {
        auto paragraph = entry.title + u'\n';
        for (const auto& finding : entry.findings) {
            paragraph += linesOf(finding);
        }
        paragraphs.append(paragraph);
    }
    return withoutUser(paragraphs.join(u'\n'), home, login);
}
