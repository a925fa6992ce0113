// What is made of a program's options, for programs that are made up here.

#include "tools/reference/Completion.h"
#include "tools/reference/ManPage.h"
#include "tools/reference/OptionTable.h"
#include "tools/reference/ReferencePage.h"

#include <CLI/CLI.hpp>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <list>
#include <stdexcept>

namespace tarn {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

class Reference : public ::testing::Test {
  protected:
    Reference() {
        app_.name("lay");
        app_.description("Lay a floor: quickly.\nIn any room.\nOr hall.");
        app_.footer("First note,\nin two lines.\n\nSecond note.\n\nExit status: 0 done,\n1 not.\n\n"
                    "Example:\n  lay --wood oak 'hall'\n  lay");
    }
    CLI::Option* Add(const std::string& name, const char* value, const char* text = "Text") {
        return app_.add_option(name, texts_.emplace_back(), text)->type_name(value);
    }
    OptionRow Row(const std::string& name) {
        for (const OptionRow& row : TableOf(app_).Rows) {
            if (row.Name == name) {
                return row;
            }
        }
        throw std::runtime_error("there is no " + name);
    }

    CLI::App app_;
    std::list<std::vector<std::string>> texts_;
    bool flag_ = false;
};

TEST_F(Reference, HasWhatTheProgramSaysOfItself) {
    const ProgramTable table = TableOf(app_);
    EXPECT_EQ(table.Name, "lay");
    EXPECT_EQ(table.Summary, "Lay a floor: quickly.");
    EXPECT_THAT(table.Description, ElementsAre("In any room.", "Or hall."));
    EXPECT_THAT(table.Notes, ElementsAre("First note, in two lines.", "Second note."));
    EXPECT_EQ(table.ExitStatus, "0 done, 1 not.");
    EXPECT_THAT(table.Examples, ElementsAre("lay --wood oak 'hall'", "lay"));
}

TEST_F(Reference, HasAnOptionWithAllThatHoldsForIt) {
    auto* wood = Add("-w,--wood", "oak|elm")
                     ->check(CLI::IsMember({"oak", "elm"}))
                     ->required()
                     ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll);
    auto* size = Add("--size", "N")->check(CLI::Range(1, 8));
    auto* dry = app_.add_flag("--dry", flag_, "Only look");
    Add("--out", "FILE|-")->default_str("-")->excludes(dry)->needs(size)->needs(wood);
    const OptionRow row = Row("--wood");
    EXPECT_EQ(row.Short, "-w");
    EXPECT_EQ(row.Value, "oak|elm") << "without what its check says of itself";
    EXPECT_TRUE(row.IsRequired);
    EXPECT_TRUE(row.IsRepeated);
    EXPECT_EQ(WrittenForm(row), "-w, --wood oak|elm");
    EXPECT_EQ(Row("--size").Value, "N");
    EXPECT_FALSE(Row("--size").IsRepeated);
    EXPECT_EQ(Row("--dry").Value, "");
    EXPECT_EQ(WrittenForm(Row("--dry")), "--dry");
    EXPECT_THAT(ConditionsOf(Row("--out")),
                ElementsAre("default -", "with --size", "with --wood", "not with --dry"));
    EXPECT_THAT(ConditionsOf(Row("--dry")), ElementsAre("not with --out"));
    EXPECT_THAT(ConditionsOf(Row("--size")), IsEmpty());
}

TEST_F(Reference, KnowsWhatMayStandForAValue) {
    Add("--wood", "oak|elm");
    Add("--to", "FILE|-");
    Add("--in", "DIR");
    Add("--size", "[NAME:]12ft");
    Add("ROOMS.csv", "");
    Add("FILE.csv", "");
    app_.add_flag("--dry", flag_);
    EXPECT_EQ(KindOf(Row("--wood")), ValueKind::Choice);
    EXPECT_THAT(ChoicesOf(Row("--wood")), ElementsAre("oak", "elm"));
    EXPECT_EQ(KindOf(Row("--to")), ValueKind::File);
    EXPECT_THAT(ChoicesOf(Row("--to")), IsEmpty());
    EXPECT_EQ(KindOf(Row("--in")), ValueKind::Folder);
    EXPECT_EQ(KindOf(Row("--size")), ValueKind::Other);
    EXPECT_EQ(KindOf(Row("FILE.csv")), ValueKind::File);
    EXPECT_EQ(KindOf(Row("ROOMS.csv")), ValueKind::Other);
    EXPECT_EQ(KindOf(Row("--dry")), ValueKind::None);
}

TEST_F(Reference, HasTheArgumentsBehindTheOptions) {
    Add("ROOM", "");
    Add("--wood", "oak|elm");
    const auto rows = TableOf(app_).Rows;
    ASSERT_EQ(rows.size(), 3U);
    EXPECT_EQ(rows[0].Name, "--help");
    EXPECT_EQ(rows[1].Name, "--wood");
    EXPECT_EQ(rows[2].Name, "ROOM");
    EXPECT_TRUE(rows[2].IsArgument);
}

TEST_F(Reference, HasTheCommandsWithoutTheHelpOfEach) {
    auto* sand = app_.add_subcommand("sand", "Make it even");
    sand->add_flag("--dry", flag_, "Only look");
    const auto commands = TableOf(app_).Commands;
    ASSERT_EQ(commands.size(), 1U);
    EXPECT_EQ(commands[0].Name, "sand");
    EXPECT_EQ(commands[0].Text, "Make it even");
    ASSERT_EQ(commands[0].Rows.size(), 1U);
    EXPECT_EQ(commands[0].Rows[0].Name, "--dry");
}

TEST_F(Reference, TakesOfATextWhatCanStandInALine) {
    EXPECT_EQ(ShortText("Widths (default 0, at most 6in)"), "Widths");
    EXPECT_EQ(ShortText("Copy it; what was there is kept"), "Copy it");
    EXPECT_EQ(ShortText("All of it"), "All of it");
}

TEST_F(Reference, IsAPageInWhichNothingIsTakenForMarkup) {
    Add("--wood", "a|b", "Any *kind* of <wood> [here]");
    const std::string page =
        ReferencePage({TableOf(app_)}, "# Files\n\n## Rooms\n\n```\n# code\n```\n");
    EXPECT_THAT(page, HasSubstr("\n## lay\n\nLay a floor: quickly.\nIn any room.\n"));
    EXPECT_THAT(page, HasSubstr("\n- `--wood a|b`: Any \\*kind\\* of \\<wood> \\[here]\n"));
    EXPECT_THAT(page, HasSubstr("\n**Exit status:** 0 done, 1 not.\n"));
    EXPECT_THAT(page, HasSubstr("\n## Files\n\n### Rooms\n\n```\n# code\n```\n"));
}

TEST_F(Reference, IsAManPageInWhichNothingIsTakenForACommand) {
    Add("--wood", "a|b", ".dots 'quotes' and \\slashes");
    const auto table = TableOf(app_);
    const std::string page = ManPage(table, {table}, {"1.2.3", "2026-01-31"});
    EXPECT_THAT(page, HasSubstr(".TH LAY 1 2026-01-31 \"tarn 1.2.3\" \"User Commands\"\n"));
    EXPECT_THAT(page, HasSubstr("lay \\- lay a floor\n"));
    EXPECT_THAT(page, HasSubstr("\\fB\\-\\-wood\\fR \\fIa|b\\fR\n"
                                "\\&.dots \\(aqquotes\\(aq and \\eslashes\n"));
    EXPECT_THAT(page, HasSubstr(".SH EXIT STATUS\n0 done, 1 not.\n"));
    EXPECT_THAT(page, HasSubstr("lay \\-\\-wood oak \\(aqhall\\(aq\n"));
}

TEST_F(Reference, MakesAManPageOfAText) {
    const std::string page = ManPageOfText(
        "lay-files",
        "# The files\n\nFirst\nparagraph with `code` and [a link](to.md#there).\n\n## Rooms\n\n"
        "Second.\n\n- one\n  more\n- two\n\n| a | b |\n|---|---|\n| `x` | up \\| down |\n\n"
        "```\n.code 'here'\n```\n",
        {"1.2.3", "2026-01-31"});
    EXPECT_THAT(page, HasSubstr("lay\\-files \\- the files\n.SH DESCRIPTION\n"));
    EXPECT_THAT(page,
                HasSubstr("First paragraph with \\fBcode\\fR and a link.\n.SH ROOMS\nSecond.\n"));
    EXPECT_THAT(page, HasSubstr(".IP \\(bu 3\none more\n.IP \\(bu 3\ntwo\n"));
    EXPECT_THAT(page, HasSubstr(".TP\n\\fBx\\fR\nup | down\n"));
    EXPECT_THAT(page, HasSubstr(".nf\n\\&.code \\(aqhere\\(aq\n.fi\n"));
    EXPECT_THAT(page, Not(HasSubstr("---")));
}

TEST_F(Reference, MakesNoManPageOfATextWithoutAHeading) {
    EXPECT_THROW(ManPageOfText("x", "No heading\n", {}), std::runtime_error);
    EXPECT_THROW(ManPageOfText("x", "# No more", {}), std::runtime_error);
}

TEST_F(Reference, IsQuotedForEachShell) {
    Add("--wood", "WOOD", "It's [dry]: \\ all");
    const auto table = TableOf(app_);
    EXPECT_THAT(ZshCompletion(table),
                HasSubstr("'(--wood)--wood=[It'\\''s \\[dry\\]\\: \\\\ all]"));
    EXPECT_THAT(FishCompletion(table), HasSubstr("-l wood -x -d 'It\\'s [dry]: \\\\ all'"));
}

TEST_F(Reference, OffersAnOptionAgainOnlyWhereItMayBeRepeated) {
    Add("--wood", "WOOD")->multi_option_policy(CLI::MultiOptionPolicy::TakeAll);
    Add("--size", "N")->multi_option_policy(CLI::MultiOptionPolicy::Throw);
    const std::string script = ZshCompletion(TableOf(app_));
    EXPECT_THAT(script, HasSubstr("'*--wood=["));
    EXPECT_THAT(script, HasSubstr("'(--size)--size=["));
}

} // namespace
} // namespace tarn
