#include "tools/ToolTesting.h"

#include <QDir>
#include <QFile>

namespace tarn {
namespace {

using testing::ToolRun;
using testing::ToolTest;

QByteArray Document(const char* name) {
    QFile file(QStringLiteral(TARN_SOURCE_DIRECTORY "/") + QString::fromUtf8(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name;
    return file.readAll();
}

class Documents : public ToolTest {};

TEST_F(Documents, TheReadmesExampleIsWhatTheProgramPrints) {
    const QByteArray readme = Document("README.md");
    const QByteArray begin = "```console\n$ tarn-estimate ";
    const auto at = readme.indexOf(begin);
    ASSERT_GE(at, 0);
    const auto from = at + begin.size();
    const QByteArray block = readme.mid(from, readme.indexOf("```", from) - from);
    const auto lineEnd = block.indexOf('\n');
    QStringList arguments = QString::fromUtf8(block.left(lineEnd)).split(QLatin1Char(' '));
    arguments.replaceInStrings(QStringLiteral("samples/"),
                               QStringLiteral(TARN_SOURCE_DIRECTORY "/samples/"));
    const ToolRun run = Estimate(arguments);
    EXPECT_EQ(run.Status, 0) << run.Error.toStdString();
    EXPECT_EQ(run.Out.toStdString(), block.mid(lineEnd + 1).toStdString());
}

TEST_F(Documents, TheExampleWorkedByHandIsWhatTheProgramPrints) {
    const QString rooms = Write(QStringLiteral("rooms.csv"), "width,length,covering\n"
                                                             "15'0\",12'0\",C1\n"
                                                             "9'0\",10'0\",C1\n"
                                                             "5'0\",8'0\",C1\n");
    const ToolRun run =
        Estimate({QStringLiteral("--rooms"), rooms, QStringLiteral("--carpet"), QStringLiteral("1"),
                  QStringLiteral("--roll-width"), QStringLiteral("12ft")});
    EXPECT_EQ(run.Status, 0) << run.Error.toStdString();
    QByteArray indented;
    for (const QByteArray& line : run.Out.trimmed().split('\n')) {
        indented += "    " + line + "\n";
    }
    EXPECT_TRUE(Document("docs/behaviour.md").contains(indented)) << indented.toStdString();
}

TEST_F(Documents, TheSampleProjectsCanBeImportedAndEstimated) {
    const QDir samples(QStringLiteral(TARN_SOURCE_DIRECTORY "/samples"));
    const QString database = MakeDatabase();
    for (const QString& file :
         {QStringLiteral("maple-street-9.csv"), QStringLiteral("kanaalhuis-metric.csv")}) {
        const bool metric = file.contains(QStringLiteral("metric"));
        const QStringList unit = metric ? QStringList{QStringLiteral("--metric")} : QStringList{};
        const QStringList project{QStringLiteral("--database"), database,
                                  QStringLiteral("--project"), file};
        const ToolRun import = Data(QStringList{QStringLiteral("import")} + project + unit +
                                    QStringList{samples.filePath(file)});
        ASSERT_EQ(import.Status, 0) << import.Error.toStdString();
        const ToolRun run =
            Estimate(project + unit +
                     QStringList{QStringLiteral("--carpet"), QStringLiteral("1"),
                                 QStringLiteral("--roll-width"), QStringLiteral("366cm")});
        EXPECT_EQ(run.Status, 0) << run.Error.toStdString();
        EXPECT_TRUE(run.Out.contains("Total Fills:")) << run.Out.toStdString();
    }
}

} // namespace
} // namespace tarn
