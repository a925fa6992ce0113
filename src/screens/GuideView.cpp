#include "screens/GuideView.h"

#include "screens/Display.h"
#include "screens/Theme.h"

#include <QAbstractTextDocumentLayout>
#include <QEvent>
#include <QFile>
#include <QImage>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextTable>

#include <algorithm>
#include <utility>
#include <vector>

/// A library's resources are there only once they are asked for, outside of any namespace.
static void InitialiseGuide() {
    Q_INIT_RESOURCE(guide);
}

namespace tarn {

namespace {

constexpr double CellPadding = 75; ///< twips
/// Pictures show where things are on a screen that the reader has in front.
constexpr double MostPictureWidth = 6900;

const QString& GuideFolder() {
    static const QString folder = QStringLiteral(":/guide/");
    return folder;
}

QString GuideText() {
    InitialiseGuide();
    QFile file(GuideFolder() + QStringLiteral("guide.md"));
    static_cast<void>(file.open(QIODevice::ReadOnly)); // it is part of the program
    return QString::fromUtf8(file.readAll());
}

/// Links in a colour that reads well on what they stand on, light or dark.
void ColourLinks(const QTextBlock& block) {
    std::vector<std::pair<int, int>> links; // before anything changes the fragments
    for (auto at = block.begin(); !at.atEnd(); ++at) {
        if (at.fragment().charFormat().hasProperty(QTextFormat::AnchorHref)) {
            links.emplace_back(at.fragment().position(), at.fragment().length());
        }
    }
    QTextCharFormat coloured;
    coloured.setForeground(CurrentColours().Accent);
    coloured.setFontUnderline(true);
    for (const auto& [position, length] : links) {
        QTextCursor cursor(block);
        cursor.setPosition(position);
        cursor.setPosition(position + length, QTextCursor::KeepAnchor);
        cursor.mergeCharFormat(coloured);
    }
}

void DressTables(QTextFrame& frame) {
    for (QTextFrame* child : frame.childFrames()) {
        if (auto* table = qobject_cast<QTextTable*>(child)) {
            QTextTableFormat format = table->format();
            format.setBorderCollapse(true);
            format.setBorder(1);
            format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
            format.setBorderBrush(CurrentColours().Border);
            format.setCellPadding(Pixels(CellPadding));
            table->setFormat(format);
        }
    }
}

} // namespace

QString PageName(const QString& heading) {
    QString name;
    for (const QChar letter : heading.toLower()) {
        if (letter.isLetterOrNumber() || letter == QLatin1Char('-') || letter == QLatin1Char('_')) {
            name += letter;
        } else if (letter == QLatin1Char(' ')) {
            name += QLatin1Char('-');
        }
    }
    return name;
}

GuideView::GuideView(QWidget* parent)
    : QTextBrowser(parent) {
    setOpenLinks(false);
    document()->setDocumentMargin(Pixels(Metrics::Margin));
    connect(this, &QTextBrowser::anchorClicked, this, [this](const QUrl& link) { Follow(link); });
    Read(0);
}

int GuideView::Place() const {
    return cursorForPosition(QPoint(0, 0)).position();
}

void GuideView::Read(int place) {
    pictureWidth_ = PictureWidth();
    setMarkdown(GuideText());
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
        ColourLinks(block);
    }
    DressTables(*document()->rootFrame());
    QTextCursor cursor(document());
    cursor.setPosition(std::min(place, document()->characterCount() - 1));
    ScrollTo(cursor);
}

int GuideView::PictureWidth() const {
    return std::min(viewport()->width() - 2 * Pixels(Metrics::Margin), Pixels(MostPictureWidth));
}

void GuideView::ScrollTo(const QTextCursor& cursor) {
    // The text is laid out when somebody asks for it, and can be scrolled so far only then.
    static_cast<void>(document()->documentLayout()->documentSize());
    verticalScrollBar()->setValue(verticalScrollBar()->value() + cursorRect(cursor).top());
}

bool GuideView::ShowPage(const QString& page) {
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
        if (block.blockFormat().headingLevel() > 0 && PageName(block.text()) == page) {
            setTextCursor(QTextCursor(block));
            ScrollTo(textCursor());
            return true;
        }
    }
    return false;
}

void GuideView::Follow(const QUrl& link) {
    const bool inside = link.isRelative() && link.path().isEmpty() && link.hasFragment();
    if (!(inside && ShowPage(link.fragment())) && OnLinkAway) {
        OnLinkAway(link.toString());
    }
}

/// A picture is as wide as the text at most, and sharp on a display of high density.
QVariant GuideView::loadResource(int type, const QUrl& name) {
    if (type != QTextDocument::ImageResource) {
        return {};
    }
    QImage picture(GuideFolder() + name.path());
    if (!picture.isNull() && pictureWidth_ > 0 && picture.width() > pictureWidth_) {
        const double density = devicePixelRatio();
        const int width = std::min(qRound(pictureWidth_ * density), picture.width());
        picture = picture.scaledToWidth(width, Qt::SmoothTransformation);
        picture.setDevicePixelRatio(static_cast<double>(width) / pictureWidth_);
    }
    return picture;
}

void GuideView::changeEvent(QEvent* event) {
    const int place = Place(); // before the text is laid out anew
    QTextBrowser::changeEvent(event);
    if (event->type() == QEvent::StyleChange || event->type() == QEvent::FontChange) {
        Read(place);
    }
}

void GuideView::resizeEvent(QResizeEvent* event) {
    const int place = Place();
    QTextBrowser::resizeEvent(event);
    if (PictureWidth() != pictureWidth_) {
        Read(place);
    }
}

} // namespace tarn
