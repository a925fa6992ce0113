#include "files/Language.h"

#include "base/Words.h"
#include "files/QtText.h"

#include <QTranslator>

#include <algorithm>
#include <memory>

/// Outside of every namespace, as the toolkit asks for.
static void TakeTranslations() {
    Q_INIT_RESOURCE(translations);
}

namespace tarn {

namespace {

constexpr std::string_view English = "en";
constexpr const char* Context = "tarn"; ///< of all texts; see base/Words.h

std::string inForce(English);

std::shared_ptr<const QTranslator> TranslationsInto(std::string_view code) {
    TakeTranslations();
    auto translator = std::make_shared<QTranslator>();
    const bool isThere = translator->load(QStringLiteral(":/translations/tarn_") + ToQt(code) +
                                          QStringLiteral(".qm"));
    Q_ASSERT(isThere);
    Q_UNUSED(isThere);
    return translator;
}

} // namespace

const std::vector<KnownLanguage>& KnownLanguages() {
    static const std::vector<KnownLanguage> languages{
        {std::string(English), "English"}, {"de", "Deutsch"}, {"es", "Español"}};
    return languages;
}

bool IsKnownLanguage(std::string_view code) {
    const auto& known = KnownLanguages();
    return std::any_of(known.begin(), known.end(),
                       [&](const KnownLanguage& each) { return each.Code == code; });
}

std::string UnknownLanguageText(std::string_view code) {
    std::string list;
    for (const KnownLanguage& each : KnownLanguages()) {
        list += (list.empty() ? "" : ", ") + each.Code + " (" + each.Name + ")";
    }
    return Words("There is no language \"%1\". Choose one of %2.", code, list);
}

const std::string& LanguageInForce() {
    return inForce;
}

void SpeakLanguage(std::string_view code) {
    inForce = code;
    if (code == English) {
        UseTranslation({});
        return;
    }
    UseTranslation([translator = TranslationsInto(code)](const char* english, const char* many,
                                                         int count) -> std::optional<std::string> {
        const QString said = translator->translate(Context, english, many, count);
        return said.isEmpty() ? std::nullopt : std::optional(FromQt(said));
    });
}

} // namespace tarn
