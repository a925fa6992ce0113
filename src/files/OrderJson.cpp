#include "files/OrderJson.h"

#include "base/Words.h"
#include "files/JsonText.h"
#include "files/OrderRequestJson.h"
#include "files/QtText.h"

#include <QJsonArray>
#include <QJsonObject>

namespace tarn {

namespace {

QJsonValue Whole(std::int64_t number) {
    return {static_cast<qint64>(number)};
}

QJsonObject SeamObject(const SeamTotal& seams) {
    return {{QStringLiteral("count"), seams.Count},
            {QStringLiteral("length"), Whole(seams.Length)}};
}

QJsonArray Texts(const std::vector<Saying>& texts) {
    QJsonArray array;
    for (const Saying& text : texts) {
        array.append(ToQt(text.English));
    }
    return array;
}

/// The figures of a row: null, each of them, when it has none.
QJsonObject FiguresObject(const OrderCandidate& candidate, Units units) {
    const auto& figures = candidate.Figures;
    const auto value = [&](auto make) {
        return figures ? QJsonValue(make(*figures)) : QJsonValue();
    };
    const auto area = [&](std::int64_t OrderFigures::*member) {
        return value([&](const OrderFigures& all) { return OrderArea(all.*member, units); });
    };
    return {
        {QStringLiteral("length"), value([](const auto& all) { return Whole(all.Length); })},
        {QStringLiteral("lengthNeeded"), value([](const auto& all) { return all.LengthNeeded; })},
        {QStringLiteral("leastLength"), value([](const auto& all) { return all.LeastLength; })},
        {QStringLiteral("areaBought"), area(&OrderFigures::AreaBought)},
        {QStringLiteral("areaRooms"), area(&OrderFigures::AreaRooms)},
        {QStringLiteral("areaRoomsTrimmed"), area(&OrderFigures::AreaRoomsTrimmed)},
        {QStringLiteral("wastePercent"), value([](const auto& all) { return all.WastePercent; })},
        {QStringLiteral("sideSeams"),
         value([](const auto& all) { return SeamObject(all.SideSeams); })},
        {QStringLiteral("crossJoins"),
         value([](const auto& all) { return SeamObject(all.CrossJoins); })},
        {QStringLiteral("price"),
         figures && figures->Price ? QJsonValue(*figures->Price) : QJsonValue()},
        {QStringLiteral("notes"), Texts(figures ? figures->Notes : std::vector<Saying>())},
    };
}

QJsonObject CandidateObject(const Order& order, const OrderCandidate& candidate) {
    QJsonObject object = FiguresObject(candidate, order.Request.In);
    object.insert(QStringLiteral("roll"), ToQt(order.Request.Rolls.at(candidate.Roll).AsTyped));
    object.insert(QStringLiteral("rollWidth"), candidate.RollWidth);
    object.insert(QStringLiteral("usableWidth"), candidate.UsableWidth);
    object.insert(QStringLiteral("lay"), QString::fromLatin1(LayWord(candidate.Direction)));
    object.insert(QStringLiteral("refused"), candidate.Refused.IsEmpty()
                                                 ? QJsonValue()
                                                 : QJsonValue(ToQt(candidate.Refused.English)));
    return object;
}

QJsonObject PieceObject(const OrderDocument& document, const OrderPiece& piece) {
    const Room& room = RoomOf(document, piece);
    return {{QStringLiteral("label"), ToQt(piece.Label)},
            {QStringLiteral("room"), piece.Room},
            {QStringLiteral("roomNumber"), ToQt(room.Number)},
            {QStringLiteral("remark"), ToQt(room.Remark)},
            {QStringLiteral("strip"), piece.Strip},
            {QStringLiteral("strips"), piece.Strips},
            {QStringLiteral("part"), piece.Part},
            {QStringLiteral("parts"), piece.Parts},
            {QStringLiteral("x"), piece.X},
            {QStringLiteral("y"), piece.Y},
            {QStringLiteral("width"), piece.Width},
            {QStringLiteral("length"), piece.Length},
            {QStringLiteral("roomX"), piece.RoomX},
            {QStringLiteral("roomY"), piece.RoomY}};
}

QJsonObject OrderObject(const OrderDocument& document, const Order& order) {
    QJsonArray candidates;
    for (const OrderCandidate& candidate : order.Candidates) {
        candidates.append(CandidateObject(order, candidate));
    }
    QJsonArray pieces;
    for (const OrderPiece& piece : BestPieces(order)) {
        pieces.append(PieceObject(document, piece));
    }
    return {{QStringLiteral("carpet"), order.Carpet + 1},
            {QStringLiteral("request"), OrderRequestObject(order.Request)},
            {QStringLiteral("candidates"), candidates},
            {QStringLiteral("best"),
             order.Best ? Whole(static_cast<std::int64_t>(*order.Best)) : QJsonValue()},
            {QStringLiteral("pieces"), pieces}};
}

} // namespace

std::string OrderJson(const OrderDocument& document) {
    QJsonArray carpets;
    for (const Order& order : document.Orders) {
        carpets.append(OrderObject(document, order));
    }
    return JsonText({{QStringLiteral("project"), ToQt(document.Of.Name)},
                     {QStringLiteral("units"), QString::fromLatin1(UnitWord(document.In))},
                     {QStringLiteral("carpets"), carpets}});
}

} // namespace tarn
