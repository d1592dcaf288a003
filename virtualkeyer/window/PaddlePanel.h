#pragma once

#include <QGroupBox>
#include <QPushButton>

namespace virtualkeyer {

/// The two paddles: buttons for the mouse, and the keys F and J, which can be held together.
///
/// A contact is closed for as long as it is held, and no longer: whatever takes the keyboard or the
/// mouse away, and with it the release, opens both.
class PaddlePanel : public QGroupBox {
    Q_OBJECT
  public:
    explicit PaddlePanel(QWidget* parent = nullptr);
    ~PaddlePanel() override;

    /// Opens both contacts, whoever holds them.
    void letGo();

  Q_SIGNALS:
    /// The contacts as they are now.
    void moved(bool dit, bool dah);

  protected:
    /// Sees the application's keys, whichever control has the focus.
    bool eventFilter(QObject* watched, QEvent* event) override;
    void hideEvent(QHideEvent* event) override;

  private:
    [[nodiscard]] bool* keyOf(int key);
    [[nodiscard]] bool takesKeys() const;
    bool takeKey(int key, bool isPressed);
    void tell();

    QPushButton* _dit;
    QPushButton* _dah;
    bool _ditKey = false;
    bool _dahKey = false;
    bool _ditTold = false;
    bool _dahTold = false;
};

} // namespace virtualkeyer
