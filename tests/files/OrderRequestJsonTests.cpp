#include "files/OrderRequestJson.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

namespace tarn {
namespace {

OrderRequest FullRequest() {
    OrderRequest request = DefaultOrderRequest(Units::Metric);
    request.Rolls = {{366, "Shop \"A\"", "366cm", 18.25}, {411.48, "", "13.5ft", std::nullopt}};
    request.Lays = {Lay::Down, Lay::Cross};
    request.Selvage = 2;
    request.TrimAlong = 8;
    request.TrimAcross = 3;
    request.MostParts = 4;
    request.ShortestPart = 60;
    request.JoinRooms = true;
    request.Pattern = {46, 64, true};
    request.PatternDrift = 1.5;
    request.Step = 10;
    request.Seconds = 0.5;
    return request;
}

TEST(OrderRequestJson, IsReadBackWhole) {
    EXPECT_EQ(ReadOrderRequestJson(OrderRequestJson(FullRequest()), Units::Metric), FullRequest());
}

TEST(OrderRequestJson, HasTheMembersOfTheDocument) {
    const QStringList names{QStringLiteral("halfDrop"),     QStringLiteral("joinRooms"),
                            QStringLiteral("lay"),          QStringLiteral("maxParts"),
                            QStringLiteral("minPart"),      QStringLiteral("patternAcross"),
                            QStringLiteral("patternAlong"), QStringLiteral("patternDrift"),
                            QStringLiteral("rolls"),        QStringLiteral("seconds"),
                            QStringLiteral("selvage"),      QStringLiteral("step"),
                            QStringLiteral("trimAcross"),   QStringLiteral("trimAlong")};
    EXPECT_EQ(OrderRequestObject(FullRequest()).keys(), names);
}

TEST(OrderRequestJson, IsUsualWhereMembersAreMissing) {
    OrderRequest expected = DefaultOrderRequest(Units::Imperial);
    expected.Rolls = {{144, "", "12ft", std::nullopt}};
    EXPECT_EQ(ReadOrderRequestJson(R"({"rolls":[{"width":"12ft"}]})", Units::Imperial), expected);
}

TEST(OrderRequestJson, IsNothingWhenItIsNoneOrHasAFault) {
    for (const char* text :
         {"", "[]", "null", "{", R"({"rolls":[]})", R"({"rolls":[{"width":"wide"}]})",
          R"({"rolls":[{"width":"12ft"}],"lay":"askew"})",
          R"({"rolls":[{"width":"12ft"}],"step":1.5})",
          R"({"rolls":[{"width":"12ft"}],"step":"3"})",
          R"({"rolls":[{"width":"12ft"}],"joinRooms":1})",
          R"({"rolls":[{"width":"12ft"}],"maxParts":7})",
          R"({"rolls":[{"width":"12ft"}],"trimAlong":1e300})",
          R"({"rolls":[{"width":"12ft","price":-1}]})"}) {
        EXPECT_FALSE(ReadOrderRequestJson(text, Units::Imperial)) << text;
    }
}

} // namespace
} // namespace tarn
