#pragma once

#include "screens/AboutWindow.h"
#include "screens/ScreenWindow.h"
#include "screens/Screens.h"
#include "screens/Session.h"

namespace tarn {

class GuideWindow;

/// The way between the program's own six screens, in one window.
class ProgramScreens : public Screens {
  public:
    explicit ProgramScreens(ScreenWindow& window)
        : window_(window) {}

    /// What the screens work on; to be set before the first one is shown, and to outlive them.
    void SetSession(Session& session) { session_ = &session; }
    /// What ShowAbout tells of where things lie.
    void SetPlaces(Places places) { places_ = std::move(places); }

    void ShowProjects() override;
    void ShowMenu(MenuEntry entry) override;
    void ShowRooms() override;
    void ShowEstimate(bool fromMenu) override;
    void ShowOptions(const EstimateRequest& request, EstimateClient& client) override;
    void ShowOrder(std::optional<Byte> carpet) override;
    void ShowGuide(std::string_view page) override;
    void ShowAbout() override;
    void Return() override;
    void End() override;

  private:
    ScreenWindow& window_;
    Session* session_ = nullptr;
    GuideWindow* guide_ = nullptr; ///< the window's own; made when it is first asked for
    Places places_;
};

} // namespace tarn
