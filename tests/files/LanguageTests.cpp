#include "base/Words.h"
#include "estimate/CutList.h"
#include "estimate/EstimateTesting.h"
#include "files/EstimateJson.h"
#include "files/Language.h"
#include "files/OrderJson.h"
#include "files/OrderTables.h"
#include "files/OrderText.h"
#include "files/ProjectTables.h"
#include "files/RoomCsv.h"
#include "files/SpokenLanguage.h"
#include "order/OrderTesting.h"

#include <QFile>
#include <QXmlStreamReader>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <regex>
#include <set>
#include <string>
#include <vector>

namespace tarn {
namespace {

using ::testing::HasSubstr;
using testing::SpokenLanguage;

/// A text and its translation, or the forms of it.
struct Translated {
    std::string Source; ///< with that for many behind it
    std::vector<std::string> Forms;
    bool IsCounted = false;
    bool IsUnfinished = false;
};

/// The text of an element up to its end, bytes that no XML may hold included.
std::string TextOf(QXmlStreamReader& in) {
    QString text;
    while (!in.atEnd() && in.readNext() != QXmlStreamReader::EndElement) {
        if (in.isStartElement()) { // <byte value="xd"/>
            text += QChar(in.attributes().value(QLatin1String("value")).mid(1).toInt(nullptr, 16));
            in.skipCurrentElement();
        } else {
            text += in.text();
        }
    }
    return text.toStdString();
}

std::vector<Translated> TranslationsInto(const std::string& language) {
    QFile file(QString::fromStdString(TARN_TRANSLATIONS "/tarn_" + language + ".ts"));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    QXmlStreamReader in(&file);
    std::vector<Translated> all;
    while (!in.atEnd()) {
        in.readNext();
        if (!in.isStartElement()) {
            continue;
        }
        if (in.name() == QLatin1String("message")) {
            all.emplace_back().IsCounted = in.attributes().hasAttribute(QLatin1String("numerus"));
        } else if (in.name() == QLatin1String("source") || in.name() == QLatin1String("comment")) {
            all.back().Source += TextOf(in);
        } else if (in.name() == QLatin1String("translation")) {
            all.back().IsUnfinished = in.attributes().hasAttribute(QLatin1String("type"));
            if (!all.back().IsCounted) {
                all.back().Forms.push_back(TextOf(in));
            }
        } else if (in.name() == QLatin1String("numerusform")) {
            all.back().Forms.push_back(TextOf(in));
        }
    }
    EXPECT_FALSE(in.hasError()) << in.errorString().toStdString();
    return all;
}

std::set<std::string> MarksIn(const std::string& text) {
    static const std::regex mark("%[0-9n]");
    return {std::sregex_token_iterator(text.begin(), text.end(), mark), {}};
}

long MnemonicsIn(const std::string& text) {
    static const std::regex mnemonic("&[^&]");
    return std::distance(std::sregex_iterator(text.begin(), text.end(), mnemonic), {});
}

std::string BlanksAround(const std::string& text) {
    const auto first = text.find_first_not_of(' ');
    const auto last = text.find_last_not_of(' ');
    return text.substr(0, first) + "|" + text.substr(last + 1);
}

class Translations : public ::testing::TestWithParam<const char*> {};

INSTANTIATE_TEST_SUITE_P(Shipped, Translations, ::testing::Values("de", "es"),
                         [](const auto& each) { return std::string(each.param); });

TEST_P(Translations, AreComplete) {
    const std::vector<Translated> all = TranslationsInto(GetParam());
    EXPECT_GT(all.size(), 500U);
    for (const Translated& each : all) {
        EXPECT_FALSE(each.IsUnfinished) << each.Source;
        EXPECT_EQ(each.Forms.size(), each.IsCounted ? 2U : 1U) << each.Source;
        for (const std::string& form : each.Forms) {
            EXPECT_FALSE(form.empty()) << each.Source;
        }
    }
}

TEST_P(Translations, HaveTheArgumentsMnemonicsAndBlanksOfTheirSources) {
    for (const Translated& each : TranslationsInto(GetParam())) {
        for (const std::string& form : each.Forms) {
            std::set<std::string> wanted = MarksIn(each.Source);
            std::set<std::string> marks = MarksIn(form);
            if (each.IsCounted) { // one may be said in a word
                wanted.erase("%n");
                marks.erase("%n");
            } else {
                EXPECT_EQ(MnemonicsIn(form), MnemonicsIn(each.Source)) << form;
            }
            EXPECT_EQ(marks, wanted) << form;
            EXPECT_EQ(BlanksAround(form), BlanksAround(each.Source)) << form;
        }
    }
}

TEST_P(Translations, AreSpoken) {
    const SpokenLanguage spoken(GetParam());
    for (const Translated& each : TranslationsInto(GetParam())) {
        if (!each.IsCounted) {
            EXPECT_EQ(std::string(Phrase(each.Source.c_str())), each.Forms.front());
        }
    }
    const std::string one = CountedWords("%n room", "%n rooms", 1);
    const std::string many = CountedWords("%n room", "%n rooms", 3);
    EXPECT_EQ(one.front(), '1');
    EXPECT_EQ(many.front(), '3');
    EXPECT_NE(one.substr(1), many.substr(1));
    EXPECT_NE(many, "3 rooms");
}

// --- what programs read ---

/// All that is written for programs of rooms that give notes, refusals and several kinds of pieces.
std::string ForPrograms(std::string& forPeople) {
    Project project =
        testing::ProjectOf(std::vector<testing::RoomSides>{{145, 200}, {100, 120}, {150, 240}});
    project.Name = "HOUSE";
    project.Rooms[0].Remark = "hall";
    OrderRequest request = testing::RequestFor(144);
    request.Rolls.push_back({100, "100in", "", 12.5});
    request.Lays = {Lay::Down, Lay::Cross};
    request.Pattern.Across = 18;
    request.Pattern.Along = 24;
    request.MostParts = 2;
    OrderDocument document{project, Units::Imperial, {testing::MakeOrderOf(project, request, 200)}};
    const Estimate estimate = testing::Estimated({{200, 120}, {150, 90}}, testing::Request(144));
    forPeople = OrderText(document);
    for (const std::string& line : CutListLines(estimate)) {
        forPeople += line + "\n";
    }
    return OrderJson(document) + OrderCsv(document) + EstimateJson(estimate) +
           WriteRoomCsv(project.Rooms) + CsvOf({ReportTable(project, Units::Imperial)}) +
           CsvOf(RoomTables(project, Units::Metric));
}

TEST(Languages, NeverChangeWhatProgramsRead) {
    std::string text;
    const std::string english = ForPrograms(text);
    EXPECT_THAT(english, HasSubstr("cannot match"));
    EXPECT_THAT(english, HasSubstr("Nothing is allowed for trimming."));
    for (const char* language : {"de", "es", "pseudo"}) {
        const SpokenLanguage spoken(language);
        std::string translated;
        EXPECT_EQ(ForPrograms(translated), english) << language;
        EXPECT_NE(translated, text) << language;
    }
}

TEST(Languages, AreKnownByTheirCodes) {
    EXPECT_TRUE(IsKnownLanguage("en"));
    EXPECT_TRUE(IsKnownLanguage("de"));
    EXPECT_TRUE(IsKnownLanguage("es"));
    EXPECT_FALSE(IsKnownLanguage("fr"));
    EXPECT_FALSE(IsKnownLanguage(""));
    EXPECT_EQ(UnknownLanguageText("fr"), "There is no language \"fr\". Choose one of en (English), "
                                         "de (Deutsch), es (Español).");
}

TEST(Languages, BeginAndEndWithEnglish) {
    SpeakLanguage("de");
    EXPECT_EQ(std::string(Words("&BACK")), "&ZURÜCK");
    SpeakLanguage("en");
    EXPECT_EQ(std::string(Words("&BACK")), "&BACK");
}

} // namespace
} // namespace tarn
