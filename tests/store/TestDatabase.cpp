#include "store/TestDatabase.h"

#include "store/Schema.h"

#include <QDir>
#include <QFile>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QVariant>

#include <atomic>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <iterator>

namespace tarn::testing {

namespace {

[[noreturn]] void Fail(const std::string& what) {
    std::cerr << "The test cannot go on: " << what << '\n';
    std::abort();
}

QSqlQuery Execute(const std::string& connection, const std::string& statement) {
    QSqlQuery query(QSqlDatabase::database(QString::fromStdString(connection)));
    if (!query.exec(QString::fromStdString(statement))) {
        Fail(statement + ": " + query.lastError().text().toStdString());
    }
    return query;
}

} // namespace

RawDatabase::RawDatabase(const std::string& path) {
    static std::atomic<int> count = 0;
    name_ = "raw-" + std::to_string(count++);
    auto database =
        QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QString::fromStdString(name_));
    database.setDatabaseName(QString::fromStdString(path));
    if (!QFile::exists(QString::fromStdString(path)) || !database.open()) {
        Fail("no database at " + path);
    }
    Run("PRAGMA synchronous = OFF"); // no test waits for the disk
}

RawDatabase::~RawDatabase() {
    QSqlDatabase::removeDatabase(QString::fromStdString(name_));
}

void RawDatabase::Run(const std::string& statement) {
    Execute(name_, statement);
}

Lines RawDatabase::Rows(const std::string& query) {
    QSqlQuery result = Execute(name_, query);
    Lines rows;
    while (result.next()) {
        std::string row;
        for (int column = 0; column < result.record().count(); ++column) {
            const QVariant value = result.value(column);
            row += column == 0 ? "" : "|";
            row += value.isNull() ? "NULL" : value.toString().toStdString();
        }
        rows.push_back(row);
    }
    return rows;
}

TestFolder::TestFolder() {
    if (!folder_.isValid()) {
        Fail("no temporary folder");
    }
}

std::string TestFolder::Path(const std::string& name) const {
    return folder_.filePath(QString::fromStdString(name)).toStdString();
}

Lines TestFolder::Content() const {
    Lines names;
    const auto all = QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden | QDir::System;
    for (const QString& name : QDir(folder_.path()).entryList(all, QDir::Name)) {
        names.push_back(name.toStdString());
    }
    return names;
}

void WriteFile(const std::string& path, const std::string& bytes) {
    std::ofstream stream(path, std::ios::binary | std::ios::trunc);
    stream << bytes;
    stream.close();
    if (!stream) {
        Fail("cannot write " + path);
    }
}

std::string ReadFile(const std::string& path) {
    std::ifstream stream(path, std::ios::binary);
    if (!stream) {
        Fail("cannot read " + path);
    }
    return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

TestDatabase::TestDatabase() {
    CreateDatabaseFile(Path());
}

ProjectStore TestDatabase::Open(int busyWait) const {
    return ProjectStore(Path(), DatabaseAccess::ReadWrite, busyWait);
}

void TestDatabase::AddDirectory(const std::string& name) const {
    Run("INSERT INTO DirTab VALUES (" + Literal(name) + ")");
}

void TestDatabase::AddProject(const std::string& directory, const std::string& project,
                              int tabIndex, int rooms) const {
    RawDatabase raw(Path());
    const std::string number = std::to_string(tabIndex);
    raw.Run("INSERT INTO ProjTab VALUES (" + Literal(directory) + ", " + Literal(project) + ", 0)");
    raw.Run("INSERT INTO MainTab VALUES (" + number + ", " + Literal(project) + ", " +
            std::to_string(rooms) + ", NULL, 0.01, 0, 1, -500, -500, 0)");
    for (int room = 0; room < rooms; ++room) {
        raw.Run("INSERT INTO InputData VALUES (" + std::to_string(room) + ", " +
                std::to_string(100 + room) + ", " + std::to_string(200 + room) +
                ", '', '', 0, 0, " + number + ")");
    }
}

void TestDatabase::AddHouses() const {
    AddDirectory("HOUSES");
    AddProject("HOUSES", "SMITH", 1, 3);
    AddProject("HOUSES", "JONES", 2, 1);
    Run("INSERT INTO ProjTab VALUES ('MARCH', 'NEW', 0)");
}

std::string Literal(const std::string& text) {
    std::string literal = "'";
    for (const char c : text) {
        literal += c == '\'' ? "''" : std::string(1, c);
    }
    return literal + "'";
}

} // namespace tarn::testing
