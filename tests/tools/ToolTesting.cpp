#include "tools/ToolTesting.h"

#include "store/TestDatabase.h"

#include <QFile>
#include <QProcess>
#include <QProcessEnvironment>

namespace tarn::testing {

namespace {

ToolRun Run(const QString& program, const QStringList& arguments, const QString& homeDirectory,
            const QString& printServer) {
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("HOME"), homeDirectory);
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"),
                       homeDirectory + QStringLiteral("/config"));
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
    environment.insert(QStringLiteral("CUPS_SERVER"), printServer);
    environment.insert(QStringLiteral("PATH"), QStringLiteral(TARN_TOOLS_DIRECTORY ":") +
                                                   environment.value(QStringLiteral("PATH")));
    for (const char* display : {"DISPLAY", "WAYLAND_DISPLAY", "XDG_RUNTIME_DIR", "QT_QPA_PLATFORM",
                                "LPDEST", "PRINTER"}) {
        environment.remove(QString::fromLatin1(display));
    }
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(homeDirectory);
    process.start(program, arguments);
    ToolRun run;
    constexpr int PatienceMs = 120000;
    if (!process.waitForFinished(PatienceMs) || process.exitStatus() != QProcess::NormalExit) {
        ADD_FAILURE() << program.toStdString() << ": " << process.errorString().toStdString();
        return run;
    }
    run.Status = process.exitCode();
    run.Out = process.readAllStandardOutput();
    run.Error = process.readAllStandardError();
    return run;
}

} // namespace

ToolRun RunProgram(const QString& program, const QStringList& arguments,
                   const QString& homeDirectory, const QString& printServer) {
    return Run(QStringLiteral(TARN_TOOLS_DIRECTORY "/") + program, arguments, homeDirectory,
               printServer);
}

ToolRun RunShell(const QString& line, const QString& homeDirectory) {
    return Run(QStringLiteral("/bin/bash"), {QStringLiteral("-c"), line}, homeDirectory,
               QStringLiteral("/no/such/print/server"));
}

QString ToolTest::Write(const QString& name, const QByteArray& content) const {
    QFile file(Path(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly)) << name.toStdString();
    EXPECT_EQ(file.write(content), content.size());
    return file.fileName();
}

QByteArray ToolTest::Read(const QString& name) const {
    QFile file(Path(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
    return file.readAll();
}

bool ToolTest::Exists(const QString& name) const {
    return QFile::exists(Path(name));
}

QString ToolTest::MakeDatabase() const {
    const ToolRun run = Data({QStringLiteral("create"), QStringLiteral("data")});
    EXPECT_EQ(run.Status, 0) << run.Error.toStdString();
    return Path(QStringLiteral("data/DATA/Tarn.mdb"));
}

QString ToolTest::MakeDatabase(const QString& project, const QByteArray& csv,
                               const QStringList& options) const {
    QString database = MakeDatabase();
    const QStringList arguments{QStringLiteral("import"),
                                QStringLiteral("--database"),
                                database,
                                QStringLiteral("--project"),
                                project,
                                Write(QStringLiteral("rooms.csv"), csv)};
    const ToolRun run = Data(arguments + options);
    EXPECT_EQ(run.Status, 0) << run.Error.toStdString();
    return database;
}

void ToolTest::Change(const QString& database, const std::string& statement) const {
    RawDatabase(database.toStdString()).Run(statement);
}

std::string ToolTest::Value(const QString& database, const std::string& query) const {
    const Lines rows = RawDatabase(database.toStdString()).Rows(query);
    EXPECT_EQ(rows.size(), 1U) << query;
    return rows.empty() ? std::string() : rows[0];
}

void ToolTest::ExpectRefused(const ToolRun& run, const QByteArray& reason) {
    EXPECT_EQ(run.Status, 1);
    EXPECT_TRUE(run.Out.isEmpty()) << run.Out.toStdString();
    EXPECT_TRUE(run.Error.contains(reason)) << run.Error.toStdString();
}

} // namespace tarn::testing
