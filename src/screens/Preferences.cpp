#include "screens/Preferences.h"

#include "store/Configuration.h"

#include <QSettings>

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
    if (file_) {
        file_->setValue(KeyOf(which), on);
        file_->sync();
    }
}

QString UserPreferencesFile() {
    const auto directory = UserConfigurationDirectory();
    return directory ? QString::fromStdString((*directory / FileName).string()) : QString();
}

} // namespace tarn
