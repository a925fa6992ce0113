// The bounds of what the programs read, and the names that they are given.

#include "QtString.h"
#include "Sanitized.h"
#include "tools/ToolTesting.h"

#include <QRegularExpression>

#include <array>
#include <string>
#include <utility>

namespace tarn {
namespace {

using namespace tarn::testing;

class InputFile : public ToolTest {
  protected:
    /// Estimate the rooms of a file.
    ToolRun Rooms(const QString& file) const {
        return Estimate({S("--rooms"), file, S("--carpet"), S("1"), S("--roll-width"), S("12ft")});
    }
};

constexpr const char* Header = "width,length,covering\n";
constexpr qsizetype Megabyte = 1024LL * 1024;

TEST_F(InputFile, OfSixteenMegabytesIsReadAndOneByteMoreRefused) {
    QByteArray rooms = Header;
    rooms += "60,96,C1\n";
    rooms += QByteArray(16 * Megabyte - rooms.size(), '\n');
    EXPECT_EQ(Rooms(Write(S("rooms.csv"), rooms)).Status, 0);
    ExpectRefused(Rooms(Write(S("rooms.csv"), rooms + '\n')),
                  "rooms.csv cannot be read: it has more than 16 MB.\n");
}

TEST_F(InputFile, ThatIsADeviceOrAPipeOrAFolderIsRefused) {
    for (const char* device : {"/dev/zero", "/dev/null"}) {
        ExpectRefused(Rooms(S(device)),
                      "cannot be read: it is a device. Save what comes from it in "
                      "a file and name that.\n");
    }
    ASSERT_EQ(Shell("mkfifo pipe").Status, 0);
    ExpectRefused(Rooms(S("pipe")), "The file pipe cannot be read: it is a pipe. Save what comes "
                                    "from it in a file and name that.\n");
    ExpectRefused(Rooms(S(".")), "The file . cannot be read: it is a folder.\n");
    Write(S("rooms.csv"), QByteArray(Header) + "60,96,C1\n");
    const char* fromStandardInput =
        "tarn-estimate --rooms /dev/stdin --carpet 1 --roll-width 12ft < rooms.csv";
    EXPECT_EQ(Shell(fromStandardInput).Status, 0) << "it is a file under another name";
    ExpectRefused(Shell("cat rooms.csv | tarn-estimate --rooms /dev/stdin --carpet 1 "
                        "--roll-width 12ft"),
                  "The file /dev/stdin cannot be read: it is a pipe.");
    const QString database = MakeDatabase();
    ExpectRefused(
        Data({S("import"), S("--database"), database, S("--project"), S("X"), S("/dev/zero")}),
        "The file /dev/zero cannot be read: it is a device.");
}

TEST_F(InputFile, TellsTwentyMistakesAndHowManyMoreThereAre) {
    QByteArray rooms = Header;
    for (int line = 0; line < 100000; ++line) {
        rooms += "x,96,C1\n";
    }
    const ToolRun run = Rooms(Write(S("rooms.csv"), rooms));
    EXPECT_EQ(run.Status, 1);
    EXPECT_EQ(run.Error.count('\n'), 1 + 20 + 1);
    EXPECT_TRUE(run.Error.contains("\n  line 21: width \"x\" is not"));
    EXPECT_TRUE(run.Error.endsWith("\n  and 99981 more mistakes\n")) << "too many rooms is one";
    const ToolRun one = Rooms(Write(S("rooms.csv"), Header + QByteArray("x,96,C1\n").repeated(21)));
    EXPECT_TRUE(one.Error.endsWith("\n  and 1 more mistake\n")) << one.Error.toStdString();
}

TEST_F(InputFile, TakesMemoryInProportion) {
    if (IsSanitized) {
        GTEST_SKIP() << "the sanitizers take addresses for themselves";
    }
    const auto expectWithin = [this](const char* what, const QByteArray& rooms,
                                     const char* status) {
        SCOPED_TRACE(what);
        Write(S("rooms.csv"), rooms);
        const ToolRun run = Shell("ulimit -v 400000; tarn-estimate --rooms rooms.csv --carpet 1 "
                                  "--roll-width 12ft > /dev/null; echo $?");
        EXPECT_EQ(run.Out, status) << run.Error.left(1000).toStdString();
    };
    const qsizetype most = 16 * Megabyte - 1000;
    expectWithin("commas alone", QByteArray(most, ','), "1\n");
    expectWithin("lines", Header + QByteArray("x\n").repeated(most / 2), "1\n");
    expectWithin("rooms", Header + QByteArray("1,1,C1\n").repeated(most / 7), "1\n");
    expectWithin("quotes", Header + QByteArray("1,1,\"") + QByteArray(most, '"'), "1\n");
    expectWithin("empty lines", Header + QByteArray("1,1,C1") + QByteArray(most, '\n'), "0\n");
}

/// A name that no project has, what is wrong with it, and in it.
class Name : public ToolTest {
  protected:
    Name() { database_ = MakeDatabase(S("SMITH"), QByteArray(Header) + "60,96,C1\n"); }
    /// Every command that takes the name of a project, with NAME in its place.
    static constexpr std::array Commands{
        "tarn-data report --database data/DATA/Tarn.mdb --project NAME",
        "tarn-data export --database data/DATA/Tarn.mdb --project NAME",
        "tarn-data import --database data/DATA/Tarn.mdb --project NAME rooms.csv",
        "tarn-data import --replace --database data/DATA/Tarn.mdb --project NAME rooms.csv",
        "tarn-estimate --database data/DATA/Tarn.mdb --project NAME --carpet 1 --roll-width 12ft"};

    void ExpectRefusedByAll(const char* name, const char* reason) const {
        const QByteArray before = Read(S("data/DATA/Tarn.mdb"));
        for (const char* command : Commands) {
            SCOPED_TRACE(std::string(command) + " " + name);
            const ToolRun run = Shell(S(command).replace(S("NAME"), S(name)).toUtf8().constData());
            EXPECT_EQ(run.Status, 1);
            EXPECT_TRUE(run.Out.isEmpty());
            EXPECT_TRUE(run.Error.contains(reason)) << run.Error.toStdString();
            EXPECT_EQ(run.Error.count('\n'), 1);
            EXPECT_FALSE(run.Error.contains("SELECT")) << "a query's text";
            EXPECT_FALSE(run.Error.contains('\x1B'));
        }
        EXPECT_EQ(Read(S("data/DATA/Tarn.mdb")), before);
    }

    QString database_;
};

TEST_F(Name, ThatIsNotUtf8IsRefused) {
    ExpectRefusedByAll("$'caf\\xe9'", "The name of the project \"caf\uFFFD\" is not UTF-8");
    ExpectRefusedByAll("$'\\xed\\xa0\\x80'", "is not UTF-8"); // half a surrogate pair
}

TEST_F(Name, ThatHoldsAControlCharacterIsRefused) {
    for (const char* name : {"$'a\\nb'", "$'a\\tb'", "$'a\\eb'", "$'a\\u0085b'", "$'a\\u2028b'"}) {
        ExpectRefusedByAll(name, "holds a line break or another control character.");
    }
}

TEST_F(Name, ThatHoldsNoCharacterIsRefused) {
    for (const char* name : {"$'a\\ufffe'", "$'a\\uffff'"}) {
        ExpectRefusedByAll(name, "holds U+FFFE or U+FFFF, which are no characters.");
    }
}

TEST_F(Name, ThatIsEmptyIsRefused) {
    ExpectRefusedByAll("'  '", "The project needs a name.");
}

TEST_F(Name, WithADoubleQuoteIsRefusedInPlainWords) {
    for (const char* name : {"'A\"B'", "'\"'", "'\"; DROP TABLE MainTab; --'"}) {
        const QByteArray before = Read(S("data/DATA/Tarn.mdb"));
        for (const char* command : Commands) {
            SCOPED_TRACE(std::string(command) + " " + name);
            const ToolRun run = Shell(S(command).replace(S("NAME"), S(name)).toUtf8().constData());
            EXPECT_EQ(run.Status, 1);
            EXPECT_TRUE(run.Error.contains("There is no project ") ||
                        run.Error.contains("holds one of the characters \\/:*?\"<>|."))
                << run.Error.toStdString();
        }
        EXPECT_EQ(Read(S("data/DATA/Tarn.mdb")), before);
    }
}

TEST_F(Name, OfADirectoryIsHeldToTheSame) {
    for (const auto& [name, reason] : {std::pair("$'caf\\xe9'", "is not UTF-8"),
                                       {"$'a\\nb'", "control character"},
                                       {"$'a\\ufffe'", "no characters"},
                                       {"'  '", "The directory needs a name."}}) {
        const std::string command = std::string("tarn-data import --database data/DATA/Tarn.mdb "
                                                "--project NEW --directory ") +
                                    name + " rooms.csv";
        const ToolRun run = Shell(command.c_str());
        EXPECT_EQ(run.Status, 1);
        EXPECT_TRUE(run.Error.contains(reason)) << run.Error.toStdString();
    }
    const ToolRun list = Data({S("list"), S("--database"), database_});
    EXPECT_FALSE(list.Out.contains("NEW"));
}

TEST_F(Name, OfADirectoryMayHave64Characters) {
    const auto import = [this](int length) {
        return Data({S("import"), S("--database"), database_, S("--project"), S("NEW"),
                     S("--directory"), QString(length, u'é'), Path(S("rooms.csv"))});
    };
    const ToolRun longer = import(65);
    EXPECT_EQ(longer.Status, 1);
    EXPECT_TRUE(longer.Error.contains("has more than 64 characters")) << longer.Error.toStdString();
    EXPECT_EQ(import(64).Status, 0);
}

TEST_F(Name, OfTheMonthIsTheSameInEveryLanguage) {
    for (const char* language : {"ru_RU.UTF-8", "fr_FR.UTF-8", "C.UTF-8"}) {
        const std::string command = std::string("LC_ALL=") + language +
                                    " tarn-data import --database data/DATA/Tarn.mdb --project '" +
                                    language + "' rooms.csv";
        EXPECT_EQ(Shell(command.c_str()).Status, 0);
    }
    // One month, and another when the test runs into the next one.
    const QByteArray list = Data({S("list"), S("--database"), database_}).Out;
    const QRegularExpression english(
        S("^(JANUARY|FEBRUARY|MARCH|APRIL|MAY|JUNE|JULY|AUGUST|SEPTEMBER|OCTOBER|NOVEMBER|"
          "DECEMBER)$"));
    for (const QByteArray& line : list.split('\n')) {
        if (!line.startsWith(' ') && !line.isEmpty()) {
            EXPECT_TRUE(english.match(QString::fromUtf8(line)).hasMatch()) << line.toStdString();
        }
    }
    EXPECT_EQ(list.count("(1 room)"), 4);
}

} // namespace
} // namespace tarn
