#pragma once

#include <QObject>

#include <optional>

class WinKeyerUsb;

/// The speed that is set from the computer, in place of that of the knob on the keyer.
///
/// It is not stored: every greeting of the keyer begins with the knob's, and the keyer is told
/// nothing before a speed is chosen. A chosen one holds at once, within a text too, and is sent
/// again behind whatever ends it in the keyer. High-speed CW goes on: what is chosen meanwhile
/// holds when that ends. Main thread only.
class ChosenSpeed final : public QObject {
    Q_OBJECT
  public:
    /// In wpm, as the keyer takes them.
    static constexpr int slowest = 5;
    static constexpr int fastest = 99;

    /// `engine` must outlive this.
    explicit ChosenSpeed(WinKeyerUsb& engine, QObject* parent = nullptr);

    /// In wpm; nothing while the knob's speed is in force.
    [[nodiscard]] std::optional<int> wpm() const { return _wpm; }
    /// What is in force outside high-speed CW: the chosen one, or the knob's; nothing while that
    /// has not been read.
    [[nodiscard]] std::optional<int> inForce() const;

    /// Takes the nearest speed that the keyer can. Without a keyer nothing is chosen.
    void choose(int wpm);
    /// So many wpm faster, or slower, than what is in force; without that, nothing changes.
    void change(int difference);
    void backToKnob();

  Q_SIGNALS:
    /// wpm() is another one now.
    void changed();

  private:
    void set(std::optional<int> wpm);
    void tell();
    void tellWhatIsDue();
    void tellAgain();
    void forgetWithoutKeyer();
    [[nodiscard]] bool isLinked() const;

    WinKeyerUsb& _engine;
    std::optional<int> _wpm;
    /// Chosen during high-speed CW.
    bool _isDue = false;
};
