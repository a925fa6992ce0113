#include "tools/CareCommands.h"

#include "base/Text.h"
#include "base/Words.h"
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

/// What stands in a backup, for its line in the list.
std::string ContentText(const std::string& backup) {
    const std::vector<std::string> findings = CheckDatabaseFile(backup);
    const auto projects = CountProjects(backup);
    const std::string content =
        projects ? CountedWords("%n project", "%n projects", static_cast<long long>(*projects))
                 : std::string(Words("cannot be read"));
    return findings.empty() ? Words("%1, sound", content)
                            : Words("%1, see tarn-data check", content);
}

} // namespace

void CheckData(const std::string& database) {
    const std::vector<std::string> findings = CheckDatabaseFile(database);
    if (!findings.empty()) {
        throw Refusal(Listed(Words("The database %1 has faults:", database), findings));
    }
    std::cout << Words("The database %1 is sound and has every table.", database) << '\n';
}

void RepairData(const std::string& database, const std::string& target) {
    const std::vector<std::string> changes = RepairDatabaseFile(database, target);
    std::cout << Words("Made %1.", target) << '\n'
              << Listed(changes.empty() ? Words("It holds all that %1 does.", database)
                                        : Words("It differs from %1:", database),
                        changes)
              << '\n';
}

void BackUpData(const std::string& database, const std::string& target) {
    BackUpDatabaseFile(database, target);
    std::cout << Words("Made %1.", target) << '\n';
}

void ListBackups(const std::string& database) {
    const std::vector<Backup> backups = BackupsOf(database);
    std::ostringstream out;
    out << Words(backups.empty() ? Words("There is no backup in %1")
                                 : Words("Backups in %1, the newest first:"),
                 BackupFolder(database))
        << '\n';
    for (const Backup& backup : backups) {
        const QFileInfo file(QString::fromStdString(backup.Path));
        out << "  " << file.fileName().toStdString() << "  "
            << CountedWords("%n kilobyte", "%n kilobytes", (backup.Size + 1023) / 1024) << ", "
            << ContentText(backup.Path) << '\n';
    }
    WriteStandardOutput(out.str());
}

void RestoreData(const std::string& backup, const std::string& database) {
    const std::string path = FindBackup(backup, database);
    if (!QFileInfo::exists(QString::fromStdString(path))) {
        throw Refusal(Words("There is no backup %1. \"tarn-data backups\" tells the backups that "
                            "there are.",
                            backup));
    }
    const Restored restored = RestoreBackup(path, database);
    std::cout << Words("Put %1 in the place of %2.", path, database) << '\n';
    if (!restored.Former.empty()) {
        std::cout << Words("What was there is kept as %1.", restored.Former) << '\n';
    }
    if (!restored.Journal.empty()) {
        std::cout << Words("The journal beside it is kept as %1.", restored.Journal) << '\n';
    }
}

} // namespace tarn
