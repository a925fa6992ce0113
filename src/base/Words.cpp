#include "base/Words.h"

#include <map>
#include <memory>
#include <mutex>
#include <vector>

namespace tarn {

namespace {

/// What was said stays where it is, so that texts in constants are as lasting as their English.
class Language {
  public:
    explicit Language(Translation translation)
        : translation_(std::move(translation)) {}

    std::string_view Text(const char* english) {
        const std::lock_guard lock(mutex_);
        const auto known = said_.find(english);
        if (known != said_.end()) {
            return known->second;
        }
        return said_.emplace(english, translation_(english, "", -1).value_or(english))
            .first->second;
    }

    std::optional<std::string> Form(const char* one, const char* many, int count) {
        return translation_(one, many, count);
    }

  private:
    Translation translation_;
    std::mutex mutex_;
    std::map<std::string, std::string, std::less<>> said_;
};

Language* inForce = nullptr;
thread_local bool isEnglish = false;

void ReplaceAll(std::string& text, std::string_view mark, std::string_view value) {
    for (auto at = text.find(mark); at != std::string::npos;
         at = text.find(mark, at + value.size())) {
        text.replace(at, mark.size(), value);
    }
}

} // namespace

void UseTranslation(Translation translation) {
    static std::vector<std::unique_ptr<Language>> languages;
    inForce = nullptr;
    if (translation) {
        languages.push_back(std::make_unique<Language>(std::move(translation)));
        inForce = languages.back().get();
    }
}

std::string_view Phrase::Text() const {
    const bool isAsItIs = inForce == nullptr || isEnglish || *english_ == '\0';
    return isAsItIs ? std::string_view(english_) : inForce->Text(english_);
}

std::string Filled(std::string_view pattern, std::initializer_list<std::string_view> arguments) {
    std::string text;
    for (std::size_t i = 0; i < pattern.size(); ++i) {
        if (pattern[i] == '%' && i + 1 < pattern.size()) {
            const auto number = static_cast<std::size_t>(
                static_cast<unsigned char>(pattern[i + 1]) - static_cast<unsigned char>('1'));
            if (number < arguments.size()) {
                text += arguments.begin()[number];
                ++i;
                continue;
            }
        }
        text += pattern[i];
    }
    return text;
}

std::string CountedWords(const char* one, const char* many, long long count) {
    std::optional<std::string> form;
    if (inForce != nullptr && !isEnglish) {
        // Which form is said is decided by the last digits.
        constexpr long long Enough = 1000000;
        form = inForce->Form(one, many,
                             static_cast<int>(count < Enough ? count : Enough + count % Enough));
    }
    std::string text = form ? *form : std::string(count == 1 ? one : many);
    ReplaceAll(text, "%n", std::to_string(count));
    return text;
}

InEnglish::InEnglish()
    : before_(isEnglish) {
    isEnglish = true;
}

InEnglish::~InEnglish() {
    isEnglish = before_;
}

} // namespace tarn
