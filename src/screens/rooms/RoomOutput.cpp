#include "screens/rooms/RoomOutput.h"

#include "files/OutputFile.h"
#include "files/ProjectTables.h"
#include "files/ReportSvg.h"
#include "files/RoomCsv.h"
#include "files/Spreadsheet.h"
#include "paper/PdfFile.h"
#include "screens/ControlNames.h"
#include "screens/SaveAs.h"
#include "screens/WaitCursor.h"

namespace tarn {

namespace {

void WritePdf(const Session& session, const EnteredDataReport& report, const std::string& path) {
    WriteReportPdf(report, path, PaperOf(session.Page));
}

void WriteSvg(const Session&, const EnteredDataReport& report, const std::string& path) {
    WriteOutputFile(path, ReportSvg(report));
}

std::vector<ValueTable> TablesOf(const Session& session) {
    return {ReportTable(session.Project.Now, session.Project.Shown)};
}

void WriteXlsx(const Session& session, const EnteredDataReport&, const std::string& path) {
    WriteOutputFile(path, XlsxOf(TablesOf(session)));
}

void WriteCsv(const Session& session, const EnteredDataReport&, const std::string& path) {
    WriteOutputFile(path, CsvOf(TablesOf(session)));
}

} // namespace

const std::array<ReportFile, 4>& ReportFiles() {
    static const std::array<ReportFile, 4> files{
        {{Controls::reportAsXlsx, SaveAsXlsxCaption, "xlsx", WriteXlsx},
         // The letter C copies in that menu.
         {Controls::reportAsCsv, Words("Save as CS&V"), "csv", WriteCsv},
         {Controls::reportAsPdf, SaveAsPdfCaption, "pdf", WritePdf},
         {Controls::reportAsSvg, SaveAsSvgCaption, "svg", WriteSvg}}};
    return files;
}

void SaveReportAs(const Session& session, const EnteredDataReport& report, const ReportFile& file) {
    SaveAs(session, session.Project.Now.Name, file.Suffix,
           [&](const std::string& path) { file.Write(session, report, path); });
}

const std::array<RoomListFile, 2>& RoomListFiles() {
    static const std::array<RoomListFile, 2> files{
        {{Controls::roomListAsXlsx, SaveAsXlsxCaption, "xlsx",
          [](const Session& session) {
              return XlsxOf(RoomTables(session.Project.Now, session.Project.Shown));
          }},
         {Controls::roomListAsCsv, SaveAsCsvCaption, "csv",
          [](const Session& session) { return WriteRoomCsv(session.Project.Now.Rooms); }}}};
    return files;
}

void SaveRoomListAs(const Session& session, const RoomListFile& file) {
    // Not the name under which the report is saved.
    SaveAs(session, session.Project.Now.Name + " ROOMS", file.Suffix, [&](const std::string& path) {
        const WaitCursor waiting;
        WriteOutputFile(path, file.ContentOf(session));
    });
}

} // namespace tarn
