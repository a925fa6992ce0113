#include "estimate/EstimateJson.h"

#include "estimate/CutList.h"
#include "estimate/Totals.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace tarn {

namespace {

QString Text(const std::string& utf8) {
    return QString::fromStdString(utf8);
}

double Number(Single value) {
    return static_cast<double>(value);
}

QJsonArray Cuts(const SharedState& state) {
    QJsonArray cuts;
    for (Integer i = 0; i < state.ECutCount; ++i) {
        cuts.append(QJsonObject{{QStringLiteral("x1"), Number(state.ECutX1[i])},
                                {QStringLiteral("x2"), Number(state.ECutX2[i])},
                                {QStringLiteral("y1"), Number(state.ECutY1[i])},
                                {QStringLiteral("y2"), Number(state.ECutY2[i])}});
    }
    return cuts;
}

QJsonArray Pieces(const EngineArrays& engine, Integer savedFillCount) {
    QJsonArray pieces;
    for (Integer i = 0; i < engine.PieceCount; ++i) {
        const std::string label = PieceLabel(engine.OrgPC[i], savedFillCount);
        pieces.append(QJsonObject{{QStringLiteral("label"), Text(label)},
                                  {QStringLiteral("org"), engine.OrgPC[i]},
                                  {QStringLiteral("x1"), Number(engine.PCX1[i])},
                                  {QStringLiteral("x2"), Number(engine.PCX2[i])},
                                  {QStringLiteral("y1"), Number(engine.PCY1[i])},
                                  {QStringLiteral("y2"), Number(engine.PCY2[i])},
                                  {QStringLiteral("posX"), Number(engine.PosX[i])},
                                  {QStringLiteral("posY"), Number(engine.PosY[i])},
                                  {QStringLiteral("posW"), Number(engine.PosW[i])},
                                  {QStringLiteral("posL"), Number(engine.PosL[i])}});
    }
    return pieces;
}

QJsonObject Totals(const SharedState& state, const EngineArrays& engine) {
    const RollTotals totals = TotalRoll(state, engine);
    return {{QStringLiteral("cutCount"), state.ECutCount},
            {QStringLiteral("cutLength"), totals.CutLength},
            {QStringLiteral("fillCount"), engine.PieceCount},
            {QStringLiteral("fillLength"), engine.ResultLen},
            {QStringLiteral("length"), totals.Length},
            {QStringLiteral("squareYards"), totals.Size.SquareYards},
            {QStringLiteral("squareFeet"), totals.Size.SquareFeet},
            {QStringLiteral("squareMeters"), totals.Size.SquareMeters},
            {QStringLiteral("base"), Number(TotalBase(state))}};
}

QJsonObject Improved(const Improvement& improvement) {
    return {{QStringLiteral("startLength"), improvement.StartLength},
            {QStringLiteral("length"), improvement.Length},
            {QStringLiteral("bound"), improvement.Bound},
            {QStringLiteral("startPieces"), improvement.StartPieces},
            {QStringLiteral("pieces"), improvement.Pieces}};
}

} // namespace

std::string EstimateJson(const SharedState& state, const EngineArrays& engine,
                         const CarpetEstimate& estimate) {
    QJsonObject document{{QStringLiteral("project"), Text(state.CurProjName)},
                         {QStringLiteral("carpet"), estimate.CarpetNo + 1},
                         {QStringLiteral("metric"), state.IsMetric()},
                         {QStringLiteral("rollWidth"), Number(engine.RollWidth)},
                         {QStringLiteral("layDir"), engine.LayDir},
                         {QStringLiteral("estOption"), state.EstOption},
                         {QStringLiteral("cases"), engine.CaseCount},
                         {QStringLiteral("bestLen"), engine.BestLen},
                         {QStringLiteral("bestMode"), engine.BestMode},
                         {QStringLiteral("resultLen"), engine.ResultLen},
                         {QStringLiteral("cuts"), Cuts(state)},
                         {QStringLiteral("pieces"), Pieces(engine, estimate.SavedFillCount)},
                         {QStringLiteral("totals"), Totals(state, engine)}};
    if (estimate.Improved) {
        document.insert(QStringLiteral("improved"), Improved(*estimate.Improved));
    }
    return QJsonDocument(document).toJson(QJsonDocument::Indented).toStdString();
}

} // namespace tarn
