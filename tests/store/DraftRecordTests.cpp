// The text of a draft's file.

#include "files/QtText.h"
#include "store/DraftRecord.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

#include <string>

namespace tarn {
namespace {

const QDateTime NoonAndMore(QDate(2026, 11, 22), QTime(12, 0, 0, 345), Qt::UTC);

RoomDraft Fields(const std::string& mark) {
    return {{"12" + mark, "6"}, {"", "1/2" + mark}, Byte{3}, "W2", "N" + mark, "remark " + mark};
}

OrderRequest Request(Units units, const std::string& roll) {
    OrderRequest request = DefaultOrderRequest(units);
    request.Rolls = {{units == Units::Metric ? 366.0 : 144.0, "Shop \"1\"", roll, 18.5}};
    request.Pattern = {18, 24, true};
    request.PatternDrift = 0.5;
    return request;
}

DraftRecord FullRecord() {
    DraftRecord record{"/data/Tarn.mdb", "P \"Q\"\n\\", NoonAndMore, NoonAndMore.addDays(3), {}};
    record.Content.Rooms = {
        Room{-32768, 32767, 0, 255, "", ""},
        Room{150, 168, 11, 8, "n\t1", "gr\xC3\xBC\xC3\x9F <b>\xF0\x9F\x8F\xA0"}};
    record.Content.Orders.emplace();
    record.Content.Orders->insert_or_assign(Byte{0}, Request(Units::Imperial, "12ft"));
    record.Content.Orders->insert_or_assign(Byte{7}, Request(Units::Metric, "366 cm"));
    record.Content.EnteredIn = Units::Metric;
    record.Content.Typed.In = Units::Metric;
    record.Content.Typed.New = Fields("new");
    record.Content.Typed.Changed = ChangedRoom{1, Room{1, 2, 3, 4, "5", "6"}, Fields("changed")};
    TypedOrder& typed = record.Content.TypedOrders[3];
    typed.In = Units::Metric;
    typed.Rolls = {{"366 cm", "Shop \"1\"", "18,50"}, {"", "gr\xC3\xBC\xC3\x9F", ""}, {}};
    typed.DownLay = false;
    typed.CrossLay = typed.JoinRooms = typed.HalfDrop = true;
    typed.Selvage = "1";
    typed.TrimAlong = "2 ";
    typed.TrimAcross = "x\"";
    typed.MostParts = 6;
    typed.ShortestPart = "4";
    typed.PatternAcross = "5";
    typed.PatternAlong = "6";
    typed.PatternDrift = "7";
    typed.Step = "8";
    typed.Seconds = "9";
    return record;
}

QJsonObject FullObject() {
    return QJsonDocument::fromJson(QByteArray::fromStdString(DraftText(FullRecord()))).object();
}

bool IsRead(const QJsonObject& object) {
    return ReadDraftText(QJsonDocument(object).toJson().toStdString()).has_value();
}

TEST(DraftText, IsReadAsItWasWritten) {
    const DraftRecord record = FullRecord();
    const auto read = ReadDraftText(DraftText(record));
    ASSERT_TRUE(read);
    EXPECT_EQ(*read, record);
}

TEST(DraftText, LeavesOutWhatADraftHasNot) {
    DraftRecord record;
    record.Database = "/data/Tarn.mdb";
    record.Project = "P";
    record.Written = NoonAndMore;
    record.Content.Typed.New = Fields("");
    record.Content.Typed.New->Covering.reset();
    auto read = ReadDraftText(DraftText(record));
    ASSERT_TRUE(read);
    EXPECT_EQ(*read, record);
    EXPECT_FALSE(read->Content.Rooms) << "the stored ones";
    record.Content.Rooms.emplace();
    read = ReadDraftText(DraftText(record));
    ASSERT_TRUE(read);
    EXPECT_TRUE(read->Content.Rooms) << "all rooms were deleted";
}

TEST(DraftText, TellsTheTimeInUtc) {
    DraftRecord record = FullRecord();
    record.Written = QDateTime(QDate(2026, 11, 22), QTime(14, 0), Qt::OffsetFromUTC, 7200);
    const std::string text = DraftText(record);
    EXPECT_NE(text.find("\"2026-11-22T12:00:00.000Z\""), std::string::npos) << text;
}

TEST(DraftText, IsRefusedWhereverItIsCutShort) {
    const std::string text = DraftText(FullRecord());
    const std::size_t last = text.rfind('}');
    for (std::size_t length = 0; length <= last; ++length) {
        EXPECT_FALSE(ReadDraftText(std::string_view(text).substr(0, length))) << length;
    }
}

TEST(DraftText, IsRefusedWhenItIsNoDraft) {
    for (const std::string text : {"", "[]", "{}", "null", "tarn", "\xFF\xFE", "{\"format\":1}"}) {
        EXPECT_FALSE(ReadDraftText(text)) << text;
    }
    EXPECT_FALSE(ReadDraftText(std::string(100000, '[')));
}

TEST(DraftText, IsRefusedWithoutAnyOfItsParts) {
    for (const char* name : {"format", "database", "project", "written", "enteredIn", "typed"}) {
        QJsonObject object = FullObject();
        object.remove(QLatin1String(name));
        EXPECT_FALSE(IsRead(object)) << name;
    }
    EXPECT_TRUE(IsRead(FullObject()));
}

TEST(DraftText, IsRefusedWithAPartOfAnotherKind) {
    for (const QString& name : FullObject().keys()) {
        for (const QJsonValue& value :
             {QJsonValue(), QJsonValue(true), QJsonValue(2.5), QJsonValue(QStringLiteral("x")),
              QJsonValue(QJsonArray{QStringLiteral("x")}), QJsonValue(QJsonObject())}) {
            if (value.isString() && (name == u"database" || name == u"project")) {
                continue; // any text will do
            }
            QJsonObject object = FullObject();
            object[name] = value;
            EXPECT_FALSE(IsRead(object)) << FromQt(name) << " " << value.type();
        }
    }
}

TEST(DraftText, IsRefusedOfALaterFormat) {
    QJsonObject object = FullObject();
    object[QStringLiteral("format")] = 2;
    EXPECT_FALSE(IsRead(object));
}

TEST(DraftText, IsRefusedWithNumbersThatDoNotFit) {
    for (const auto& [name, value] :
         {std::pair{"width", 32768}, {"length", -32769}, {"covering", 256}, {"base", -1}}) {
        QJsonObject object = FullObject();
        QJsonArray rooms = object[QStringLiteral("rooms")].toArray();
        QJsonObject room = rooms[0].toObject();
        room[QLatin1String(name)] = value;
        rooms[0] = room;
        object[QStringLiteral("rooms")] = rooms;
        EXPECT_FALSE(IsRead(object)) << name;
    }
}

TEST(DraftText, OfAnEarlierProgramHasNoOrders) {
    QJsonObject object = FullObject();
    object.remove(QStringLiteral("orders"));
    object.remove(QStringLiteral("typedOrders"));
    const auto read = ReadDraftText(QJsonDocument(object).toJson().toStdString());
    ASSERT_TRUE(read);
    EXPECT_FALSE(read->Content.Orders) << "the stored ones";
    EXPECT_TRUE(read->Content.TypedOrders.empty());
    EXPECT_EQ(read->Content.Rooms, FullRecord().Content.Rooms);
}

TEST(DraftText, IsRefusedWithChoicesOfAnOrderThatCannotBeShown) {
    for (const auto& [name, value] : {std::pair{"carpet", QJsonValue(8)},
                                      {"units", QJsonValue(QStringLiteral("yards"))},
                                      {"rolls", QJsonValue(QJsonArray{QStringLiteral("x")})},
                                      {"mostParts", QJsonValue(7)},
                                      {"mostParts", QJsonValue(0)},
                                      {"step", QJsonValue(8)},
                                      {"downLay", QJsonValue()}}) {
        QJsonObject object = FullObject();
        QJsonArray orders = object[QStringLiteral("typedOrders")].toArray();
        QJsonObject order = orders[0].toObject();
        order[QLatin1String(name)] = value;
        orders[0] = order;
        object[QStringLiteral("typedOrders")] = orders;
        EXPECT_FALSE(IsRead(object)) << name;
    }
}

TEST(DraftText, IsRefusedWithAnOrderThatCannotBeReadOrIsNoCarpets) {
    for (const auto& [name, value] : {std::pair{"carpet", QJsonValue(8)},
                                      {"carpet", QJsonValue(-1)},
                                      {"units", QJsonValue(QStringLiteral("yards"))},
                                      {"request", QJsonValue(QJsonObject())},
                                      {"request", QJsonValue(QStringLiteral("{}"))}}) {
        QJsonObject object = FullObject();
        QJsonArray orders = object[QStringLiteral("orders")].toArray();
        QJsonObject order = orders[1].toObject();
        order[QLatin1String(name)] = value;
        orders[1] = order;
        object[QStringLiteral("orders")] = orders;
        EXPECT_FALSE(IsRead(object)) << name;
    }
}

TEST(DraftText, HoldsNoMoreRoomsThanAProject) {
    DraftRecord record = FullRecord();
    record.Content.Rooms->resize(RoomCapacity);
    EXPECT_EQ(ReadDraftText(DraftText(record)), record);
    record.Content.Rooms->resize(RoomCapacity + 1);
    EXPECT_FALSE(ReadDraftText(DraftText(record)));
}

} // namespace
} // namespace tarn
