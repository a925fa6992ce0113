#include "paper/PdfTesting.h"

#include "QtString.h"

#include <QFile>
#include <QProcess>
#include <QRegularExpression>

#include <gtest/gtest.h>

#include <algorithm>

namespace tarn::testing {

Pdf::Pdf(const std::string& content) {
    QFile file(Path());
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    EXPECT_EQ(file.write(QByteArray::fromStdString(content)), static_cast<qint64>(content.size()));
}

QString Pdf::Run(const QString& program, const QStringList& arguments) const {
    QProcess process;
    process.start(program, arguments);
    constexpr int PatienceMs = 60000;
    const bool done = process.waitForFinished(PatienceMs);
    EXPECT_TRUE(done && process.exitCode() == 0)
        << program.toStdString()
        << " (of the package poppler-utils): " << process.errorString().toStdString()
        << process.readAllStandardError().toStdString();
    return QString::fromUtf8(process.readAllStandardOutput());
}

QString Pdf::InfoOf(const char* key) const {
    for (const QString& line : Run(S("pdfinfo"), {Path()}).split(u'\n')) {
        if (line.startsWith(S(key) + u':')) {
            return line.section(u':', 1).trimmed();
        }
    }
    return {};
}

int Pdf::Pages() const {
    if (count_ == 0) {
        count_ = InfoOf("Pages").toInt();
    }
    return count_;
}

QSizeF Pdf::PageSize() const {
    const QStringList words = InfoOf("Page size").split(u' ');
    if (words.size() < 3) {
        ADD_FAILURE() << "no page size";
        return {};
    }
    const QSizeF size(words[0].toDouble(), words[2].toDouble());
    return InfoOf("Page rot").toInt() % 180 == 0 ? size : size.transposed();
}

QStringList Pdf::Fonts() const {
    return Run(S("pdffonts"), {Path()}).split(u'\n', Qt::SkipEmptyParts).mid(2);
}

int Pdf::Images() const {
    const QString list = Run(S("pdfimages"), {S("-list"), Path()});
    return static_cast<int>(list.split(u'\n', Qt::SkipEmptyParts).size()) - 2;
}

const QStringList& Pdf::Layouts() const {
    if (layouts_.isEmpty()) {
        // Each page ends with a form feed.
        layouts_ = Run(S("pdftotext"), {S("-layout"), Path(), S("-")}).split(u'\f');
        layouts_.removeLast();
    }
    return layouts_;
}

QString Pdf::FixedPitchLayout(int page, double advance) const {
    const QString number = QString::number(page);
    return Run(S("pdftotext"), {S("-fixed"), QString::number(advance), S("-f"), number, S("-l"),
                                number, Path(), S("-")});
}

QString Pdf::Text() const {
    return Layouts().join(u' ').simplified();
}

std::vector<PdfWord> Pdf::Words(int page) const {
    if (words_.empty()) {
        ReadWords();
    }
    return words_.at(static_cast<std::size_t>(page) - 1);
}

void Pdf::ReadWords() const {
    static const QRegularExpression PageOrWord(
        S(R"re(<page |<word xMin="(.*?)" yMin="(.*?)" xMax="(.*?)" yMax="(.*?)">(.*?)</word>)re"));
    const QString boxes = Run(S("pdftotext"), {S("-bbox"), Path(), S("-")});
    for (auto match = PageOrWord.globalMatch(boxes); match.hasNext();) {
        const auto word = match.next();
        if (!word.hasCaptured(1)) {
            words_.emplace_back();
            continue;
        }
        const auto number4 = [&word](int i) { return word.captured(i).toDouble(); };
        QString text = word.captured(5);
        text.replace(S("&quot;"), S("\"")).replace(S("&apos;"), S("'"));
        text.replace(S("&lt;"), S("<")).replace(S("&gt;"), S(">")).replace(S("&amp;"), S("&"));
        words_.back().push_back(
            {text, QRectF(QPointF(number4(1), number4(2)), QPointF(number4(3), number4(4)))});
    }
}

QImage Pdf::Image(int page, int dotsPerInch) const {
    const QString name = directory_.filePath(S("page"));
    const QString number = QString::number(page);
    Run(S("pdftoppm"), {S("-r"), QString::number(dotsPerInch), S("-f"), number, S("-l"), number,
                        S("-singlefile"), Path(), name});
    QImage image(name + S(".ppm"));
    EXPECT_FALSE(image.isNull());
    return image;
}

QString Words(const std::string& text) {
    return QString::fromStdString(text).simplified();
}

QRect InkIn(const QImage& image, const QRect& wanted) {
    constexpr int White = 250;
    const QRect area = wanted & image.rect();
    const QImage pixels = image.convertToFormat(QImage::Format_RGB32);
    QRect ink;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(pixels.constScanLine(y));
        for (int x = area.left(); x <= area.right(); ++x) {
            if (qGray(line[x]) < White) {
                ink |= QRect(x, y, 1, 1);
            }
        }
    }
    return ink;
}

} // namespace tarn::testing
