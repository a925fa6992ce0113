#include "base/Text.h"
#include "estimate/EstimateTesting.h"
#include "estimate/ImproveEstimate.h"
#include "estimate/MinCuts.h"
#include "files/EstimateJson.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarn {
namespace {

using testing::Estimated;
using testing::EstimateOf;
using testing::MetricRequest;
using testing::Request;
using ::testing::UnorderedElementsAre;
using testing::WithCarpet;
using testing::WithParts;

QJsonObject Read(const Estimate& estimate) {
    const std::string json = EstimateJson(estimate);
    EXPECT_EQ(json.back(), '\n');
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(QByteArray::fromStdString(json), &error);
    EXPECT_EQ(error.error, QJsonParseError::NoError) << error.errorString().toStdString();
    EXPECT_TRUE(document.isObject());
    return document.object();
}

std::vector<std::string> Keys(const QJsonObject& object) {
    std::vector<std::string> keys;
    for (const QString& key : object.keys()) {
        keys.push_back(key.toStdString());
    }
    return keys;
}

double Number(const QJsonObject& object, const char* key) {
    const QJsonValue value = object.value(QLatin1String(key));
    EXPECT_TRUE(value.isDouble()) << key;
    return value.toDouble();
}

QJsonArray Array(const QJsonObject& object, const char* key) {
    const QJsonValue value = object.value(QLatin1String(key));
    EXPECT_TRUE(value.isArray()) << key;
    return value.toArray();
}

QJsonObject Totals(const QJsonObject& document) {
    return document.value(QLatin1String("totals")).toObject();
}

TEST(EstimateJson, HasExactlyItsKeys) {
    const QJsonObject document = Read(Estimated({{200, 120}}, Request(144)));
    EXPECT_THAT(Keys(document),
                UnorderedElementsAre("project", "carpet", "metric", "rollWidth", "layDir",
                                     "estOption", "cases", "bestLen", "bestMode", "resultLen",
                                     "cuts", "pieces", "totals"));
    EXPECT_THAT(Keys(Array(document, "cuts")[0].toObject()),
                UnorderedElementsAre("x1", "x2", "y1", "y2"));
    EXPECT_THAT(Keys(Array(document, "pieces")[0].toObject()),
                UnorderedElementsAre("label", "org", "x1", "x2", "y1", "y2", "posX", "posY", "posW",
                                     "posL"));
    EXPECT_THAT(Keys(Totals(document)),
                UnorderedElementsAre("cutCount", "cutLength", "fillCount", "fillLength", "length",
                                     "squareYards", "squareFeet", "squareMeters", "base"));
}

TEST(EstimateJson, HasTheChoicesAndTheResultOfTheSearch) {
    Project project = testing::ProjectOf({{120, 300, 2, 8}, {120, 97, 2}});
    project.Name = "SMITH & \"SONS\" Ü";
    const Estimate estimate = EstimateOf(
        project, WithCarpet(WithParts(Request(162, Lay::Cross), MinCut::FootAndAHalf, 3), 2));
    ASSERT_GT(estimate.Fills.Cases, 1);
    const QJsonObject document = Read(estimate);
    EXPECT_EQ(document.value(QLatin1String("project")).toString().toStdString(),
              "SMITH & \"SONS\" Ü");
    EXPECT_EQ(Number(document, "carpet"), 3);
    EXPECT_EQ(document.value(QLatin1String("metric")), QJsonValue(false));
    EXPECT_EQ(Number(document, "rollWidth"), 162);
    EXPECT_EQ(Number(document, "layDir"), 1);
    EXPECT_EQ(Number(document, "estOption"), 12);
    EXPECT_EQ(Number(document, "cases"), estimate.Fills.Cases);
    EXPECT_EQ(Number(document, "bestLen"), estimate.Fills.BestLength);
    EXPECT_EQ(Number(document, "bestMode"), estimate.Fills.BestPower);
    EXPECT_EQ(Number(document, "resultLen"), estimate.Fills.Length);
}

// Every number comes back as the very Single that it was.
TEST(EstimateJson, HasEveryCutAndPiece) {
    const Estimate estimate = Estimated({{1000, 496}, {411, 200}, {97, 301}},
                                        WithParts(MetricRequest("411"), MinCut::HalfFoot, 2));
    const QJsonObject document = Read(estimate);
    const auto single = [](const QJsonValue& object, const char* key) {
        return static_cast<Single>(Number(object.toObject(), key));
    };

    const QJsonArray cuts = Array(document, "cuts");
    ASSERT_EQ(cuts.size(), 3);
    ASSERT_EQ(estimate.Cuts.size(), 3U);
    for (int i = 0; i < 3; ++i) {
        const Cut& cut = estimate.Cuts[static_cast<std::size_t>(i)];
        EXPECT_EQ(single(cuts[i], "x1"), cut.X1);
        EXPECT_EQ(single(cuts[i], "x2"), cut.X2);
        EXPECT_EQ(single(cuts[i], "y1"), cut.Y1);
        EXPECT_EQ(single(cuts[i], "y2"), cut.Y2);
    }
    const QJsonArray pieces = Array(document, "pieces");
    const std::vector<Placed>& layout = estimate.Fills.Layout;
    ASSERT_EQ(static_cast<std::size_t>(pieces.size()), layout.size());
    ASSERT_GT(layout.size(), 2U);
    for (int i = 0; i < pieces.size(); ++i) {
        const Placed& placed = layout[static_cast<std::size_t>(i)];
        const std::string label(1, static_cast<char>('A' + placed.Part.Number));
        EXPECT_EQ(pieces[i].toObject().value(QLatin1String("label")).toString().toStdString(),
                  label);
        EXPECT_EQ(Number(pieces[i].toObject(), "org"), placed.Part.Number);
        EXPECT_EQ(single(pieces[i], "x1"), placed.Part.X1);
        EXPECT_EQ(single(pieces[i], "x2"), placed.Part.X2);
        EXPECT_EQ(single(pieces[i], "y1"), placed.Part.Y1);
        EXPECT_EQ(single(pieces[i], "y2"), placed.Part.Y2);
        EXPECT_EQ(single(pieces[i], "posX"), placed.X);
        EXPECT_EQ(single(pieces[i], "posY"), placed.Y);
        EXPECT_EQ(single(pieces[i], "posW"), placed.Width);
        EXPECT_EQ(single(pieces[i], "posL"), placed.Length);
    }
}

// The minimum cut's position in tens and the pieces less one in units.
TEST(EstimateJson, PacksTheOptionsOfTheSearchIntoOneNumber) {
    int tens = 0;
    for (const MinCut minCut : AllMinCuts) {
        for (Integer pieces = 1; pieces <= MostPiecesPerFill; ++pieces) {
            Estimate estimate;
            estimate.Request = WithParts(Request(144), minCut, pieces);
            EXPECT_EQ(Number(Read(estimate), "estOption"), tens + (pieces - 1));
        }
        tens += 10;
    }
}

TEST(EstimateJson, HasTheTotals) {
    const QJsonObject totals =
        Totals(Read(Estimated({{120, 300, 0, 8}, {24, 36, 10, 1}}, Request(144, Lay::Cross))));
    EXPECT_EQ(Number(totals, "cutCount"), 2);
    EXPECT_EQ(Number(totals, "cutLength"), 240);
    EXPECT_EQ(Number(totals, "fillCount"), 1);
    EXPECT_EQ(Number(totals, "fillLength"), 120);
    EXPECT_EQ(Number(totals, "length"), 360);
    EXPECT_EQ(Number(totals, "squareYards"), 40);
    EXPECT_EQ(Number(totals, "squareFeet"), 360);
    EXPECT_NEAR(Number(totals, "squareMeters"), 33.4450944, 1e-9);
    EXPECT_EQ(Number(totals, "base"), 840 + 24);
}

TEST(EstimateJson, MetricBaseIsInCentimetresAndLengthsInInches) {
    const QJsonObject document = Read(Estimated({{366, 254, 0, 8}}, MetricRequest("366")));
    EXPECT_EQ(document.value(QLatin1String("metric")), QJsonValue(true));
    EXPECT_EQ(Number(Totals(document), "base"), 732 + 508);
    EXPECT_NEAR(Number(Totals(document), "cutLength"), 100, 1e-4);
}

TEST(EstimateJson, WithoutAPieceTheSearchsFiguresAreZero) {
    const QJsonObject document = Read(Estimated(
        {{72, 200}, {144, 100, 1}}, WithCarpet(WithParts(Request(144), MinCut::ThreeFeet, 2), 1)));
    EXPECT_EQ(Number(document, "cases"), 0);
    EXPECT_EQ(Number(document, "bestLen"), 0);
    EXPECT_EQ(Number(document, "bestMode"), 0);
    EXPECT_EQ(Number(document, "resultLen"), 0);
    EXPECT_EQ(Array(document, "cuts").size(), 1);
    EXPECT_EQ(Array(document, "pieces").size(), 0);
}

TEST(EstimateJson, HoldsNoControlCharacterButItsLineEnds) {
    Estimate estimate = Estimated({{200, 120}}, Request(144));
    for (char32_t c = 1; c < 0x200; ++c) {
        estimate.ProjectName += QString(QChar(static_cast<char16_t>(c))).toStdString();
    }
    std::string json = EstimateJson(estimate);
    EXPECT_EQ(Read(estimate).value(QLatin1String("project")).toString().toStdString(),
              estimate.ProjectName);
    std::erase(json, '\n');
    EXPECT_EQ(FindTextFault(json), TextFault::None);
}

TEST(EstimateJson, HoldsTheImprovementOnlyWhenThereIsOne) {
    const Estimate start =
        Estimated({{100, 150}, {60, 170}, {84, 90}, {44, 110}, {80, 60}, {200, 130}},
                  WithParts(Request(144), MinCut::HalfFoot, 6));
    EXPECT_FALSE(Read(start).contains(QLatin1String("improved")));
    ImproveObserver nobody;
    const ImprovedEstimate improved = ImproveEstimate(start, {0, 2000, 1}, nobody);
    ASSERT_TRUE(improved.Result.Improved);
    const QJsonObject record = Read(improved.Value).value(QLatin1String("improved")).toObject();
    EXPECT_THAT(Keys(record),
                UnorderedElementsAre("startLength", "length", "bound", "startPieces", "pieces"));
    EXPECT_EQ(Number(record, "startLength"), static_cast<Double>(improved.Result.StartLength));
    EXPECT_EQ(Number(record, "length"), static_cast<Double>(improved.Result.Length));
    EXPECT_EQ(Number(record, "bound"), improved.Result.Bound);
    EXPECT_EQ(Number(record, "startPieces"), improved.Result.StartPieces);
    EXPECT_EQ(Number(record, "pieces"), improved.Result.Pieces);
}

} // namespace
} // namespace tarn
