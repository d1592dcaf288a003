#pragma once

#include <QLatin1StringView>
#include <QString>
#include <QWidget>

class QToolButton;

/// Works the controls of a preferences pane with mouse and keys, as an operator would. Each is
/// found by the setting that it is for, and its page is turned to first.
class PaneOperator {
  public:
    /// Shows `pane`. Throws std::runtime_error when it does not become the active window.
    explicit PaneOperator(QWidget& pane);

    /// The one control of a setting. Throws std::runtime_error when there is none, or more.
    [[nodiscard]] QWidget& control(QLatin1StringView key) const;
    template <typename Widget>
    [[nodiscard]] Widget& control(QLatin1StringView key) const {
        return dynamic_cast<Widget&>(control(key));
    }
    [[nodiscard]] QList<QWidget*> controls(QLatin1StringView key) const;
    [[nodiscard]] QToolButton& resetButton(QLatin1StringView key) const;

    /// What can be changed or pressed on all pages, but for what belongs to a picture alone.
    [[nodiscard]] QList<QWidget*> inputs() const;
    /// Whether the widget is or lies in one of that class.
    [[nodiscard]] static bool isInside(const QWidget& widget, const char* type);
    /// Whether the widget is what Qt makes a control of.
    [[nodiscard]] static bool isPart(const QWidget& widget);

    /// Works what the control needs to have an effect, if it needs anything.
    void meetNeeds(QLatin1StringView key);
    /// Clicks a check box.
    void toggle(QLatin1StringView key);
    /// Opens a pop-up and takes one of its entries.
    void choose(QLatin1StringView key, const QString& entry);
    /// Replaces the text of a field; nothing ends the typing.
    void type(QLatin1StringView key, const QString& text);
    /// The same, with Return.
    void enter(QLatin1StringView key, const QString& text);
    void reset(QLatin1StringView key);

    /// What the control shows: "on" or "off" of a check box, else its text.
    [[nodiscard]] QString shown(QLatin1StringView key) const;

  private:
    void turnTo(const QWidget& widget);

    QWidget& _pane;
};
