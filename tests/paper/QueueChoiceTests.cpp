#include "paper/QueueChoice.h"

#include <QTemporaryDir>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <optional>

namespace tarn {
namespace {

using ::testing::ElementsAre;
using ::testing::Pair;

/// Sets a variable of the environment until the end of scope.
class Variable {
  public:
    Variable(const char* name, const QByteArray& value)
        : name_(name)
        , before_(qEnvironmentVariableIsSet(name) ? std::optional(qgetenv(name)) : std::nullopt) {
        qputenv(name, value);
    }
    ~Variable() { before_ ? qputenv(name_, *before_) : qunsetenv(name_); }
    Variable(const Variable&) = delete;
    Variable& operator=(const Variable&) = delete;

  private:
    const char* name_;
    std::optional<QByteArray> before_;
};

/// The two files of choices.
class QueueChoices : public ::testing::Test {
  protected:
    void Users(const char* text) { Write(home_, ".cups/lpoptions", text); }
    void Everybodys(const char* text) { Write(root_, "lpoptions", text); }

  private:
    static void Write(const QTemporaryDir& folder, const char* name, const char* text) {
        ASSERT_TRUE(QDir(folder.path()).mkpath(QStringLiteral(".cups")));
        std::ofstream(folder.filePath(QString::fromUtf8(name)).toStdString()) << text;
    }

    QTemporaryDir home_;
    QTemporaryDir root_;
    Variable homeVariable_{"HOME", home_.path().toUtf8()};
    Variable rootVariable_{"CUPS_SERVERROOT", root_.path().toUtf8()};
};

TEST_F(QueueChoices, AreNoneWithoutFilesAndVariables) {
    EXPECT_EQ(ChosenQueue().Name, "");
    EXPECT_TRUE(ChosenOptions({"Paper", ""}).empty());
}

TEST_F(QueueChoices, TheUsersDefaultComesBeforeEverybodys) {
    Everybodys("Dest First sides=one-sided\nDefault Second/draft\n");
    EXPECT_EQ(ChosenQueue().Name, "Second");
    EXPECT_EQ(ChosenQueue().Instance, "draft");
    Users("Dest Fourth\nDefault Third media=A4\n");
    EXPECT_EQ(ChosenQueue().Name, "Third");
    EXPECT_EQ(ChosenQueue().Instance, "");
}

TEST_F(QueueChoices, AVariableComesBeforeTheFiles) {
    Users("Default Third\n");
    const Variable printer("PRINTER", "Laser/photo");
    EXPECT_EQ(ChosenQueue().Name, "Laser");
    EXPECT_EQ(ChosenQueue().Instance, "photo");
    const Variable destination("LPDEST", "Ink");
    EXPECT_EQ(ChosenQueue().Name, "Ink");
    const Variable none("LPDEST", "");
    const Variable device("PRINTER", "lp");
    EXPECT_EQ(ChosenQueue().Name, "Third");
}

TEST_F(QueueChoices, OptionsAreThoseOfTheQueueAndItsInstanceTheUsersOverEverybodys) {
    Everybodys("Dest Paper media=A4 sides=two-sided-long-edge\nDest Other copies=2\n");
    Users("Default Paper sides=one-sided title='two words'\nDest Paper/draft print-quality=3\n");
    EXPECT_THAT(
        ChosenOptions({"Paper", ""}),
        ElementsAre(Pair("media", "A4"), Pair("sides", "one-sided"), Pair("title", "two words")));
    EXPECT_THAT(ChosenOptions({"paper", "draft"}), ElementsAre(Pair("print-quality", "3")));
    EXPECT_TRUE(ChosenOptions({"Paper2", ""}).empty());
}

TEST_F(QueueChoices, LinesThatAreNoChoiceAreSkipped) {
    Users("\n# Default Paper\nDefault\nSomething Paper copies=3\nDEFAULT\tPaper copies=2\n");
    EXPECT_EQ(ChosenQueue().Name, "Paper");
    EXPECT_THAT(ChosenOptions({"Paper", ""}), ElementsAre(Pair("copies", "2")));
}

} // namespace
} // namespace tarn
