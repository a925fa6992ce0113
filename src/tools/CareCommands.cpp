#include "tools/CareCommands.h"

#include "base/Text.h"
#include "store/Backups.h"
#include "store/Check.h"
#include "store/Repair.h"
#include "store/Schema.h"
#include "tools/Refusal.h"
#include "tools/StandardStreams.h"

#include <QFileInfo>

#include <iostream>
#include <sstream>
#include <vector>

namespace tarn {

namespace {

/// Lines under a heading, each on its own.
std::string Listed(const std::string& heading, const std::vector<std::string>& lines) {
    std::string text = heading;
    for (const std::string& line : lines) {
        text += "\n  " + ShownText(line);
    }
    return text;
}

std::string Counted(std::size_t count, const char* what) {
    return std::to_string(count) + ' ' + what + (count == 1 ? "" : "s");
}

/// What stands in a backup, for its line in the list.
std::string ContentText(const std::string& backup) {
    const std::vector<std::string> findings = CheckDatabaseFile(backup);
    const auto projects = CountProjects(backup);
    return (projects ? Counted(*projects, "project") : std::string("cannot be read")) + ", " +
           (findings.empty() ? "sound" : "see tarn-data check");
}

} // namespace

void CheckData(const std::string& database) {
    const std::vector<std::string> findings = CheckDatabaseFile(database);
    if (!findings.empty()) {
        throw Refusal(Listed("The database " + database + " has faults:", findings));
    }
    std::cout << "The database " << database << " is sound and has every table.\n";
}

void RepairData(const std::string& database, const std::string& target) {
    const std::vector<std::string> changes = RepairDatabaseFile(database, target);
    std::cout << "Made " << target << ".\n"
              << Listed(changes.empty() ? "It holds all that " + database + " does."
                                        : "It differs from " + database + ":",
                        changes)
              << '\n';
}

void BackUpData(const std::string& database, const std::string& target) {
    BackUpDatabaseFile(database, target);
    std::cout << "Made " << target << ".\n";
}

void ListBackups(const std::string& database) {
    const std::vector<Backup> backups = BackupsOf(database);
    std::ostringstream out;
    out << (backups.empty() ? "There is no backup in " : "Backups in ") << BackupFolder(database)
        << (backups.empty() ? "" : ", the newest first:") << '\n';
    for (const Backup& backup : backups) {
        const QFileInfo file(QString::fromStdString(backup.Path));
        out << "  " << file.fileName().toStdString() << "  "
            << Counted(static_cast<std::size_t>((backup.Size + 1023) / 1024), "kilobyte") << ", "
            << ContentText(backup.Path) << '\n';
    }
    WriteStandardOutput(out.str());
}

void RestoreData(const std::string& backup, const std::string& database) {
    const std::string path = FindBackup(backup, database);
    if (!QFileInfo::exists(QString::fromStdString(path))) {
        throw Refusal("There is no backup " + backup +
                      ". \"tarn-data backups\" tells the backups that there are.");
    }
    const Restored restored = RestoreBackup(path, database);
    std::cout << "Put " << path << " in the place of " << database << ".\n";
    if (!restored.Former.empty()) {
        std::cout << "What was there is kept as " << restored.Former << ".\n";
    }
    if (!restored.Journal.empty()) {
        std::cout << "The journal beside it is kept as " << restored.Journal << ".\n";
    }
}

} // namespace tarn
