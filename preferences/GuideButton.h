#pragma once

#include <QString>
#include <QToolButton>

class QTabWidget;

/// The small "?" of a pane, which asks for the guide at the chapter that its dynamic property
/// "chapter" names, or, where it follows pages, at the chapter that the shown page names so. It
/// takes the focus by Tab alone. Main thread only.
class GuideButton final : public QToolButton {
    Q_OBJECT
  public:
    explicit GuideButton(QWidget* parent = nullptr);

    /// The pages must outlive it.
    void follow(const QTabWidget& pages) { _pages = &pages; }
    [[nodiscard]] QString chapter() const;

  Q_SIGNALS:
    void guideRequested(const QString& chapter);

  private:
    const QTabWidget* _pages = nullptr;
};
