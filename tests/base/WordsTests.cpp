#include "base/Words.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <thread>
#include <vector>

namespace tarn {
namespace {

/// A language for as long as the test runs.
class Spoken {
  public:
    explicit Spoken(Translation translation) { UseTranslation(std::move(translation)); }
    ~Spoken() { UseTranslation({}); }
    Spoken(const Spoken&) = delete;
    Spoken& operator=(const Spoken&) = delete;
};

/// Another order of two arguments, three forms of a count, and nothing of anything else.
std::optional<std::string> Foreign(const char* english, const char* many, int count) {
    const std::string text = english;
    if (text == "from %1 to %2") {
        return "bis %2 ab %1";
    }
    if (text == "%n room of %1" && std::string(many) == "%n rooms of %1") {
        return count == 1   ? "ein Raum von %1"
               : count == 2 ? "zwei Räume von %1"
                            : "%n Räume von %1";
    }
    return text == "BACK" ? std::optional<std::string>("ZURÜCK") : std::nullopt;
}

constexpr auto Back = Words("BACK");

TEST(Words, AreTheSourceWithoutALanguage) {
    EXPECT_EQ(std::string(Back), "BACK");
    EXPECT_EQ(std::string_view(Words("a & b %1")), "a & b %1");
    EXPECT_EQ(Words("from %1 to %2", std::string("A"), std::string_view("B")), "from A to B");
    EXPECT_EQ(CountedWords("%n room of %1", "%n rooms of %1", 1, Back), "1 room of BACK");
    EXPECT_EQ(CountedWords("%n room of %1", "%n rooms of %1", 0, Back), "0 rooms of BACK");
    EXPECT_EQ(CountedWords("%n room of %1", "%n rooms of %1", 12, Back), "12 rooms of BACK");
}

TEST(Words, AreTranslatedWhereTheyAreUsed) {
    const Spoken spoken(Foreign);
    EXPECT_EQ(std::string(Back), "ZURÜCK");
    EXPECT_STREQ(Back.English(), "BACK");
    EXPECT_EQ(Words("from %1 to %2", Back, std::string("B")), "bis B ab ZURÜCK");
    EXPECT_EQ(CountedWords("%n room of %1", "%n rooms of %1", 1, Back), "ein Raum von ZURÜCK");
    EXPECT_EQ(CountedWords("%n room of %1", "%n rooms of %1", 2, Back), "zwei Räume von ZURÜCK");
    EXPECT_EQ(CountedWords("%n room of %1", "%n rooms of %1", 1234567890123, Back),
              "1234567890123 Räume von ZURÜCK");
    EXPECT_EQ(std::string(Words("unknown")), "unknown");
}

TEST(Words, TakeAnArgumentAsItIs) {
    EXPECT_EQ(Words("%1, %2", std::string("%2"), std::string("%1")), "%2, %1");
    EXPECT_EQ(Words("100 % of %1 and %9", std::string("it")), "100 % of it and %9");
    EXPECT_EQ(Filled("%", {"a"}), "%");
    EXPECT_EQ(Filled("%1%1", {"a"}), "aa");
    EXPECT_EQ(Filled("%0%2", {"a"}), "%0%2");
}

TEST(Words, StayWhereTheyAreWhileOthersAreSaid) {
    const Spoken spoken([](const char* english, const char*, int) {
        return std::optional(std::string("<") + english + ">");
    });
    const std::string_view first = Back;
    std::array<std::thread, 4> threads;
    for (std::thread& thread : threads) {
        thread = std::thread([] {
            for (int i = 0; i < 500; ++i) {
                const std::string text = "text " + std::to_string(i);
                EXPECT_EQ(std::string(Phrase(text.c_str())), "<" + text + ">");
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_EQ(Phrase(), "") << "nothing is said in no language";
    EXPECT_EQ(first, "<BACK>");
    EXPECT_EQ(first.data(), Back.Text().data());
}

TEST(InEnglish, HoldsForItsThreadAlone) {
    const Spoken spoken(Foreign);
    const InEnglish english;
    {
        const InEnglish again;
        EXPECT_EQ(Back, "BACK");
    }
    EXPECT_EQ(Back, "BACK");
    std::string elsewhere;
    std::thread([&elsewhere] { elsewhere = Back; }).join();
    EXPECT_EQ(elsewhere, "ZURÜCK");
}

TEST(Said, IsInBoth) {
    const Spoken spoken(Foreign);
    const Saying saying = Said([] { return Words("from %1 to %2", Back, Back); });
    EXPECT_EQ(saying.English, "from BACK to BACK");
    EXPECT_EQ(saying.Shown, "bis ZURÜCK ab ZURÜCK");
    EXPECT_FALSE(saying.IsEmpty());
    EXPECT_TRUE(Saying().IsEmpty());
    EXPECT_EQ(Back, "ZURÜCK"); // no longer in English
}

} // namespace
} // namespace tarn
