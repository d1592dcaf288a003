#pragma once

#include "platform/FileDescriptor.h"
#include "platform/linux/DeviceSource.h"

#include <QFileInfo>
#include <QFileSystemWatcher>
#include <QSet>

#include <map>
#include <optional>

/// The ports directory: each symbolic link in it to a terminal device is a serial port of the
/// link's name, in which characters that nobody sees are written out. So programs that make
/// terminals (software keyers, network bridges) have a place where they can show them, without a
/// right that an ordinary user does not have.
class PortsDirectorySource final : public DeviceSource {
    Q_OBJECT
  public:
    /// quorvel/ports in the user's runtime directory; null when the user has none.
    [[nodiscard]] static QString standardPath();

    /// Makes the directory and its parent, for the user alone, if they are missing. Whatever
    /// happens to it later is followed; it is not made again.
    explicit PortsDirectorySource(const QString& path);

    [[nodiscard]] QList<SerialDevice> devices() override;
    [[nodiscard]] bool has(const SerialDevice& device) override;

  private:
    [[nodiscard]] QStringList chain() const;
    void tellOfMissingWatches();
    void makeDirectories();
    void watchAnew(const QStringList& directories);
    void watch(const QStringList& directories);
    [[nodiscard]] QStringList targetDirectories(const QFileInfoList& links) const;
    [[nodiscard]] bool isTrusted();
    [[nodiscard]] QFileInfoList links();
    [[nodiscard]] std::optional<SerialDevice> deviceAt(const QFileInfo& link);
    [[nodiscard]] bool isItsTerminal(const QString& identity, const QString& terminal,
                                     const QString& link);
    void forgetAllBut(const QSet<QString>& identities);

    QString _path;
    QFileSystemWatcher _watcher;
    /// The terminals that were found to be those of their links, by the device's identity: they
    /// are for as long as they are there, whatever becomes of their times.
    std::map<QString, FileDescriptor> _known;
    /// The devices that the log has said are none.
    QSet<QString> _passedOver;
    bool _wasReadable = true;
    bool _wasTrusted = true;
};
