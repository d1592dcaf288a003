#pragma once

#include <QList>
#include <QString>
#include <QStringList>

/// Which chip a USB adapter has: its vendor and product, as the four hexadecimal digits that udev
/// gives. Null for what is no USB device.
struct UsbChip {
    QString vendor = {};
    QString product = {};

    friend bool operator==(const UsbChip&, const UsbChip&) = default;
};

/// What this user may do with a node.
struct NodeAccess {
    bool isThere = false;
    /// Whether it may be opened for reading and writing.
    bool isGranted = false;
    /// The group that may open it; null when no group may.
    QString group = {};
    /// Whether the user is a member of it, by the system's list of users.
    bool isMember = false;
};

/// What is known of one serial port without opening it.
struct PortFacts {
    /// As the operator sees it, and the settings keep it.
    QString name;
    QString node;
    bool isUsb = false;
    UsbChip chip = {};
    NodeAccess access = {};
    /// Whether the desktop gives the node to whoever sits at the machine.
    bool isForTheSeatedUser = false;
    /// Other programs that have it open, as "NAME (process NUMBER)", as far as the system tells.
    QStringList users = {};
    /// Whether the service that looks for modems leaves it alone.
    bool isNoModem = false;
    /// Whether the braille service takes the chip for one of its displays.
    bool isForBraille = false;
    /// For how long the adapter gathers received bytes, in ms; 0 where it does not.
    int latency = 0;
    /// Whether this user may change that.
    bool isLatencyWritable = false;
};

/// A USB adapter with a serial chip that has no port.
struct AdapterFacts {
    /// The socket that it sits in, such as 1-1.2.
    QString place;
    UsbChip chip;
    /// What has taken it; null for nothing.
    QString driver = {};
    /// As those of a port.
    QStringList users = {};
};

/// What this program knows of its own link to a keyer.
struct LinkFacts {
    /// The port that is chosen; null for none.
    QString wantedPort = {};
    /// The port that is open; null for none.
    QString connectedPort = {};
    /// Whether anything has come from the keyer on it.
    bool hasAnswered = false;
};

/// All that a check of the ports goes by.
struct MachineFacts {
    LinkFacts link = {};
    QList<PortFacts> ports = {};
    QList<AdapterFacts> adapters = {};
    /// Without it devices come without permissions, and unnoticed.
    bool isUdevRunning = true;
    /// The service that looks for modems.
    bool isModemManagerRunning = false;
    /// The service for braille displays.
    bool isBrailleServiceRunning = false;
};
