#include "estimate/EstimateJson.h"
#include "estimate/EstimateTesting.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarn {
namespace {

using testing::Centimetres;
using testing::Imperial;
using testing::Job;
using testing::MakeEstimate;
using testing::Metric;
using testing::Request;
using ::testing::UnorderedElementsAre;

QJsonObject Read(const Job& job) {
    const std::string json = EstimateJson(job.State, job.Engine, job.Estimate);
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
    Job job = Imperial({{200, 120}});
    MakeEstimate(job, Request(144));
    const QJsonObject document = Read(job);
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
    Job job = Imperial({{120, 300, 2, 8}, {120, 97, 2}});
    job.State.CurProjName = "SMITH & \"SONS\" Ü";
    EstimateRequest request = Request(162, false, PackEstOption(1, 3));
    request.Carpet = 2;
    MakeEstimate(job, request);
    ASSERT_GT(job.Engine.CaseCount, 1);
    const QJsonObject document = Read(job);
    EXPECT_EQ(document.value(QLatin1String("project")).toString().toStdString(),
              "SMITH & \"SONS\" Ü");
    EXPECT_EQ(Number(document, "carpet"), 3);
    EXPECT_EQ(document.value(QLatin1String("metric")), QJsonValue(false));
    EXPECT_EQ(Number(document, "rollWidth"), 162);
    EXPECT_EQ(Number(document, "layDir"), 1);
    EXPECT_EQ(Number(document, "estOption"), 12);
    EXPECT_EQ(Number(document, "cases"), job.Engine.CaseCount);
    EXPECT_EQ(Number(document, "bestLen"), job.Engine.BestLen);
    EXPECT_EQ(Number(document, "bestMode"), job.Engine.BestMode);
    EXPECT_EQ(Number(document, "resultLen"), job.Engine.ResultLen);
}

// Every number comes back as the very Single that it was.
TEST(EstimateJson, HasEveryCutAndPiece) {
    Job job = Metric({{1000, 496}, {411, 200}, {97, 301}});
    MakeEstimate(job, Request(Centimetres("411"), true, PackEstOption(2, 2)));
    const QJsonObject document = Read(job);
    const auto single = [](const QJsonValue& object, const char* key) {
        return static_cast<Single>(Number(object.toObject(), key));
    };

    const QJsonArray cuts = Array(document, "cuts");
    ASSERT_EQ(cuts.size(), 3);
    for (Integer i = 0; i < 3; ++i) {
        EXPECT_EQ(single(cuts[i], "x1"), job.State.ECutX1[i]);
        EXPECT_EQ(single(cuts[i], "x2"), job.State.ECutX2[i]);
        EXPECT_EQ(single(cuts[i], "y1"), job.State.ECutY1[i]);
        EXPECT_EQ(single(cuts[i], "y2"), job.State.ECutY2[i]);
    }
    const EngineArrays& engine = job.Engine;
    const QJsonArray pieces = Array(document, "pieces");
    ASSERT_EQ(pieces.size(), engine.PieceCount);
    ASSERT_GT(engine.PieceCount, 2);
    for (Integer i = 0; i < engine.PieceCount; ++i) {
        const std::string label(1, static_cast<char>('A' + engine.OrgPC[i]));
        EXPECT_EQ(pieces[i].toObject().value(QLatin1String("label")).toString().toStdString(),
                  label);
        EXPECT_EQ(Number(pieces[i].toObject(), "org"), engine.OrgPC[i]);
        EXPECT_EQ(single(pieces[i], "x1"), engine.PCX1[i]);
        EXPECT_EQ(single(pieces[i], "x2"), engine.PCX2[i]);
        EXPECT_EQ(single(pieces[i], "y1"), engine.PCY1[i]);
        EXPECT_EQ(single(pieces[i], "y2"), engine.PCY2[i]);
        EXPECT_EQ(single(pieces[i], "posX"), engine.PosX[i]);
        EXPECT_EQ(single(pieces[i], "posY"), engine.PosY[i]);
        EXPECT_EQ(single(pieces[i], "posW"), engine.PosW[i]);
        EXPECT_EQ(single(pieces[i], "posL"), engine.PosL[i]);
    }
}

TEST(EstimateJson, HasTheTotals) {
    Job job = Imperial({{120, 300, 0, 8}, {24, 36, 10, 1}});
    MakeEstimate(job, Request(144, false));
    const QJsonObject totals = Totals(Read(job));
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
    Job job = Metric({{366, 254, 0, 8}});
    MakeEstimate(job, Request(Centimetres("366")));
    const QJsonObject document = Read(job);
    EXPECT_EQ(document.value(QLatin1String("metric")), QJsonValue(true));
    EXPECT_EQ(Number(Totals(document), "base"), 732 + 508);
    EXPECT_NEAR(Number(Totals(document), "cutLength"), 100, 1e-4);
}

TEST(EstimateJson, WithoutAPieceTheSearchsFiguresAreZero) {
    Job job = Imperial({{72, 200}, {144, 100, 1}});
    MakeEstimate(job, Request(144, true, PackEstOption(0, 2)));
    ASSERT_GT(job.Engine.CaseCount, 0);
    EstimateRequest cutsOnly = Request(144);
    cutsOnly.Carpet = 1;
    MakeEstimate(job, cutsOnly);
    const QJsonObject document = Read(job);
    EXPECT_EQ(Number(document, "cases"), 0);
    EXPECT_EQ(Number(document, "bestLen"), 0);
    EXPECT_EQ(Number(document, "bestMode"), 0);
    EXPECT_EQ(Number(document, "resultLen"), 0);
    EXPECT_EQ(Array(document, "cuts").size(), 1);
    EXPECT_EQ(Array(document, "pieces").size(), 0);
}

} // namespace
} // namespace tarn
