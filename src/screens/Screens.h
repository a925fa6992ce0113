#pragma once

#include "base/Types.h"

#include <optional>
#include <string_view>

namespace tarn {

class EstimateClient;
struct EstimateRequest;

/// What the menu is loaded for.
enum class MenuEntry {
    ExistingProject, ///< a project was chosen from the list
    NewProject,      ///< a project was just made: it has nothing to estimate yet
    Returning,       ///< the room or the estimate screen closes
};

/// The way from one screen to the next. Exactly one screen is in front at a time, never modally.
/// A screen that is replaced is unloaded: it takes no more events, and it is deleted when control
/// is back in the event loop, so that it may hand over from one of its own handlers. Loading may
/// raise what the screen's own start raises; the screen in front then stays.
class Screens {
  public:
    virtual ~Screens() = default;

    /// Show the project selection in place of the screen in front.
    virtual void ShowProjects() = 0;
    /// Show the menu in place of the screen in front.
    virtual void ShowMenu(MenuEntry entry) = 0;
    /// Show the room entry in place of the screen in front.
    virtual void ShowRooms() = 0;
    /// Show the carpet estimate. `fromMenu`: in place of the menu; else above the room entry, which
    /// stays loaded, hidden and disabled.
    virtual void ShowEstimate(bool fromMenu) = 0;
    /// Show the estimation options above the estimate, which stays loaded and disabled. They fill
    /// in the rest of `request`, and hand the estimate to `client`, which must outlive them.
    virtual void ShowOptions(const EstimateRequest& request, EstimateClient& client) = 0;
    /// Show the order above the estimate, which stays loaded and disabled. It begins with `carpet`,
    /// a covering code, where that can be ordered; else with the lowest carpet that can.
    virtual void ShowOrder(std::optional<Byte> carpet) = 0;
    /// Open the guide at one of its pages (see GuidePages.h), beside the screen in front.
    virtual void ShowGuide(std::string_view page) = 0;
    /// Show what the program is, above the screen in front.
    virtual void ShowAbout() = 0;
    /// Unload the screen in front and show and enable the one below it.
    virtual void Return() = 0;
    /// End the program, once all that was to be printed is. Nothing is asked and nothing saved.
    virtual void End() = 0;
};

} // namespace tarn
