#include "paper/PrintTesting.h"
#include "paper/ReportPages.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace tarn {
namespace {

using testing::ReportOf;

constexpr std::size_t Columns = 111;
constexpr std::size_t LinesAPage = 41;

std::string WithoutBlanksAtTheEnd(std::string line) {
    line.resize(line.find_last_not_of(' ') + 1);
    return line;
}

std::vector<std::string> TextsOf(const std::vector<ReportLine>& lines) {
    std::vector<std::string> texts;
    texts.reserve(lines.size());
    for (const ReportLine& line : lines) {
        texts.push_back(line.Text);
    }
    return texts;
}

/// A report whose only room has that room number and remark.
EnteredDataReport ReportWith(const std::string& roomNo, const std::string& remark) {
    return testing::ReportOfRooms({{150, 168, 0, 0, roomNo, remark}});
}

/// All characters of a report but blanks.
std::string Ink(const std::string& text) {
    std::string ink;
    for (const char c : text) {
        if (static_cast<unsigned char>(c) > ' ') {
            ink += c;
        }
    }
    return ink;
}

TEST(ReportPages, AShortReportIsOnePageBelowAnEmptyLine) {
    const EnteredDataReport report = ReportOf(5);
    const auto pages = ReportPages(report, Columns, LinesAPage);
    ASSERT_EQ(pages.size(), 1U);
    std::vector<std::string> expected{""};
    for (const ReportLine& line : report.Lines) {
        expected.push_back(WithoutBlanksAtTheEnd(line.Text));
    }
    EXPECT_EQ(TextsOf(pages[0]), expected);
}

TEST(ReportPages, NoRoomsMakeOnePageOfHeading) {
    const auto pages = ReportPages(ReportOf(0), Columns, LinesAPage);
    ASSERT_EQ(pages.size(), 1U);
    EXPECT_EQ(pages[0].size(), 10U);
}

TEST(ReportPages, APageThatIsExactlyFullHasNoEmptyOneBehind) {
    EXPECT_EQ(ReportPages(ReportOf(31), Columns, LinesAPage).size(), 1U);
    EXPECT_EQ(ReportPages(ReportOf(32), Columns, LinesAPage).size(), 2U);
}

TEST(ReportPages, FurtherPagesBeginWithTheHeadsOfTheColumnsAndEveryRowIsThereOnce) {
    const EnteredDataReport report = ReportOf(501, Units::Metric);
    const std::vector<std::string> lines = TextsOf(report.Lines);
    const auto pages = ReportPages(report, Columns, LinesAPage);
    ASSERT_EQ(pages.size(), 1U + (501 - 31 + 37) / 38);
    std::size_t row = ReportHeadingLines;
    for (std::size_t page = 0; page < pages.size(); ++page) {
        std::size_t first = 1 + ReportHeadingLines;
        if (page > 0) {
            first = ReportColumnHeadLines;
            for (std::size_t head = 0; head < ReportColumnHeadLines; ++head) {
                EXPECT_EQ(pages[page][head].Text, lines[6 + head]);
            }
        }
        EXPECT_LE(pages[page].size(), LinesAPage);
        for (std::size_t i = first; i < pages[page].size(); ++i) {
            ASSERT_LT(row, lines.size());
            EXPECT_EQ(pages[page][i].Text, WithoutBlanksAtTheEnd(lines[row++]));
        }
    }
    EXPECT_EQ(row, lines.size());
}

TEST(ReportPages, ALongRemarkGoesOnBelowItselfBrokenBehindABlank) {
    std::string remark;
    for (int word = 1; remark.size() < 230; ++word) {
        remark += (word > 1 ? " word" : "word") + std::to_string(word);
    }
    const EnteredDataReport report = ReportWith("12", remark);
    // With every number of columns, so that a blank falls behind the last one too.
    for (std::size_t columns = 100; columns < 120; ++columns) {
        const auto pages = ReportPages(report, columns, LinesAPage);
        ASSERT_EQ(pages.size(), 1U);
        const PaperPage& page = pages[0];
        const std::size_t column = page[10].Text.find("word1");
        EXPECT_EQ(page[10].Remark, column);
        ASSERT_GT(page.size(), 12U);
        std::string joined = page[10].Text.substr(column);
        for (std::size_t i = 11; i < page.size(); ++i) {
            EXPECT_LE(page[i].Text.size(), columns);
            EXPECT_EQ(page[i].Text.find_first_not_of(' '), column);
            EXPECT_EQ(page[i].Text.substr(column, 4), "word");
            joined += " " + page[i].Text.substr(column);
        }
        EXPECT_EQ(joined, remark);
    }
}

TEST(ReportPages, WordsThatFillTheLineToItsLastColumnStayOnIt) {
    const EnteredDataReport report = ReportWith("12", "first second third");
    const std::size_t column = ReportPages(report, Columns, LinesAPage)[0][10].Remark;
    const std::size_t columns = column + std::string("first second").size();
    const PaperPage page = ReportPages(report, columns, LinesAPage)[0];
    EXPECT_EQ(page[10].Text.substr(column), "first second");
    EXPECT_EQ(page[11].Text.substr(page[11].Remark), "third");
}

TEST(ReportPages, ARemarkWithoutABlankIsBrokenWhereTheLineEnds) {
    const std::string remark(255, 'x');
    const auto pages = ReportPages(ReportWith("12", remark), Columns, LinesAPage);
    const PaperPage& page = pages[0];
    EXPECT_EQ(page[10].Text.size(), Columns);
    std::string joined;
    for (std::size_t i = 10; i < page.size(); ++i) {
        joined += page[i].Text.substr(page[10].Remark);
    }
    EXPECT_EQ(joined, remark);
}

TEST(ReportPages, NoInkIsLostWhateverTheNumbersOfColumnsAndLines) {
    EnteredDataReport report =
        ReportWith("TOO LONG A NUMBER", "Küche, 浴室 and a " + std::string(90, 'y') + " hall");
    report.Lines.push_back({std::string(300, 'z')});
    const EnteredDataReport more = ReportOf(7);
    report.Lines.insert(report.Lines.end(), more.Lines.begin(), more.Lines.end());
    for (const std::size_t columns : {1U, 40U, 74U, 87U, 111U, 400U}) {
        for (const std::size_t lines : {1U, 6U, 15U, 60U}) {
            std::string ink;
            for (const PaperPage& page : ReportPages(report, columns, lines)) {
                EXPECT_LE(page.size(), std::max<std::size_t>(lines, 6));
                for (const ReportLine& line : page) {
                    EXPECT_LE(Len(line.Text),
                              static_cast<long long>(std::max(columns, std::size_t{40})));
                    ink += Ink(line.Text);
                }
            }
            // Heads are repeated, so that the report's ink is in there in its order.
            std::size_t found = 0;
            const std::string whole = Ink(report.Text());
            for (const char c : ink) {
                found += found < whole.size() && c == whole[found] ? 1 : 0;
            }
            EXPECT_EQ(found, whole.size()) << columns << " columns, " << lines << " lines";
        }
    }
}

TEST(ReportPages, ARowStaysWithItsContinuationOnOnePage) {
    EnteredDataReport report = ReportOf(30); // 40 lines with the empty one: one is left on the page
    report.Lines.push_back(ReportWith("", std::string(60, 'x')).Lines.back());
    const auto pages = ReportPages(report, Columns, LinesAPage);
    ASSERT_EQ(pages.size(), 2U);
    EXPECT_EQ(pages[0].size(), LinesAPage - 1);
    EXPECT_EQ(pages[1].size(), ReportColumnHeadLines + 2);
}

TEST(ReportPages, WhateverTheRoomNumberIsTheRemarkGoesOnBelowItself) {
    std::string remark;
    for (int word = 10; word < 40; ++word) {
        remark += "word" + std::to_string(word) + " ";
    }
    for (const Units units : {Units::Imperial, Units::Metric}) {
        for (const Byte base : {Byte{0}, Byte{5}}) {
            for (const char* number : {"", "  12", "1 2", " A  B ", "TEN LETTER"}) {
                Project project;
                project.Rooms = {{150, 168, 0, base, number, remark}};
                const PaperPage page =
                    ReportPages(MakeReport(project, units, ""), Columns, LinesAPage)[0];
                const std::size_t column = page[10].Text.find("word10");
                SCOPED_TRACE(page[10].Text);
                EXPECT_EQ(page[10].Remark, column);
                ASSERT_GT(page.size(), 12U);
                for (std::size_t i = 11; i < page.size(); ++i) {
                    EXPECT_EQ(page[i].Remark, column);
                    EXPECT_EQ(page[i].Text.find("word"), column);
                    EXPECT_EQ(page[i].Text.find_first_not_of(' '), column);
                }
            }
        }
    }
}

TEST(ReportPages, ARoomNumberIsNotTakenForWords) {
    // The last blank of the line stands inside the room number.
    const PaperPage page =
        ReportPages(ReportWith("A B", std::string(60, 'x')), Columns, LinesAPage)[0];
    EXPECT_NE(page[10].Text.find("A B      xxx"), std::string::npos) << page[10].Text;
    EXPECT_EQ(page[10].Text.size(), Columns);
}

TEST(ReportPages, ARowLongerThanAPageFillsWhatIsLeftOfOneAndGoesOnInTheNext) {
    constexpr std::size_t FewLines = 12;
    const auto pages = ReportPages(ReportWith("12", std::string(800, 'x')), Columns, FewLines);
    ASSERT_GT(pages.size(), 2U);
    EXPECT_EQ(pages[0].size(), FewLines); // the heading leaves two lines
    std::size_t ink = 0;
    for (std::size_t page = 0; page < pages.size(); ++page) {
        const std::size_t first = page == 0 ? 10 : ReportColumnHeadLines;
        EXPECT_TRUE(page + 1 == pages.size() || pages[page].size() == FewLines) << page;
        for (std::size_t i = first; i < pages[page].size(); ++i) {
            const std::string& text = pages[page][i].Text;
            ink += static_cast<std::size_t>(std::count(text.begin(), text.end(), 'x'));
        }
    }
    EXPECT_EQ(ink, 800U);
}

TEST(ReportPages, AnAccentStaysWithItsLetter) {
    std::string remark(200, 'x');
    for (std::size_t i = 1; i < 200; i += 3) {
        remark.replace(i, 1, "e\u0301");
        i += 2;
    }
    const auto pages = ReportPages(ReportWith("1", remark), Columns, LinesAPage);
    for (std::size_t i = 11; i < pages[0].size(); ++i) {
        const std::string& text = pages[0][i].Text;
        EXPECT_NE(text.substr(text.find_first_not_of(' '), 2), "\u0301");
    }
}

TEST(ReportPages, LinesWithoutAHeadingAreStillPaged) {
    const auto pages = ReportPages({{{"one"}, {"two"}}}, Columns, LinesAPage);
    ASSERT_EQ(pages.size(), 1U);
    EXPECT_EQ(TextsOf(pages[0]), (std::vector<std::string>{"", "one", "two"}));
}

} // namespace
} // namespace tarn
