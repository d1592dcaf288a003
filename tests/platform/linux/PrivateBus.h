#pragma once

#include <QDBusConnection>
#include <QProcess>
#include <QString>
#include <QTemporaryDir>

/// A message bus of the test's own, on which nothing is but what the test puts there.
class PrivateBus {
  public:
    PrivateBus();
    PrivateBus(const PrivateBus&) = delete;
    PrivateBus& operator=(const PrivateBus&) = delete;
    ~PrivateBus();

    /// A new connection to the bus, under a name within this program that no other one has. It
    /// lasts until the name is disconnected.
    [[nodiscard]] QDBusConnection connect(const QString& name) const;

  private:
    QTemporaryDir _directory;
    QProcess _daemon;
    QString _address;
};
