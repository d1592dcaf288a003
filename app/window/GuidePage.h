#pragma once

#include <QTextBrowser>

class QTextFragment;

/// A chapter of the guide, whose pictures are no wider than the page: whoever reads scrolls one way
/// only. Main thread only.
class GuidePage final : public QTextBrowser {
    Q_OBJECT
  public:
    using QTextBrowser::QTextBrowser;

    /// Has the pictures of the chapter take the room that there is, and no more than their own
    /// size. To be called when another chapter, or another margin, has been set.
    void fitPictures();

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    [[nodiscard]] QSize sizeOf(const QString& picture) const;
    void setWidth(const QTextFragment& fragment, int room);
};
