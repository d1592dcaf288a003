#pragma once

#include <QKeyEvent>
#include <QObject>

/// Has a key that is held down act once, wherever in the application.
///
/// On X11 a repeat of a held key comes as a release and a press, which nothing but their common
/// time stamp tells from a key that was let go of and pressed again. The toolkit recognises the
/// pair only when both are there at once, which on a busy machine they are not. What it has taken
/// for a new press is handed on as a repeat here: no action or switch repeats, and a text does as
/// ever.
///
/// A repeat is what its press was, or nothing. The T of a held Ctrl+T goes on repeating when Ctrl
/// is let go of first, and is no text for that; nor is a key that was pressed in another program's
/// window.
///
/// To be made after whatever else looks at keys on their way.
class KeyRepeat final : public QObject {
    Q_OBJECT
  public:
    explicit KeyRepeat(QObject* parent = nullptr);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    /// What tells a key that is held from another one.
    struct Held {
        int key = 0;
        quint32 code = 0;
        Qt::KeyboardModifiers modifiers;
    };

    [[nodiscard]] bool filterPress(QObject& receiver, QKeyEvent& press);
    [[nodiscard]] bool isRepeat(const QKeyEvent& press) const;
    [[nodiscard]] bool isOfHeldKey(const QKeyEvent& repeat) const;

    Held _held;
    int _releasedKey = 0;
    quint32 _releasedCode = 0;
    quint64 _releasedAt = 0;
};
