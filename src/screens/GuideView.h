#pragma once

#include <QString>
#include <QTextBrowser>

#include <functional>

namespace tarn {

/// The guide (docs/guide.md), which is built into the program with its pictures, as a text to read
/// in the colours and the type size of the program. Nothing is read from a disk or a network.
class GuideView : public QTextBrowser {
  public:
    explicit GuideView(QWidget* parent);

    /// Bring a heading to the top, by its name (see GuidePages.h). False when the guide has none.
    bool ShowPage(const QString& page);

    /// Called with the address of a link that leads out of the guide; it is not followed.
    std::function<void(const QString&)> OnLinkAway;

  protected:
    QVariant loadResource(int type, const QUrl& name) override;
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    /// The first position in the text that shows.
    int Place() const;
    /// Read the guide again, for other colours or another width, and bring `place` to the top.
    void Read(int place);
    void ScrollTo(const QTextCursor& cursor);
    int PictureWidth() const;
    void Follow(const QUrl& link);

    int pictureWidth_ = 0; ///< for which the pictures were made
};

/// The name of a heading: its letters and digits in small letters, a hyphen for each blank.
QString PageName(const QString& heading);

} // namespace tarn
