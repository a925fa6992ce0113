#include "files/OrderRequestJson.h"

#include "files/QtText.h"
#include "project/OrderLengths.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cmath>

namespace tarn {

namespace {

constexpr QStringView BothLays = u"both";
constexpr QStringView DownLay = u"down";
constexpr QStringView CrossLay = u"cross";

QString LayWord(const std::vector<Lay>& lays) {
    const QStringView word = lays.size() > 1             ? BothLays
                             : lays.front() == Lay::Down ? DownLay
                                                         : CrossLay;
    return word.toString();
}

/// The lays of a word; none for another word.
std::vector<Lay> LaysOf(const QString& word) {
    std::vector<Lay> lays;
    if (word == DownLay || word == BothLays) {
        lays.push_back(Lay::Down);
    }
    if (word == CrossLay || word == BothLays) {
        lays.push_back(Lay::Cross);
    }
    return lays;
}

QJsonObject RollObject(const RollChoice& roll) {
    return {{QStringLiteral("name"), ToQt(roll.Name)},
            {QStringLiteral("width"), ToQt(roll.AsTyped)},
            {QStringLiteral("price"), roll.Price ? QJsonValue(*roll.Price) : QJsonValue()}};
}

/// The roll of an object; one without a width, which is a fault of the request, when that cannot be
/// read.
RollChoice RollOf(const QJsonObject& object, Units units) {
    RollChoice roll;
    roll.Name = FromQt(object.value(u"name").toString());
    roll.AsTyped = FromQt(object.value(u"width").toString());
    roll.Width = ReadOrderLength(roll.AsTyped, units).value_or(0);
    const QJsonValue price = object.value(u"price");
    if (price.isDouble()) {
        roll.Price = price.toDouble();
    }
    return roll;
}

/// Reads the members of an object, one after the other; a member of another type, or a number that
/// is not whole where it must be, is a fault.
class MemberReader {
  public:
    explicit MemberReader(const QJsonObject& object)
        : object_(object) {}

    bool IsGood() const { return good_; }

    void Take(QStringView name, Long& value) {
        constexpr Double Most = 1e9;
        Double number = value;
        Take(name, number);
        const bool isWhole = std::abs(number) < Most && number == std::floor(number);
        good_ = good_ && isWhole;
        value = isWhole ? static_cast<Long>(number) : 0;
    }
    void Take(QStringView name, Double& value) {
        if (const auto member = Member(name)) {
            good_ = good_ && member->isDouble();
            value = member->toDouble();
        }
    }
    void Take(QStringView name, bool& value) {
        if (const auto member = Member(name)) {
            good_ = good_ && member->isBool();
            value = member->toBool();
        }
    }

  private:
    std::optional<QJsonValue> Member(QStringView name) const {
        return object_.contains(name) ? std::optional(object_.value(name)) : std::nullopt;
    }

    const QJsonObject& object_;
    bool good_ = true;
};

} // namespace

QJsonObject OrderRequestObject(const OrderRequest& request) {
    QJsonArray rolls;
    for (const RollChoice& roll : request.Rolls) {
        rolls.append(RollObject(roll));
    }
    return {{QStringLiteral("rolls"), rolls},
            {QStringLiteral("selvage"), request.Selvage},
            {QStringLiteral("lay"), LayWord(request.Lays)},
            {QStringLiteral("trimAlong"), request.TrimAlong},
            {QStringLiteral("trimAcross"), request.TrimAcross},
            {QStringLiteral("maxParts"), request.MostParts},
            {QStringLiteral("minPart"), request.ShortestPart},
            {QStringLiteral("joinRooms"), request.JoinRooms},
            {QStringLiteral("patternAcross"), request.Pattern.Across},
            {QStringLiteral("patternAlong"), request.Pattern.Along},
            {QStringLiteral("halfDrop"), request.Pattern.HalfDrop},
            {QStringLiteral("patternDrift"), DriftOf(request)},
            {QStringLiteral("step"), request.Step},
            {QStringLiteral("seconds"), request.Seconds}};
}

std::string OrderRequestJson(const OrderRequest& request) {
    return QJsonDocument(OrderRequestObject(request)).toJson(QJsonDocument::Compact).toStdString();
}

std::optional<OrderRequest> ReadOrderRequestJson(std::string_view json, Units units) {
    const QJsonDocument document =
        QJsonDocument::fromJson(QByteArray(json.data(), static_cast<qsizetype>(json.size())));
    if (!document.isObject()) {
        return std::nullopt;
    }
    const QJsonObject object = document.object();
    OrderRequest request = DefaultOrderRequest(units);
    for (const auto& roll : object.value(u"rolls").toArray()) {
        request.Rolls.push_back(RollOf(roll.toObject(), units));
    }
    if (object.contains(u"lay")) {
        request.Lays = LaysOf(object.value(u"lay").toString());
    }
    MemberReader reader(object);
    reader.Take(u"selvage", request.Selvage);
    reader.Take(u"trimAlong", request.TrimAlong);
    reader.Take(u"trimAcross", request.TrimAcross);
    reader.Take(u"maxParts", request.MostParts);
    reader.Take(u"minPart", request.ShortestPart);
    reader.Take(u"joinRooms", request.JoinRooms);
    reader.Take(u"patternAcross", request.Pattern.Across);
    reader.Take(u"patternAlong", request.Pattern.Along);
    reader.Take(u"halfDrop", request.Pattern.HalfDrop);
    reader.Take(u"step", request.Step);
    reader.Take(u"seconds", request.Seconds);
    if (object.contains(u"patternDrift")) {
        request.PatternDrift = 0;
        reader.Take(u"patternDrift", *request.PatternDrift);
    }
    if (!reader.IsGood() || FaultOf(request)) {
        return std::nullopt;
    }
    return request;
}

} // namespace tarn
