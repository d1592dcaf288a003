#pragma once

#include <QDBusConnection>
#include <QObject>

/// The bus of the user's session, watched for its end: the session has ended with it, or is no
/// longer one that a program can be worked in. Main thread only.
class SessionBus final : public QObject {
    Q_OBJECT
  public:
    /// Where there is no bus to begin with, nothing ends.
    explicit SessionBus(const QDBusConnection& bus = QDBusConnection::sessionBus());

  Q_SIGNALS:
    void hasGone();

  private Q_SLOTS:
    void noteEnd();
};
