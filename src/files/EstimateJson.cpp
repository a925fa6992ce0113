#include "files/EstimateJson.h"

#include "estimate/FillLabels.h"
#include "estimate/Totals.h"
#include "files/JsonText.h"

#include <QJsonArray>
#include <QJsonObject>

namespace tarn {

namespace {

QString Text(const std::string& utf8) {
    return QString::fromStdString(utf8);
}

double Number(Single value) {
    return static_cast<double>(value);
}

QJsonArray Cuts(const Estimate& estimate) {
    QJsonArray cuts;
    for (const Cut& cut : estimate.Cuts) {
        cuts.append(QJsonObject{{QStringLiteral("x1"), Number(cut.X1)},
                                {QStringLiteral("x2"), Number(cut.X2)},
                                {QStringLiteral("y1"), Number(cut.Y1)},
                                {QStringLiteral("y2"), Number(cut.Y2)}});
    }
    return cuts;
}

QJsonArray Pieces(const Estimate& estimate) {
    QJsonArray pieces;
    for (const Placed& placed : estimate.Fills.Layout) {
        const Piece& piece = placed.Part;
        pieces.append(QJsonObject{{QStringLiteral("label"), Text(LabelOf(estimate, piece))},
                                  {QStringLiteral("org"), piece.Number},
                                  {QStringLiteral("x1"), Number(piece.X1)},
                                  {QStringLiteral("x2"), Number(piece.X2)},
                                  {QStringLiteral("y1"), Number(piece.Y1)},
                                  {QStringLiteral("y2"), Number(piece.Y2)},
                                  {QStringLiteral("posX"), Number(placed.X)},
                                  {QStringLiteral("posY"), Number(placed.Y)},
                                  {QStringLiteral("posW"), Number(placed.Width)},
                                  {QStringLiteral("posL"), Number(placed.Length)}});
    }
    return pieces;
}

int Count(std::size_t number) {
    return static_cast<int>(number);
}

QJsonObject Totals(const Estimate& estimate) {
    const RollTotals totals = TotalRoll(estimate);
    return {{QStringLiteral("cutCount"), Count(estimate.Cuts.size())},
            {QStringLiteral("cutLength"), totals.CutLength},
            {QStringLiteral("fillCount"), Count(estimate.Fills.Layout.size())},
            {QStringLiteral("fillLength"), estimate.Fills.Length},
            {QStringLiteral("length"), totals.Length},
            {QStringLiteral("squareYards"), totals.Size.SquareYards},
            {QStringLiteral("squareFeet"), totals.Size.SquareFeet},
            {QStringLiteral("squareMeters"), totals.Size.SquareMeters},
            {QStringLiteral("base"), Number(estimate.Base)}};
}

/// The two options of the search in one number: the minimum cut's position in tens, the pieces per
/// fill less one in units.
int OptionNumber(const EstimateRequest& request) {
    return 10 * static_cast<int>(request.ShortestPart) + request.PiecesPerFill - 1;
}

QJsonObject Improved(const Improvement& improvement) {
    return {{QStringLiteral("startLength"), improvement.StartLength},
            {QStringLiteral("length"), improvement.Length},
            {QStringLiteral("bound"), improvement.Bound},
            {QStringLiteral("startPieces"), improvement.StartPieces},
            {QStringLiteral("pieces"), improvement.Pieces}};
}

} // namespace

std::string EstimateJson(const Estimate& estimate) {
    const EstimateRequest& request = estimate.Request;
    const SearchResult& fills = estimate.Fills;
    QJsonObject document{{QStringLiteral("project"), Text(estimate.ProjectName)},
                         {QStringLiteral("carpet"), request.Carpet + 1},
                         {QStringLiteral("metric"), request.In == Units::Metric},
                         {QStringLiteral("rollWidth"), Number(request.RollWidth)},
                         {QStringLiteral("layDir"), request.Direction == Lay::Cross ? 1 : 0},
                         {QStringLiteral("estOption"), OptionNumber(request)},
                         {QStringLiteral("cases"), fills.Cases},
                         {QStringLiteral("bestLen"), fills.BestLength},
                         {QStringLiteral("bestMode"), fills.BestPower},
                         {QStringLiteral("resultLen"), fills.Length},
                         {QStringLiteral("cuts"), Cuts(estimate)},
                         {QStringLiteral("pieces"), Pieces(estimate)},
                         {QStringLiteral("totals"), Totals(estimate)}};
    if (estimate.Improved) {
        document.insert(QStringLiteral("improved"), Improved(*estimate.Improved));
    }
    return JsonText(document);
}

} // namespace tarn
