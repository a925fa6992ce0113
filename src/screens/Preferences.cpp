#include "screens/Preferences.h"

#include "files/FileModes.h"
#include "store/Configuration.h"

#include <QSettings>

#include <filesystem>

namespace tarn {

namespace {

constexpr const char* FileName = "preferences.ini";

QString KeyOf(Preference which) {
    switch (which) {
    case Preference::WholeRoll:
        return QStringLiteral("WholeRoll");
    }
    return {};
}

QString LanguageKey() {
    return QStringLiteral("Language");
}

/// The owner's alone, and its folder too.
void MakeIfMissing(const std::filesystem::path& file) {
    try {
        MakePrivateFolder(file.parent_path());
        if (!std::filesystem::exists(file)) {
            MakePrivateFile(file);
        }
    } catch (const std::filesystem::filesystem_error&) {
        // The choice holds for this run.
    }
}

} // namespace

Preferences::Preferences(const QString& file)
    : file_(file.isEmpty() ? nullptr : std::make_unique<QSettings>(file, QSettings::IniFormat)) {}

Preferences::~Preferences() = default;

bool Preferences::IsOn(Preference which) const {
    const auto chosen = chosen_.find(which);
    if (chosen != chosen_.end()) {
        return chosen->second;
    }
    return file_ && file_->value(KeyOf(which), false).toBool();
}

void Preferences::Set(Preference which, bool on) {
    chosen_[which] = on;
    Keep(KeyOf(which), on);
}

std::string Preferences::Language() const {
    return language_.empty() && file_ ? file_->value(LanguageKey()).toString().toStdString()
                                      : language_;
}

void Preferences::ChooseLanguage(const std::string& code) {
    language_ = code;
    Keep(LanguageKey(), QString::fromStdString(code));
}

void Preferences::Keep(const QString& key, const QVariant& value) {
    if (file_) {
        MakeIfMissing(file_->fileName().toStdString());
        file_->setValue(key, value);
        file_->sync();
    }
}

QString UserPreferencesFile() {
    const auto directory = UserConfigurationDirectory();
    return directory ? QString::fromStdString((*directory / FileName).string()) : QString();
}

} // namespace tarn
