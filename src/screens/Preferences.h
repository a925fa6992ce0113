#pragma once

#include <QString>

#include <map>
#include <memory>
#include <string>

class QSettings;
class QVariant;

namespace tarn {

/// What the user chose about the screens themselves, and finds again in the next run.
enum class Preference {
    WholeRoll, ///< the whole roll is shown where there is no room for it beside the drawing
};

/// The user's preferences, in a file of their own. Nothing depends on them: a file that cannot be
/// read counts as one where nothing was chosen, and one that cannot be written is no failure.
class Preferences {
  public:
    /// Kept in `file`, an INI file that is made with the first change; with an empty name in this
    /// value alone.
    explicit Preferences(const QString& file = {});
    ~Preferences();
    Preferences(const Preferences&) = delete;
    Preferences& operator=(const Preferences&) = delete;

    /// Whether it was chosen; false until then.
    bool IsOn(Preference which) const;
    /// Choose it, or no longer, and keep that at once.
    void Set(Preference which, bool on);

    /// The code of the language of the next start; empty until one was chosen.
    std::string Language() const;
    void ChooseLanguage(const std::string& code);

  private:
    std::unique_ptr<QSettings> file_;
    void Keep(const QString& key, const QVariant& value);

    std::map<Preference, bool> chosen_; ///< without a file, and where it could not be written
    std::string language_;              ///< as chosen_
};

/// The file of the user's own preferences, in the user's configuration directory; empty when the
/// environment names no home.
QString UserPreferencesFile();

} // namespace tarn
