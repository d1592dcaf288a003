#include "app/VirtualKeyer.h"

#include <QCoreApplication>
#include <QStandardPaths>

#include <csignal>
#include <sys/prctl.h>

using namespace Qt::StringLiterals;

QString VirtualKeyer::standardProgram() {
    const auto name = u"quorvel-virtual-keyer"_s;
    const auto beside =
        QStandardPaths::findExecutable(name, {QCoreApplication::applicationDirPath()});
    const auto found = beside.isEmpty() ? QStandardPaths::findExecutable(name) : beside;
    return found.isEmpty() ? QString() : found;
}

VirtualKeyer::~VirtualKeyer() {
    constexpr int patience = 2000; // ms; it ends at once
    _isLeaving = true;
    if (_process.state() == QProcess::NotRunning) {
        return;
    }
    _process.terminate();
    if (!_process.waitForFinished(patience)) {
        _process.kill();
        _process.waitForFinished(patience);
    }
}

void VirtualKeyer::start() {
    if (_process.state() != QProcess::NotRunning) {
        return;
    }
    _process.disconnect(this);
    connect(&_process, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart) {
            tellOfEnd();
        }
    });
    connect(&_process, &QProcess::finished, this, &VirtualKeyer::tellOfEnd);
    // What it prints as keyed is for a terminal, and nobody reads it here.
    _process.setStandardInputFile(QProcess::nullDevice());
    _process.setStandardOutputFile(QProcess::nullDevice());
    _process.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGTERM); });
    _process.start(_program, {u"--headless"_s});
}

void VirtualKeyer::tellOfEnd() {
    if (_isLeaving) {
        return;
    }
    const auto said = QString::fromLocal8Bit(_process.readAllStandardError()).trimmed();
    const auto reason = said.isEmpty() ? _process.errorString() : said.section(u'\n', -1);
    Q_EMIT failed(tr("The virtual keyer does not run: %1").arg(reason));
}
