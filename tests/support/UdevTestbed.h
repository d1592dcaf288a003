#pragma once

#include <QString>
#include <QStringList>

#include <memory>

struct _UMockdevTestbed;

/// A machine made of files whose devices the test plugs in and pulls out; udev reports them as it
/// would real ones. One at a time, in a program that umockdev is loaded into first.
class UdevTestbed {
  public:
    UdevTestbed();
    UdevTestbed(const UdevTestbed&) = delete;
    UdevTestbed& operator=(const UdevTestbed&) = delete;
    ~UdevTestbed();

    struct Adapter {
        /// The kernel's name of the terminal, such as ttyUSB0.
        QString kernelName;
        /// The socket, such as 1-1.2.
        QString place;
        /// Null for none.
        QString serialNumber;
        /// Whether udev knows the number, or only the adapter itself.
        bool isNumberKnownToUdev = true;
        /// Links below /dev, made and claimed.
        QStringList links = {};
        QString vendor = QStringLiteral("0403");
        QString product = QStringLiteral("6001");
        /// What udev's rules have said of the terminal, as "KEY=VALUE".
        QStringList properties = {};
        /// The content of its latency_timer; null for none.
        QString latency = {};
    };

    /// Plugs a USB adapter in; udev tells of it. Returns its terminal's path in sysfs.
    QString addAdapter(const Adapter& adapter);
    /// Plugs a USB adapter in of which the kernel makes no terminal; `driver` has taken it, or null
    /// for none.
    void addAdapterWithoutPort(const QString& place, const QString& vendor, const QString& product,
                               const QString& driver);
    /// Adds a port of the machine's own with this content of its "type" file; null for none.
    QString addPort(const QString& kernelName, const QString& type);
    /// Takes a terminal out of sysfs, without any event.
    void remove(const QString& path);
    /// Puts another terminal that is just like it in its place, without any event.
    void replace(const QString& path);
    /// Has udev tell of a terminal: "add", "remove".
    void announce(const QString& path, const QString& action);

    /// Makes a link below the machine's /dev lead to a node.
    void link(const QString& link, const QString& kernelName);
    /// The node of a terminal, made with these permissions if it is missing.
    void setNodeMode(const QString& kernelName, unsigned mode);

  private:
    [[nodiscard]] QString root() const;
    [[nodiscard]] QString addChannel(const Adapter& adapter, const QString& interface);

    _UMockdevTestbed* _testbed;
};
