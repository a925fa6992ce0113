#pragma once

#include <QByteArray>
#include <QDir>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <string>

namespace tarn::testing {

using Args = QStringList;

/// What a program did.
struct ToolRun {
    int Status = -1;
    QByteArray Out;
    QByteArray Error;
};

/// Run a built program ("tarn-estimate" or "tarn-data") to its end. `homeDirectory` takes the place
/// of the user's home, so that no test sees or makes a configuration of the user, and `printServer`
/// the place of the system's printers.
ToolRun RunProgram(const QString& program, const QStringList& arguments,
                   const QString& homeDirectory,
                   const QString& printServer = QStringLiteral("/no/such/print/server"));

/// Run a line of the shell, which finds the built programs by their names, otherwise as RunProgram.
ToolRun RunShell(const QString& line, const QString& homeDirectory);

/// A test with a directory of its own, which is also its home.
class ToolTest : public ::testing::Test {
  protected:
    ToolRun Estimate(const QStringList& arguments) const {
        return RunProgram(QStringLiteral("tarn-estimate"), arguments, directory_.path());
    }
    ToolRun EstimateFor(const QString& printServer, const QStringList& arguments) const {
        return RunProgram(QStringLiteral("tarn-estimate"), arguments, directory_.path(),
                          printServer);
    }
    ToolRun Data(const QStringList& arguments) const {
        return RunProgram(QStringLiteral("tarn-data"), arguments, directory_.path());
    }

    ToolRun Shell(const QByteArray& line) const {
        return RunShell(QString::fromUtf8(line), directory_.path());
    }

    /// The path of a file in the directory; an absolute path stays.
    QString Path(const QString& name) const { return QDir(directory_.path()).filePath(name); }
    /// Write a file into the directory; returns its path.
    QString Write(const QString& name, const QByteArray& content) const;
    QByteArray Read(const QString& name) const;
    bool Exists(const QString& name) const;

    /// A data folder "data" with an empty database; returns the database's path.
    QString MakeDatabase() const;
    /// The same with one project.
    QString MakeDatabase(const QString& project, const QByteArray& csv,
                         const QStringList& options = {}) const;
    /// Run a statement on a database, apart from the programs.
    void Change(const QString& database, const std::string& statement) const;
    /// The one value that a query gives, apart from the programs.
    std::string Value(const QString& database, const std::string& query) const;

    /// See that a program put out nothing and gave the reason.
    static void ExpectRefused(const ToolRun& run, const QByteArray& reason);

  private:
    QTemporaryDir directory_;
};

} // namespace tarn::testing
