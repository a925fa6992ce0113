#include "store/DraftRecord.h"

#include "files/OrderRequestJson.h"
#include "files/QtText.h"
#include "project/Coverings.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <array>
#include <limits>
#include <stdexcept>
#include <utility>

namespace tarn {

namespace {

constexpr int Format = 1;
constexpr const char* Metric = "metric";
constexpr const char* Imperial = "feet";

/// What is missing or wrong in a text; it never gets out of here.
struct Damaged : std::runtime_error {
    Damaged()
        : std::runtime_error("damaged") {}
};

void Require(bool sound) {
    if (!sound) {
        throw Damaged();
    }
}

QString UnitsText(Units units) {
    return QString::fromLatin1(units == Units::Metric ? Metric : Imperial);
}

QString TimeText(const QDateTime& time) {
    return time.toUTC().toString(Qt::ISODateWithMs);
}

QJsonObject RoomObject(const Room& room) {
    return {{QStringLiteral("width"), room.Width},
            {QStringLiteral("length"), room.Length},
            {QStringLiteral("covering"), room.Covering},
            {QStringLiteral("base"), room.Base},
            {QStringLiteral("number"), ToQt(room.Number)},
            {QStringLiteral("remark"), ToQt(room.Remark)}};
}

QJsonArray SizeArray(const SizeParts& size) {
    return {ToQt(size.Major), ToQt(size.Minor)};
}

QJsonObject FieldsObject(const RoomDraft& fields) {
    QJsonObject object{{QStringLiteral("width"), SizeArray(fields.Width)},
                       {QStringLiteral("length"), SizeArray(fields.Length)},
                       {QStringLiteral("base"), ToQt(fields.Base)},
                       {QStringLiteral("number"), ToQt(fields.Number)},
                       {QStringLiteral("remark"), ToQt(fields.Remark)}};
    if (fields.Covering) {
        object[QStringLiteral("covering")] = *fields.Covering;
    }
    return object;
}

QJsonObject TypingObject(const Typing& typed) {
    QJsonObject object{{QStringLiteral("units"), UnitsText(typed.In)}};
    if (typed.New) {
        object[QStringLiteral("new")] = FieldsObject(*typed.New);
    }
    if (typed.Changed) {
        object[QStringLiteral("changed")] =
            QJsonObject{{QStringLiteral("place"), static_cast<int>(typed.Changed->Place)},
                        {QStringLiteral("before"), RoomObject(typed.Changed->Before)},
                        {QStringLiteral("fields"), FieldsObject(typed.Changed->Texts)}};
    }
    return object;
}

QJsonValue ValueIn(const QJsonObject& object, const char* name) {
    return object.value(QLatin1String(name));
}

QJsonObject ObjectIn(const QJsonObject& object, const char* name) {
    const QJsonValue value = ValueIn(object, name);
    Require(value.isObject());
    return value.toObject();
}

std::string TextOf(const QJsonValue& value) {
    Require(value.isString());
    return FromQt(value.toString());
}

template <typename Number>
Number NumberIn(const QJsonObject& object, const char* name) {
    constexpr qint64 None = std::numeric_limits<qint64>::min();
    const qint64 number = ValueIn(object, name).toInteger(None);
    Require(std::in_range<Number>(number));
    return static_cast<Number>(number);
}

Units UnitsIn(const QJsonObject& object, const char* name) {
    const std::string text = TextOf(ValueIn(object, name));
    Require(text == Metric || text == Imperial);
    return text == Metric ? Units::Metric : Units::Imperial;
}

QDateTime TimeIn(const QJsonObject& object, const char* name) {
    QDateTime time = QDateTime::fromString(ToQt(TextOf(ValueIn(object, name))), Qt::ISODateWithMs);
    Require(time.isValid());
    return time;
}

Room RoomOf(const QJsonValue& value) {
    Require(value.isObject());
    const QJsonObject object = value.toObject();
    return {NumberIn<Integer>(object, "width"), NumberIn<Integer>(object, "length"),
            NumberIn<Byte>(object, "covering"), NumberIn<Byte>(object, "base"),
            TextOf(ValueIn(object, "number")),  TextOf(ValueIn(object, "remark"))};
}

std::vector<Room> RoomsOf(const QJsonValue& value) {
    Require(value.isArray());
    const QJsonArray array = value.toArray();
    Require(array.size() <= static_cast<qsizetype>(RoomCapacity));
    std::vector<Room> rooms;
    for (const auto& each : array) {
        rooms.push_back(RoomOf(each));
    }
    return rooms;
}

QJsonArray OrderArray(const std::map<Byte, OrderRequest>& orders) {
    QJsonArray array;
    for (const auto& [carpet, request] : orders) {
        array.append(QJsonObject{{QStringLiteral("carpet"), carpet},
                                 {QStringLiteral("units"), UnitsText(request.In)},
                                 {QStringLiteral("request"), OrderRequestObject(request)}});
    }
    return array;
}

std::map<Byte, OrderRequest> OrdersOf(const QJsonValue& value) {
    Require(value.isArray());
    std::map<Byte, OrderRequest> orders;
    for (const auto& each : value.toArray()) {
        const QJsonObject object = each.toObject();
        const Byte carpet = NumberIn<Byte>(object, "carpet");
        const QJsonDocument request(ObjectIn(object, "request"));
        const auto read = ReadOrderRequestJson(request.toJson(QJsonDocument::Compact).toStdString(),
                                               UnitsIn(object, "units"));
        Require(IsCarpet(carpet) && read);
        orders.insert_or_assign(carpet, *read);
    }
    return orders;
}

/// The texts of an order's choices and their names in a draft.
struct OrderText {
    const char* Name;
    std::string TypedOrder::*Text;
};
constexpr std::array<OrderText, 9> OrderTexts{{{"selvage", &TypedOrder::Selvage},
                                               {"trimAlong", &TypedOrder::TrimAlong},
                                               {"trimAcross", &TypedOrder::TrimAcross},
                                               {"shortestPart", &TypedOrder::ShortestPart},
                                               {"patternAcross", &TypedOrder::PatternAcross},
                                               {"patternAlong", &TypedOrder::PatternAlong},
                                               {"patternDrift", &TypedOrder::PatternDrift},
                                               {"step", &TypedOrder::Step},
                                               {"seconds", &TypedOrder::Seconds}}};
struct OrderTick {
    const char* Name;
    bool TypedOrder::*Tick;
};
constexpr std::array<OrderTick, 4> OrderTicks{{{"downLay", &TypedOrder::DownLay},
                                               {"crossLay", &TypedOrder::CrossLay},
                                               {"joinRooms", &TypedOrder::JoinRooms},
                                               {"halfDrop", &TypedOrder::HalfDrop}}};

QJsonObject TypedOrderObject(Byte carpet, const TypedOrder& typed) {
    QJsonArray rolls;
    for (const TypedRoll& roll : typed.Rolls) {
        rolls.append(QJsonArray{ToQt(roll.Width), ToQt(roll.Name), ToQt(roll.Price)});
    }
    QJsonObject object{{QStringLiteral("carpet"), carpet},
                       {QStringLiteral("units"), UnitsText(typed.In)},
                       {QStringLiteral("rolls"), rolls},
                       {QStringLiteral("mostParts"), typed.MostParts}};
    for (const OrderText& each : OrderTexts) {
        object[QLatin1String(each.Name)] = ToQt(typed.*each.Text);
    }
    for (const OrderTick& each : OrderTicks) {
        object[QLatin1String(each.Name)] = typed.*each.Tick;
    }
    return object;
}

QJsonArray TypedOrderArray(const std::map<Byte, TypedOrder>& orders) {
    QJsonArray array;
    for (const auto& [carpet, typed] : orders) {
        array.append(TypedOrderObject(carpet, typed));
    }
    return array;
}

TypedRoll TypedRollOf(const QJsonValue& value) {
    const QJsonArray texts = value.toArray();
    Require(texts.size() == 3);
    return {TextOf(texts[0]), TextOf(texts[1]), TextOf(texts[2])};
}

TypedOrder TypedOrderOf(const QJsonObject& object) {
    TypedOrder typed;
    typed.In = UnitsIn(object, "units");
    const QJsonArray rolls = ValueIn(object, "rolls").toArray();
    Require(rolls.size() <= static_cast<qsizetype>(MostRolls) + 1); // and an empty row
    for (const auto& roll : rolls) {
        typed.Rolls.push_back(TypedRollOf(roll));
    }
    typed.MostParts = NumberIn<Long>(object, "mostParts");
    Require(typed.MostParts >= 1 && typed.MostParts <= MostPartsOfStrip);
    for (const OrderText& each : OrderTexts) {
        typed.*each.Text = TextOf(ValueIn(object, each.Name));
    }
    for (const OrderTick& each : OrderTicks) {
        const QJsonValue tick = ValueIn(object, each.Name);
        Require(tick.isBool());
        typed.*each.Tick = tick.toBool();
    }
    return typed;
}

std::map<Byte, TypedOrder> TypedOrdersOf(const QJsonValue& value) {
    Require(value.isArray());
    std::map<Byte, TypedOrder> orders;
    for (const auto& each : value.toArray()) {
        const QJsonObject object = each.toObject();
        const Byte carpet = NumberIn<Byte>(object, "carpet");
        Require(IsCarpet(carpet));
        orders.insert_or_assign(carpet, TypedOrderOf(object));
    }
    return orders;
}

SizeParts SizeIn(const QJsonObject& object, const char* name) {
    const QJsonArray parts = ValueIn(object, name).toArray();
    Require(parts.size() == 2);
    return {TextOf(parts[0]), TextOf(parts[1])};
}

RoomDraft FieldsOf(const QJsonObject& object) {
    RoomDraft fields;
    fields.Width = SizeIn(object, "width");
    fields.Length = SizeIn(object, "length");
    if (object.contains(QLatin1String("covering"))) {
        fields.Covering = NumberIn<Byte>(object, "covering");
    }
    fields.Base = TextOf(ValueIn(object, "base"));
    fields.Number = TextOf(ValueIn(object, "number"));
    fields.Remark = TextOf(ValueIn(object, "remark"));
    return fields;
}

Typing TypingOf(const QJsonObject& object) {
    Typing typed;
    typed.In = UnitsIn(object, "units");
    if (object.contains(QLatin1String("new"))) {
        typed.New = FieldsOf(ObjectIn(object, "new"));
    }
    if (object.contains(QLatin1String("changed"))) {
        const QJsonObject changed = ObjectIn(object, "changed");
        typed.Changed =
            ChangedRoom{NumberIn<std::uint16_t>(changed, "place"),
                        RoomOf(ValueIn(changed, "before")), FieldsOf(ObjectIn(changed, "fields"))};
    }
    return typed;
}

DraftRecord RecordOf(const QJsonObject& object) {
    Require(NumberIn<int>(object, "format") == Format);
    DraftRecord record;
    record.Database = TextOf(ValueIn(object, "database"));
    record.Project = TextOf(ValueIn(object, "project"));
    record.Written = TimeIn(object, "written");
    if (object.contains(QLatin1String("superseded"))) {
        record.Superseded = TimeIn(object, "superseded");
    }
    record.Content.EnteredIn = UnitsIn(object, "enteredIn");
    if (object.contains(QLatin1String("rooms"))) {
        record.Content.Rooms = RoomsOf(ValueIn(object, "rooms"));
    }
    if (object.contains(QLatin1String("orders"))) {
        record.Content.Orders = OrdersOf(ValueIn(object, "orders"));
    }
    record.Content.Typed = TypingOf(ObjectIn(object, "typed"));
    if (object.contains(QLatin1String("typedOrders"))) {
        record.Content.TypedOrders = TypedOrdersOf(ValueIn(object, "typedOrders"));
    }
    return record;
}

} // namespace

std::string DraftText(const DraftRecord& record) {
    QJsonObject object{{QStringLiteral("format"), Format},
                       {QStringLiteral("database"), ToQt(record.Database)},
                       {QStringLiteral("project"), ToQt(record.Project)},
                       {QStringLiteral("written"), TimeText(record.Written)},
                       {QStringLiteral("enteredIn"), UnitsText(record.Content.EnteredIn)},
                       {QStringLiteral("typed"), TypingObject(record.Content.Typed)}};
    if (record.Superseded.isValid()) {
        object[QStringLiteral("superseded")] = TimeText(record.Superseded);
    }
    if (record.Content.Rooms) {
        QJsonArray rooms;
        for (const Room& room : *record.Content.Rooms) {
            rooms.append(RoomObject(room));
        }
        object[QStringLiteral("rooms")] = rooms;
    }
    if (record.Content.Orders) {
        object[QStringLiteral("orders")] = OrderArray(*record.Content.Orders);
    }
    if (!record.Content.TypedOrders.empty()) {
        object[QStringLiteral("typedOrders")] = TypedOrderArray(record.Content.TypedOrders);
    }
    return QJsonDocument(object).toJson(QJsonDocument::Indented).toStdString();
}

std::optional<DraftRecord> ReadDraftText(std::string_view text) {
    const QJsonDocument document = QJsonDocument::fromJson(
        QByteArray::fromRawData(text.data(), static_cast<qsizetype>(text.size())));
    try {
        return RecordOf(document.object());
    } catch (const Damaged&) {
        return std::nullopt;
    }
}

} // namespace tarn
