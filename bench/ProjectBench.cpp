#include "app/SharedState.h"
#include "estimate/LayoutDrawing.h"
#include "rooms/Report.h"
#include "rooms/RoomStore.h"
#include "store/Projects.h"
#include "store/Schema.h"
#include "store/SqlDatabase.h"

#include <QCoreApplication>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <string>

namespace {

using tarn::Integer;

/// The fullest project there is, not yet stored.
void FillRooms(tarn::SharedState& state) {
    state.ObjNum = tarn::MaxRoom + 1;
    for (Integer room = 0; room < state.ObjNum; ++room) {
        state.RoomWidth[room] = static_cast<Integer>(60 + room % 200);
        state.RoomLength[room] = static_cast<Integer>(72 + room % 300);
        state.RoomCarpet[room] = static_cast<tarn::Byte>(room % 12);
        state.RoomBase[room] = static_cast<tarn::Byte>(room % 9);
        state.RoomNoStr[room] = std::to_string(room + 1);
        state.RoomRemark[room] = "remark of room " + state.RoomNoStr[room];
    }
}

/// A database in a directory of its own with that project saved and open.
struct FullProject {
    QTemporaryDir Directory;
    std::string File = Directory.filePath(QStringLiteral("Tarn.mdb")).toStdString();
    tarn::SharedState State;

    FullProject() {
        tarn::CreateDatabaseFile(File);
        State.CurDB = tarn::OpenSqlDatabase(File);
        State.CurProjName = "FULL";
        tarn::AddProject(State, "MARCH", State.CurProjName);
        FillRooms(State);
        tarn::SaveProject(State);
    }
};

void OpenDatabase(benchmark::State& bench) {
    const FullProject project;
    for ([[maybe_unused]] const auto _ : bench) {
        benchmark::DoNotOptimize(tarn::OpenSqlDatabase(project.File));
    }
}

void Load501Rooms(benchmark::State& bench) {
    FullProject project;
    for ([[maybe_unused]] const auto _ : bench) {
        const tarn::ProjectLoad load = tarn::LoadProject(project.State);
        if (load.Result != tarn::ProjectLoad::Outcome::Loaded) {
            bench.SkipWithError("the project was not loaded");
        }
    }
}

void Save501Rooms(benchmark::State& bench) {
    FullProject project;
    for ([[maybe_unused]] const auto _ : bench) {
        if (!tarn::SaveProject(project.State)) {
            bench.SkipWithError("the project was not saved");
        }
    }
}

void Report501Rooms(benchmark::State& bench) {
    tarn::SharedState state;
    FillRooms(state);
    for ([[maybe_unused]] const auto _ : bench) {
        benchmark::DoNotOptimize(tarn::LoadReport(state, "2026-01-31"));
    }
}

void Draw3000Parts(benchmark::State& bench) {
    const tarn::SharedState state;
    tarn::CarpetEstimate estimate;
    tarn::EngineArrays engine;
    engine.RollWidth = 144;
    constexpr int PiecesAcross = 6;
    for (Integer i = 0; i < tarn::MaxPiece; ++i) {
        const int row = i / PiecesAcross;
        engine.PCX2[i] = 2400;
        engine.PCY2[i] = 1200;
        engine.OrgPC[i] = static_cast<Integer>(row);
        engine.PosX[i] = static_cast<tarn::Single>(24 * (i % PiecesAcross));
        engine.PosY[i] = static_cast<tarn::Single>(12 * row);
        engine.PosW[i] = 24;
        engine.PosL[i] = 12;
    }
    engine.PieceCount = tarn::MaxPiece;
    engine.PosCount = tarn::MaxPiece;
    engine.ResultLen = 6000;
    estimate.SavedFillCount = 500;
    for ([[maybe_unused]] const auto _ : bench) {
        tarn::Picture picture;
        tarn::RedrawPC(picture, state, engine, estimate);
        tarn::ShowECutsInfo(picture, state, engine, estimate, tarn::CutListX, tarn::CutListY);
        benchmark::DoNotOptimize(picture.Steps().size());
    }
}

} // namespace

BENCHMARK(OpenDatabase)->Unit(benchmark::kMillisecond);
BENCHMARK(Load501Rooms)->Unit(benchmark::kMillisecond);
BENCHMARK(Save501Rooms)->Unit(benchmark::kMillisecond);
BENCHMARK(Report501Rooms)->Unit(benchmark::kMillisecond);
BENCHMARK(Draw3000Parts)->Unit(benchmark::kMillisecond);

int main(int argc, char* argv[]) {
    const QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
