#pragma once

#include <QObject>

class QuorvelDelegate;

/// The one way out of the program, so that the keyer is never left in host mode or keying: whoever
/// ends it, the link is taken down, everyone is told, and the event loop ends.
///
/// Hears the last window close, the desktop's request to quit, and the end of the session and of
/// the machine. Main thread only.
class Termination final : public QObject {
    Q_OBJECT
  public:
    /// `delegate` must outlive this.
    explicit Termination(QuorvelDelegate& delegate);

    /// Asked again while an alert of the way out waits, it ends that alert; the link is taken down
    /// only once.
    void terminate();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QuorvelDelegate& _delegate;
    bool _hasBegun = false;
};
