#pragma once

#include <QObject>

class QuorvelDelegate;

/// The one way out of the program, so that the keyer is never left in host mode or keying: whoever
/// ends it, the link is taken down, everyone is told, and the event loop ends.
///
/// Hears the last window close, the desktop's request to quit, and the end of the session and of
/// the machine. An X11 desktop that goes without a word, as when the screen's server fails, has the
/// toolkit call exit(), and the keyer is left by way of that. A Wayland desktop that goes may have
/// it call _exit() or abort(), which nothing hears but the key guard.
///
/// One at a time; main thread only.
class Termination final : public QObject {
    Q_OBJECT
  public:
    /// `delegate` must outlive this.
    explicit Termination(QuorvelDelegate& delegate);
    ~Termination() override;

    enum class Cause {
        /// Quit, or the last window closed: the operator is there.
        Operator,
        /// A signal, the end of the session or of the machine: nobody may be there.
        System
    };

    /// Asked again while an alert of the way out waits, it ends that alert; the link is taken down
    /// only once.
    void terminate(Cause cause);

    /// Takes the link down, if nothing has yet, where the process exits with no desktop and no
    /// event loop: nothing is shown, and nobody is told.
    void terminateWithoutDesktop();

  Q_SIGNALS:
    /// Once, before the link is taken down.
    void begun(Termination::Cause cause);
    /// Once, when the link has been taken down.
    void hasLeftKeyer();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QuorvelDelegate& _delegate;
    bool _hasBegun = false;
};
