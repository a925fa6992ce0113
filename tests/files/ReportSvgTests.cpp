#include "files/ReportSvg.h"
#include "project/Report.h"

#include <QXmlStreamReader>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tarn {
namespace {

using ::testing::ElementsAre;

/// What a reader makes of a document.
struct ReportDocument {
    struct Line {
        std::string Text;
        double X = 0;
        double Y = 0;
        double Length = 0;
        bool KeepsBlanks = false;
    };

    std::string Title;
    std::string Faces;
    double Width = 0;
    double Height = 0;
    std::vector<Line> Lines;

    std::vector<std::string> Texts() const {
        std::vector<std::string> texts;
        for (const Line& line : Lines) {
            texts.push_back(line.Text);
        }
        return texts;
    }
};

ReportDocument ReadReport(const std::string& svg) {
    ReportDocument document;
    QXmlStreamReader reader(QByteArray::fromStdString(svg));
    while (!reader.atEnd()) {
        reader.readNext();
        if (!reader.isStartElement()) {
            continue;
        }
        const QXmlStreamAttributes with = reader.attributes();
        const auto number = [&with](const char* name) {
            return with.value(QLatin1String(name)).toDouble();
        };
        if (reader.name() == QStringLiteral("svg")) {
            document.Width = 15 * number("width");
            document.Height = 15 * number("height");
        } else if (reader.name() == QStringLiteral("title")) {
            document.Title = reader.readElementText().toStdString();
        } else if (reader.name() == QStringLiteral("g")) {
            document.Faces = with.value(QLatin1String("font-family")).toString().toStdString();
        } else if (reader.name() == QStringLiteral("text")) {
            const bool keeps = with.value(QLatin1String("xml:space")) == QStringLiteral("preserve");
            document.Lines.push_back({"", number("x"), number("y"), number("textLength"), keeps});
            document.Lines.back().Text = reader.readElementText().toStdString();
        }
    }
    EXPECT_FALSE(reader.hasError()) << reader.errorString().toStdString();
    return document;
}

TEST(ReportSvg, HasEachLineOfTheReportAsOneTextWithAllItsBlanks) {
    Project project;
    project.Name = "SMITH & \"SONS\" <UPPER>";
    project.Rooms = {{150, 168, 1, 2, "N1", "hall & <stairs>"}, {90, 100, 0, 0, "N2", ""}};
    const EnteredDataReport report = MakeReport(project, Units::Imperial, "11/21/2031");
    std::vector<std::string> lines;
    for (const ReportLine& line : report.Lines) {
        lines.push_back(line.Text);
    }
    const ReportDocument document = ReadReport(ReportSvg(report));
    for (const ReportDocument::Line& line : document.Lines) {
        EXPECT_TRUE(line.KeepsBlanks);
    }
    EXPECT_EQ(document.Texts(), lines);
    EXPECT_EQ(document.Title, "ENTERED DATA REPORT");
    EXPECT_TRUE(document.Faces.starts_with("Courier New")) << document.Faces;
    EXPECT_TRUE(document.Faces.ends_with("monospace")) << document.Faces;
}

TEST(ReportSvg, GivesEveryLetterTheSameWidthAndEveryLineTheSameHeightOnThePaper) {
    const ReportDocument document = ReadReport(ReportSvg({{{"ab"}, {""}, {"  caf\u00e9"}}}));
    EXPECT_THAT(document.Texts(), ElementsAre("ab", "", "  caf\u00e9"));
    ASSERT_EQ(document.Lines.size(), 3U);
    const double advance = document.Lines[0].Length / 2;
    EXPECT_NEAR(advance, 144, 0.01); // 12 points
    EXPECT_NEAR(document.Lines[2].Length, 6 * advance, 0.01);
    const double step = document.Lines[1].Y - document.Lines[0].Y;
    EXPECT_GT(step, 240);
    EXPECT_NEAR(document.Lines[2].Y - document.Lines[1].Y, step, 0.01);
    for (const ReportDocument::Line& line : document.Lines) {
        EXPECT_EQ(line.X, document.Lines[0].X);
        EXPECT_LE(line.X + line.Length, document.Width);
        EXPECT_LE(line.Y, document.Height);
    }
}

TEST(ReportSvg, IsWellFormedWhateverTheTextHolds) {
    EXPECT_THAT(ReadReport(ReportSvg({{{"A\x01\tZ"}, {"A\xFF\uFFFEZ"}}})).Texts(),
                ElementsAre("A  Z", "A\uFFFD\uFFFDZ"));
    EXPECT_THAT(ReadReport(ReportSvg({{{"A\u007F\u0080\u0085\u009FZ\u00A0"}}})).Texts(),
                ElementsAre("A    Z\u00A0"));
    EXPECT_TRUE(ReadReport(ReportSvg({})).Lines.empty());
}

} // namespace
} // namespace tarn
