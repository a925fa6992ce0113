// The rooms in files: what the menus of their report and of their list save.

#pragma once

#include "base/Words.h"
#include "project/Report.h"
#include "screens/Session.h"

#include <array>
#include <string>

namespace tarn {

/// A kind of file that the report is saved as.
struct ReportFile {
    const char* Control; ///< see ControlNames.h
    Phrase Caption;      ///< with its mnemonic
    const char* Suffix;
    /// May raise.
    void (*Write)(const Session& session, const EnteredDataReport& report, const std::string& path);
};
/// In the order in which they are offered.
const std::array<ReportFile, 4>& ReportFiles();

/// Ask for a file and save the report of the open project there, which is shown as `report`;
/// nothing when that was cancelled. Raises OutputFileError, which names the file.
void SaveReportAs(const Session& session, const EnteredDataReport& report, const ReportFile& file);

/// A kind of file that the list of the rooms is saved as.
struct RoomListFile {
    const char* Control;
    Phrase Caption;
    const char* Suffix;
    /// The whole content. May raise.
    std::string (*ContentOf)(const Session& session);
};
const std::array<RoomListFile, 2>& RoomListFiles();

/// The same with the list of the open project's rooms.
void SaveRoomListAs(const Session& session, const RoomListFile& file);

} // namespace tarn
