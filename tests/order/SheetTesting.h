// Houses whose orders are put on paper, and the pages read again.

#pragma once

#include "Sanitized.h"
#include "drawing/Drawing.h"
#include "order/OrderTesting.h"
#include "order/SheetPage.h"

#include <cmath>
#include <map>
#include <random>
#include <string>
#include <vector>

namespace tarn::testing {

inline const SheetPaper A4Sheet{};
inline const SheetPaper LetterSheet{12240, 15840, 720};

/// One house of the tests: how many rooms, in which units, with or without a pattern.
struct HouseKind {
    int Rooms;
    Units In;
    bool Pattern;
};

/// Every kind of house that a sheet is looked at for.
inline std::vector<HouseKind> HouseKinds() {
    std::vector<HouseKind> kinds;
    for (const int rooms : UnlessSanitized(std::vector{1, 4, 20, 60, 200}, {1, 4, 60})) {
        for (const Units units : {Units::Imperial, Units::Metric}) {
            for (const bool pattern : {false, true}) {
                kinds.push_back({rooms, units, pattern});
            }
        }
    }
    return kinds;
}

inline std::string NameOf(const HouseKind& kind) {
    return std::to_string(kind.Rooms) + " rooms" + (kind.In == Units::Metric ? ", metric" : "") +
           (kind.Pattern ? ", pattern" : "");
}

/// Closets, rooms and halls as houses have them; some without a number, some with a long remark.
inline Project HouseOf(const HouseKind& kind) {
    std::mt19937 random(static_cast<unsigned>(kind.Rooms));
    const auto between = [&](int least, int most) {
        return least + static_cast<int>(random() % static_cast<unsigned>(most - least + 1));
    };
    const double unit = kind.In == Units::Metric ? 2.54 : 1;
    Project project;
    project.Name = "MAPLE HOUSE";
    for (int i = 0; i < kind.Rooms; ++i) {
        Room room;
        room.Width = static_cast<Integer>(std::lround(between(i % 3 == 0 ? 30 : 90, 260) * unit));
        room.Length = static_cast<Integer>(std::lround(between(60, 260) * unit));
        room.Number = i % 5 == 4 ? "" : std::to_string(101 + i);
        room.Remark = i % 2 == 0    ? ""
                      : i % 10 == 9 ? "Dining room, opens to the living room"
                                    : "Gallery";
        room.Base = 8;
        project.Rooms.push_back(room);
    }
    return project;
}

inline OrderRequest HouseRequest(const HouseKind& kind) {
    const bool metric = kind.In == Units::Metric;
    OrderRequest request = RequestFor(metric ? 402 : 146, kind.In);
    request.Rolls.front().AsTyped = metric ? "402cm" : "146in";
    request.Selvage = 1;
    request.TrimAlong = metric ? 7 : 3;
    request.TrimAcross = 1;
    request.MostParts = 3;
    if (kind.Pattern) {
        request.Pattern = metric ? PatternChoice{50, 64, false} : PatternChoice{18, 24, true};
    }
    return request;
}

inline Order HouseOrder(const HouseKind& kind, const Project& project) {
    return MakeOrderOf(project, HouseRequest(kind), 20);
}

/// Where a text stands.
inline SheetArea PlaceOf(const DrawingStep& text) {
    return text.IsUpward
               ? SheetArea{text.X1, text.Y2, text.X2, text.Y1}
               : SheetArea{text.X1, text.Y1, text.X2, text.Y1 + HeightOfLine(text.FontSize)};
}

inline std::vector<DrawingStep> TextsOf(const Drawing& page) {
    std::vector<DrawingStep> texts;
    for (const DrawingStep& step : page.Steps()) {
        if (step.What == DrawingStep::Kind::Text) {
            texts.push_back(step);
        }
    }
    return texts;
}

/// The texts of a page in the order in which they were written, single blanks between their words.
inline std::string WordsOf(const Drawing& page) {
    std::string words = " ";
    for (const DrawingStep& step : TextsOf(page)) {
        for (const char c : step.Text + " ") {
            if (c != ' ' || words.back() != ' ') {
                words += c;
            }
        }
    }
    return words;
}

} // namespace tarn::testing
