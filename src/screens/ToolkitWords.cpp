#include "screens/ToolkitWords.h"

#include "base/Words.h"
#include "files/Language.h"
#include "files/QtText.h"

#include <QCoreApplication>
#include <QLibraryInfo>

#include <algorithm>
#include <array>
#include <string_view>

namespace tarn {

namespace {

/// As the toolkit has them in English.
constexpr std::array ButtonTexts{Words("OK"), Words("Cancel"), Words("&Yes"), Words("&No"),
                                 Words("Save")};

} // namespace

QString ToolkitWords::Buttons::translate(const char* context, const char* source, const char*,
                                         int) const {
    if (std::string_view(context) != "QPlatformTheme") {
        return {};
    }
    const auto* const found =
        std::find_if(ButtonTexts.begin(), ButtonTexts.end(), [&](const Phrase& text) {
            return std::string_view(text.English()) == source;
        });
    return found == ButtonTexts.end() ? QString() : ToQt(*found);
}

ToolkitWords::ToolkitWords() {
    const std::string& code = LanguageInForce();
    if (code == KnownLanguages().front().Code) {
        return;
    }
    QCoreApplication::installTranslator(&buttons_);
    if (toolkit_.load(QStringLiteral("qtbase_") + ToQt(code),
                      QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        QCoreApplication::installTranslator(&toolkit_); // asked before the other
    }
}

ToolkitWords::~ToolkitWords() {
    QCoreApplication::removeTranslator(&toolkit_);
    QCoreApplication::removeTranslator(&buttons_);
}

} // namespace tarn
