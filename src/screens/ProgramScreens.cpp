#include "screens/ProgramScreens.h"

#include "screens/GuideWindow.h"
#include "screens/estimate/EstimateScreen.h"
#include "screens/estimate/OptionsScreen.h"
#include "screens/menu/MenuScreen.h"
#include "screens/order/OrderScreen.h"
#include "screens/projects/ProjectScreen.h"
#include "screens/rooms/RoomScreen.h"

#include <QCoreApplication>

namespace tarn {

void ProgramScreens::ShowProjects() {
    window_.Replace(std::make_unique<ProjectScreen>(*session_));
}

void ProgramScreens::ShowMenu(MenuEntry entry) {
    window_.Replace(std::make_unique<MenuScreen>(*session_, entry));
}

void ProgramScreens::ShowRooms() {
    window_.Replace(std::make_unique<RoomScreen>(*session_));
}

void ProgramScreens::ShowEstimate(bool fromMenu) {
    auto screen = std::make_unique<EstimateScreen>(*session_, fromMenu);
    if (fromMenu) {
        window_.Replace(std::move(screen));
    } else {
        window_.Cover(std::move(screen));
    }
}

void ProgramScreens::ShowOptions(const EstimateRequest& request, EstimateClient& client) {
    window_.Cover(std::make_unique<OptionsScreen>(*session_, request, client));
}

void ProgramScreens::ShowOrder(std::optional<Byte> carpet) {
    window_.Cover(std::make_unique<OrderScreen>(*session_, carpet));
}

void ProgramScreens::ShowGuide(std::string_view page) {
    if (guide_ == nullptr) {
        guide_ = new GuideWindow(window_, session_->Boxes);
        guide_->OnAbout = [this] { ShowAbout(); };
    }
    guide_->ShowPage(page);
}

void ProgramScreens::ShowAbout() {
    auto* about = new AboutWindow(window_, places_);
    about->setAttribute(Qt::WA_DeleteOnClose);
    about->setModal(true);
    about->show();
}

void ProgramScreens::Return() {
    window_.Uncover();
}

void ProgramScreens::End() {
    session_->Drafts.Flush();
    if (guide_ != nullptr) {
        guide_->hide();
    }
    window_.hide();
    session_->Printing.Finish();
    QCoreApplication::exit(0);
}

} // namespace tarn
