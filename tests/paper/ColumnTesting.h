#pragma once

// Where the words of a printed report stand.

#include "paper/PdfTesting.h"
#include "paper/ReportPages.h"
#include "project/ReportType.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

namespace tarn::testing {

inline constexpr double Margin = 18;   // points
inline constexpr double Advance = 7.2; // of 12 points
inline constexpr double LineHeight = 12 * CourierLineHeight;

/// Each word of a line and its column.
inline std::vector<std::pair<QString, qsizetype>> WordsOf(const QString& line) {
    std::vector<std::pair<QString, qsizetype>> words;
    for (qsizetype begin = 0; begin < line.size();) {
        if (line[begin] == u' ') {
            ++begin;
            continue;
        }
        qsizetype end = line.indexOf(u' ', begin);
        end = end < 0 ? line.size() : end;
        words.emplace_back(line.mid(begin, end - begin), begin);
        begin = end;
    }
    return words;
}

/// The words of a page stand line by line in the columns that they have in `lines`.
inline void ExpectColumns(std::vector<PdfWord> found, const PaperPage& lines, double advance) {
    const auto place = [lineHeight = LineHeight * advance / Advance](const PdfWord& word) {
        const double line = std::floor((word.Box.center().y() - Margin) / lineHeight);
        return std::pair(line, word.Box.left());
    };
    std::sort(found.begin(), found.end(), [&place](const PdfWord& first, const PdfWord& second) {
        return place(first) < place(second);
    });
    std::size_t next = 0;
    for (std::size_t line = 0; line < lines.size(); ++line) {
        for (const auto& [word, column] : WordsOf(QString::fromStdString(lines[line].Text))) {
            ASSERT_LT(next, found.size());
            const PdfWord& there = found[next++];
            ASSERT_EQ(there.Text.toStdString(), word.toStdString());
            EXPECT_NEAR(there.Box.left(), Margin + static_cast<double>(column) * advance, 0.3)
                << word.toStdString();
            EXPECT_NEAR(there.Box.width(), static_cast<double>(word.size()) * advance, 0.3)
                << word.toStdString();
            const double top = Margin + static_cast<double>(line) * LineHeight * advance / Advance;
            EXPECT_NEAR(there.Box.center().y(), top + LineHeight * advance / Advance / 2, 2)
                << word.toStdString();
        }
    }
    EXPECT_EQ(next, found.size());
}

} // namespace tarn::testing
