// A project as full as it may be, and a layout as full as it may be: stored, loaded, listed, drawn.

#include "engine/Search.h"
#include "estimate/LayoutDrawing.h"
#include "project/Report.h"
#include "store/ProjectStore.h"
#include "store/Schema.h"

#include <QCoreApplication>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <string>
#include <vector>

namespace {

using tarn::Byte;
using tarn::Integer;
using tarn::Single;
using tarn::Units;

constexpr const char* ProjectName = "FULL";

/// As many rooms as a project may have.
std::vector<tarn::Room> FullRooms() {
    std::vector<tarn::Room> rooms;
    for (int room = 0; room < static_cast<int>(tarn::RoomCapacity); ++room) {
        const std::string number = std::to_string(room + 1);
        rooms.push_back({static_cast<Integer>(60 + room % 200),
                         static_cast<Integer>(72 + room % 300), static_cast<Byte>(room % 12),
                         static_cast<Byte>(room % 9), number, "remark of room " + number});
    }
    return rooms;
}

/// An empty database in a directory of its own.
struct DatabaseInFolder {
    QTemporaryDir Directory;
    std::string File = Directory.filePath(QStringLiteral("Tarn.mdb")).toStdString();

    DatabaseInFolder() { tarn::CreateDatabaseFile(File); }
};

/// The same with a project of those rooms stored in it.
struct StoredProject {
    DatabaseInFolder Database;
    tarn::ProjectStore Store{Database.File, tarn::DatabaseAccess::ReadWrite};
    tarn::Project Project;

    StoredProject() {
        Store.AddProject("MARCH", ProjectName);
        Project = Store.Load(ProjectName).Value;
        Project.Rooms = FullRooms();
        Project = Store.Save(Project, Units::Imperial).Value;
    }
};

void OpenDatabase(benchmark::State& bench) {
    const StoredProject stored;
    for ([[maybe_unused]] const auto _ : bench) {
        benchmark::DoNotOptimize(
            tarn::ProjectStore(stored.Database.File, tarn::DatabaseAccess::ReadWrite));
    }
}

void Load501Rooms(benchmark::State& bench) {
    StoredProject stored;
    for ([[maybe_unused]] const auto _ : bench) {
        const tarn::LoadedProject loaded = stored.Store.Load(ProjectName);
        if (loaded.Value.Rooms.size() != tarn::RoomCapacity) {
            bench.SkipWithError("the project was not loaded whole");
        }
    }
}

void Save501Rooms(benchmark::State& bench) {
    StoredProject stored;
    for ([[maybe_unused]] const auto _ : bench) {
        benchmark::DoNotOptimize(stored.Store.Save(stored.Project, Units::Imperial));
    }
}

void Report501Rooms(benchmark::State& bench) {
    tarn::Project project;
    project.Name = ProjectName;
    project.Rooms = FullRooms();
    for ([[maybe_unused]] const auto _ : bench) {
        benchmark::DoNotOptimize(tarn::MakeReport(project, Units::Imperial, "2026-01-31"));
    }
}

/// An estimate whose layout has as many parts as there may be, six across a roll of 144 inches.
tarn::Estimate FullEstimate() {
    constexpr int PiecesAcross = 6;
    constexpr Single Width = 24;
    constexpr Single Length = 12;
    tarn::Estimate estimate;
    estimate.Request.RollWidth = estimate.Job.RollWidth = Width * PiecesAcross;
    for (int i = 0; i < tarn::MaxPieces; ++i) {
        const int row = i / PiecesAcross;
        tarn::Placed placed;
        placed.Part.X2 = 100 * Width;
        placed.Part.Y2 = 100 * Length;
        placed.Part.Number = static_cast<Integer>(row);
        placed.X = Width * static_cast<Single>(i % PiecesAcross);
        placed.Y = Length * static_cast<Single>(row);
        placed.Width = Width;
        placed.Length = Length;
        if (i % PiecesAcross == 0) {
            estimate.Job.Pieces.push_back(placed.Part);
        }
        estimate.Fills.Layout.push_back(placed);
    }
    estimate.Fills.Length = static_cast<Integer>(Length * tarn::MaxPieces / PiecesAcross);
    return estimate;
}

void Draw3000Parts(benchmark::State& bench) {
    const tarn::Estimate estimate = FullEstimate();
    for ([[maybe_unused]] const auto _ : bench) {
        tarn::Drawing drawing;
        tarn::DrawLayout(drawing, estimate);
        tarn::DrawCutList(drawing, estimate, tarn::CutListX, tarn::CutListY);
        benchmark::DoNotOptimize(drawing.Steps().size());
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
