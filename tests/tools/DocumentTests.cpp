// What the documents say of the programs: their commands, what those print, and the drawings.

#include "tools/ToolTesting.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QSet>

#include <vector>

namespace tarn {
namespace {

using namespace tarn::testing;

QByteArray Document(const char* name) {
    QFile file(QStringLiteral(TARN_SOURCE_DIRECTORY "/") + QString::fromUtf8(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name;
    return file.readAll();
}

/// A command of a document, what the document says that it prints, and the drawing below it.
struct DocumentCommand {
    QByteArray Line;
    QByteArray Out;
    QByteArray Drawing; ///< path in docs; empty without one
};

std::vector<DocumentCommand> CommandsOf(const char* document) {
    static const QRegularExpression block(QStringLiteral(
        "```console\n\\$ ([^\n]*)\n([^`]*)```\n(?:\n!\\[[^\\]]*\\]\\(([^)]*\\.svg)\\))?"));
    std::vector<DocumentCommand> commands;
    auto matches = block.globalMatch(QString::fromUtf8(Document(document)));
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        commands.push_back(
            {match.captured(1).toUtf8(), match.captured(2).toUtf8(), match.captured(3).toUtf8()});
    }
    return commands;
}

class Documents : public ToolTest {
  protected:
    /// Run a line where the documents say: in a checkout. Its messages stand with its output.
    ToolRun RunInCheckout(const QByteArray& line) const {
        ToolRun run = Shell("cd '" TARN_SOURCE_DIRECTORY "' && (" + line + ") 2>&1");
        run.Out.replace("\r\n", "\n");
        return run;
    }
    QJsonObject OrderOf(const QByteArray& line) const {
        const ToolRun run = RunInCheckout(line + " --json - 2>/dev/null");
        EXPECT_EQ(run.Status, 0) << line.toStdString();
        return QJsonDocument::fromJson(run.Out).object();
    }
};

class CommandsOfDocuments : public Documents, public ::testing::WithParamInterface<const char*> {};

TEST_P(CommandsOfDocuments, PrintWhatStandsThere) {
    const std::vector<DocumentCommand> commands = CommandsOf(GetParam());
    EXPECT_GE(commands.size(), 2U);
    EXPECT_EQ(static_cast<qsizetype>(commands.size()), Document(GetParam()).count("```console"));
    for (const DocumentCommand& command : commands) {
        const ToolRun run = RunInCheckout(command.Line);
        EXPECT_EQ(run.Status, 0) << command.Line.toStdString();
        EXPECT_EQ(run.Out.toStdString(), command.Out.toStdString()) << command.Line.toStdString();
    }
}

INSTANTIATE_TEST_SUITE_P(All, CommandsOfDocuments, ::testing::Values("README.md", "docs/order.md"));

TEST_F(Documents, TheDrawingsOfOrdersShowTheirPieces) {
    int drawings = 0;
    for (const DocumentCommand& command : CommandsOf("docs/order.md")) {
        if (command.Drawing.isEmpty() || !command.Line.startsWith("tarn-order ")) {
            continue;
        }
        ++drawings;
        const QByteArray drawing = Document(("docs/" + command.Drawing).constData());
        const QJsonObject carpet = OrderOf(command.Line).value(u"carpets")[0].toObject();
        const QJsonArray pieces = carpet.value(u"pieces").toArray();
        EXPECT_EQ(drawing.count("<rect class=\"cut\""), pieces.size())
            << command.Drawing.toStdString();
        for (const QJsonValue piece : pieces) {
            const auto attribute = [&](const char* name, const char* member) {
                return QByteArray(" ") + name + "=\"" +
                       QByteArray::number(piece[QLatin1String(member)].toInt(-1)) + '"';
            };
            const QByteArray cut = "<rect class=\"cut\"" + attribute("x", "y") +
                                   attribute("y", "x") + attribute("width", "length") +
                                   attribute("height", "width") + ' ';
            EXPECT_TRUE(drawing.contains(cut))
                << command.Drawing.toStdString() << ": " << cut.toStdString();
        }
    }
    EXPECT_GE(drawings, 4);
}

/// The names of all members of a JSON value.
void CollectMembers(const QJsonValue& value, QSet<QString>& names) {
    for (const QJsonValue element : value.toArray()) {
        CollectMembers(element, names);
    }
    const QJsonObject object = value.toObject();
    for (auto member = object.begin(); member != object.end(); ++member) {
        names.insert(member.key());
        CollectMembers(member.value(), names);
    }
}

/// Each of the names stands as code in the reference between two of its headings.
void ExpectDescribed(const QSet<QString>& names, const char* from, const char* to) {
    const QByteArray document = Document("docs/reference.md");
    const auto begin = document.indexOf(from);
    const auto end = document.indexOf(to);
    ASSERT_TRUE(begin >= 0 && end > begin) << from << to;
    const QByteArray part = document.mid(begin, end - begin);
    for (const QString& name : names) {
        EXPECT_TRUE(part.contains('`' + name.toUtf8() + '`')) << name.toStdString();
    }
}

TEST_F(Documents, TheFilesOfOrdersAreDescribed) {
    const QByteArray line =
        "tarn-order --rooms samples/orders/two-rooms.csv --roll 12ft --steps 10";
    QSet<QString> names;
    CollectMembers(OrderOf(line), names);
    const ToolRun run = RunInCheckout(line + " --csv - 2>/dev/null");
    const QList<QByteArray> csv = run.Out.split('\n');
    const auto pieceHeads = csv.indexOf(QByteArray()) + 1;
    ASSERT_LT(pieceHeads, csv.size());
    for (const QByteArray& heads : {csv.at(0), csv.at(pieceHeads)}) {
        for (const QByteArray& head : heads.split(',')) {
            names.insert(QString::fromUtf8(head));
        }
    }
    EXPECT_GT(names.size(), 50);
    ExpectDescribed(names, "### Orders: JSON\n", "### Configuration");
}

TEST_F(Documents, TheFilesOfEstimatesAreDescribed) {
    QSet<QString> names;
    const ToolRun run = RunInCheckout("tarn-estimate --rooms samples/maple-street-9.csv --carpet 1 "
                                      "--roll-width 12ft --improve-steps 10 --json -");
    EXPECT_EQ(run.Status, 0);
    CollectMembers(QJsonDocument::fromJson(run.Out).object(), names);
    EXPECT_GT(names.size(), 30);
    ExpectDescribed(names, "### Estimates: JSON\n", "### Orders: JSON\n");
}

TEST_F(Documents, TheColumnsOfRoomsAreDescribed) {
    const ToolRun run = RunInCheckout(
        "folder=$(mktemp -d) && XDG_CONFIG_HOME=$folder tarn-data create $folder/data >$folder/log "
        "&& tarn-data import --database $folder/data/DATA/Tarn.mdb --project P "
        "samples/maple-street-9.csv >$folder/log && tarn-data export --database "
        "$folder/data/DATA/Tarn.mdb --project P; rm -r $folder");
    QSet<QString> names;
    for (const QByteArray& head : run.Out.split('\n').first().trimmed().split(',')) {
        names.insert(QString::fromUtf8(head));
    }
    EXPECT_EQ(names.size(), 6) << run.Out.toStdString();
    ExpectDescribed(names, "### Rooms: CSV\n", "### Estimates: text\n");
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
