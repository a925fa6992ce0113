#pragma once

// PDF files as other programs read them.

#include <QImage>
#include <QRectF>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <string>
#include <vector>

namespace tarn::testing {

/// A word on a page; its box in points from the page's top left.
struct PdfWord {
    QString Text;
    QRectF Box;
};

/// A PDF document in a directory of its own. What cannot be read fails the test.
class Pdf {
  public:
    explicit Pdf(const std::string& content);

    int Pages() const;
    /// Points, as the page is shown.
    QSizeF PageSize() const;
    QString InfoOf(const char* key) const;
    /// The faces of its text: one line each, as pdffonts lists them.
    QStringList Fonts() const;
    int Images() const;
    /// The text of one page (from 1), laid out as on the page.
    QString Layout(int page) const { return Layouts().at(page - 1); }
    /// The text of one page (from 1) in letters that are all that wide, points: every blank between
    /// its first and its last column is there.
    QString FixedPitchLayout(int page, double advance) const;
    /// The text of all pages in reading order, words parted by one blank.
    QString Text() const;
    /// The words of one page, from 1.
    std::vector<PdfWord> Words(int page) const;
    /// One page as pixels.
    QImage Image(int page, int dotsPerInch) const;

  private:
    const QStringList& Layouts() const;
    void ReadWords() const;
    QString Run(const QString& program, const QStringList& arguments) const;
    QString Path() const { return directory_.filePath(QStringLiteral("document.pdf")); }

    QTemporaryDir directory_;
    // What was asked for, kept: it takes a process each time.
    mutable int count_ = 0;
    mutable QStringList layouts_;                     ///< of each page
    mutable std::vector<std::vector<PdfWord>> words_; ///< of each page
};

/// The words of a text, parted by one blank each.
QString Words(const std::string& text);

/// The box around everything in `area` (pixels) that is not white; empty when all is white.
QRect InkIn(const QImage& image, const QRect& area);
inline QRect InkOf(const QImage& image) {
    return InkIn(image, image.rect());
}

} // namespace tarn::testing
