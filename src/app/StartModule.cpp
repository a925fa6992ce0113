#include "app/StartModule.h"

#include "app/Configuration.h"
#include "store/Failure.h"
#include "store/Names.h"
#include "store/ProjectNames.h"
#include "store/SharedRows.h"
#include "store/SqlDatabase.h"

#include <array>

namespace tarn {

namespace {

bool OpenDatabaseFile(SharedState& state) {
    return Succeeds(state,
                    [&] { state.CurDB = OpenSqlDatabase(WithNativeSeparators(state.DBName)); });
}

void OpenSharedRows(SharedState& state) {
    // The sheets are read by deletions alone, but DBRS holds all three from the start; with 5000
    // projects that takes 11 ms and 3.6 MB.
    for (const SharedRows rows :
         {SharedRows::Directories, SharedRows::Projects, SharedRows::Sheets}) {
        Succeeds(state, [&] { ReopenRows(state, rows); });
    }
}

} // namespace

bool InitSharedState(SharedState& state, EngineArrays& engine,
                     const std::vector<std::filesystem::path>& configurationDirectories,
                     const QDate& today, const QLocale& locale) {
    state = SharedState(); // sets MinCutLen, DimScale, MetricFlag and every count
    if (!OpenDataBase(state, configurationDirectories)) {
        return false;
    }
    FillMonthStr(state);
    DimAllArrays(state, engine);
    state.CurDirName = MonthDirectoryName(today, locale);
    state.CurProjName.clear();
    return true;
}

bool OpenDataBase(SharedState& state,
                  const std::vector<std::filesystem::path>& configurationDirectories) {
    const Configuration configuration = ReadConfiguration(configurationDirectories);
    if (configuration.Found != Configuration::Finding::Read) {
        return false;
    }
    state.DataPath = configuration.DataPath;
    state.DBName = state.DataPath + "\\";
    state.DBName += DatabaseFileInDataFolder;
    if (OpenDatabaseFile(state)) {
        OpenSharedRows(state);
    } else if (state.DataPath.empty()) {
        state.DatabaseFailure.append(" No data folder is named in ")
            .append(configuration.File.string())
            .append(".");
    }
    return true;
}

bool RetryDataBase(SharedState& state) {
    if (state.CurDB) {
        return true;
    }
    const std::string atStart = state.DatabaseFailure;
    if (OpenDatabaseFile(state)) {
        OpenSharedRows(state);
        return true;
    }
    if (state.DataPath.empty() && !atStart.empty()) {
        state.DatabaseFailure = atStart; // it names the configuration file
    }
    return false;
}

void FillMonthStr(SharedState& state) {
    constexpr std::array<std::string_view, MonthsOfAYear> Names = {
        "JANUARY", "FEBRUARY", "MARCH",     "APRIL",   "MAY",      "JUNE",
        "JULY",    "AUGUST",   "SEPTEMBER", "OCTOBER", "NOVEMBER", "DECEMBER"};
    Integer month = 0;
    for (const std::string_view name : Names) {
        state.MonthStr[month++] = name;
    }
}

void DimAllArrays(SharedState& state, EngineArrays& engine) {
    state.DimAllArrays();
    engine.DimAllArrays();
}

std::string MonthDirectoryName(const QDate& date, const QLocale& locale) {
    const QString name = locale.standaloneMonthName(date.month(), QLocale::LongFormat);
    return StoredName(name.toStdString());
}

} // namespace tarn
