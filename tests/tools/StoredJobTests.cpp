// The jobs stored below tests/stored are answered as they were when they were stored, byte for
// byte.

#include "Sanitized.h"
#include "store/TestDatabase.h"
#include "tools/ToolTesting.h"

#include <QDirIterator>
#include <QFile>
#include <QProcess>

#include <algorithm>
#include <map>

namespace tarn {
namespace {

using namespace tarn::testing;

using Files = std::map<QString, QByteArray>; ///< content by name below a folder

QByteArray ContentOf(const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll();
}

/// The files below a folder, but for a job's database in "data".
Files FilesIn(const QString& folder) {
    Files files;
    QDirIterator paths(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (paths.hasNext()) {
        const QString path = paths.next();
        const QString name = QDir(folder).relativeFilePath(path);
        if (!name.startsWith(QStringLiteral("data/"))) {
            files[name] = ContentOf(path);
        }
    }
    return files;
}

/// What a line of a job's commands prints, run in the folder `here`.
QByteArray Answer(const QString& line, const QString& here) {
    const QString change = QStringLiteral("change ");
    if (line.startsWith(change)) {
        const auto fileEnd = line.indexOf(u' ', change.size());
        const QString file = line.mid(change.size(), fileEnd - change.size());
        RawDatabase(QDir(here).filePath(file).toStdString())
            .Run(line.mid(fileEnd + 1).toStdString());
        return {};
    }
    QStringList words = QProcess::splitCommand(line);
    const QString program = words.takeFirst();
    const ToolRun run = RunProgram(program, words, here);
    return run.Out + (run.Error.isEmpty() ? "" : "[standard error]\n" + run.Error) + "[status " +
           QByteArray::number(run.Status) + "]\n";
}

/// Run a job's commands in the folder `here`; what they printed, and the files that they made or
/// changed.
Files RunJob(Files job, const QString& here) {
    const QStringList lines =
        QString::fromUtf8(job[QStringLiteral("commands")]).split(u'\n', Qt::SkipEmptyParts);
    job.erase(QStringLiteral("commands"));
    for (const auto& [name, content] : job) {
        QFile file(QDir(here).filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
    }
    QByteArray printed;
    for (const QString& line : lines) {
        printed += "$ " + line.toUtf8() + "\n" + Answer(line, here);
    }
    Files made = FilesIn(here);
    for (const auto& [name, content] : job) {
        if (const auto file = made.find(name); file != made.end() && file->second == content) {
            made.erase(file);
        }
    }
    made[QStringLiteral("printed.txt")] = printed.replace(here.toUtf8(), "HERE");
    return made;
}

/// The first line in which two texts differ, both ways.
std::string FirstDifference(const QByteArray& expected, const QByteArray& actual) {
    const auto lines = expected.split('\n');
    const auto others = actual.split('\n');
    const auto both = std::min(lines.size(), others.size());
    const auto lineAt = [](const QList<QByteArray>& text, qsizetype i) {
        return i < text.size() ? "\"" + text[i].toStdString() + "\"" : "nothing";
    };
    qsizetype line = 0;
    while (line < both && lines[line] == others[line]) {
        ++line;
    }
    return "line " + std::to_string(line + 1) + ": expected " + lineAt(lines, line) + ", got " +
           lineAt(others, line);
}

void ExpectSame(const Files& expected, const Files& actual) {
    for (const auto& [name, content] : expected) {
        const auto found = actual.find(name);
        if (found == actual.end()) {
            ADD_FAILURE() << name.toStdString() << " is not made";
            continue;
        }
        EXPECT_TRUE(found->second == content)
            << name.toStdString() << ", " << FirstDifference(content, found->second);
    }
    for (const auto& [name, content] : actual) {
        EXPECT_TRUE(expected.contains(name)) << name.toStdString() << " is made, unexpected";
    }
}

/// The files that a job has and, by their names in "expected", those that it must make.
std::pair<Files, Files> ReadJob(const QString& folder) {
    const QString prefix = QStringLiteral("expected/");
    Files given;
    Files expected;
    for (const auto& [name, content] : FilesIn(folder)) {
        if (name.startsWith(prefix)) {
            expected[name.mid(prefix.size())] = content;
        } else {
            given[name] = content;
        }
    }
    return {given, expected};
}

/// Every so many of the jobs is a test's part: they run side by side, and a new job needs no new
/// test.
constexpr int Parts = 4;

class StoredJobs : public ::testing::TestWithParam<int> {};

TEST_P(StoredJobs, AreAnsweredAsTheyWereWhenTheyWereStored) {
    const QDir jobs(QStringLiteral(TARN_SOURCE_DIRECTORY "/tests/stored/jobs"));
    const QStringList names = jobs.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
    ASSERT_GE(names.size(), Parts);
    for (qsizetype job = GetParam(); job < names.size(); job += Parts) {
        SCOPED_TRACE(names[job].toStdString());
        const auto [given, expected] = ReadJob(jobs.filePath(names[job]));
        ASSERT_TRUE(given.contains(QStringLiteral("commands")));
        ASSERT_TRUE(expected.contains(QStringLiteral("printed.txt")));
        const QTemporaryDir here;
        ExpectSame(expected, RunJob(given, here.path()));
    }
}

INSTANTIATE_TEST_SUITE_P(Part, StoredJobs, ::testing::Range(0, UnlessSanitized(Parts, 1)));

} // namespace
} // namespace tarn
