#include "app/ProgramScreens.h"

#include "app/MenuForm.h"
#include "engine/ESTFORM.h"
#include "estimate/ESCarpForm.h"
#include "rooms/TarnForm.h"
#include "store/ProjectForm.h"

#include <QCoreApplication>

namespace tarn {

void ProgramScreens::ShowProjects() {
    window_.Replace(std::make_unique<ProjectForm>(*session_));
}

void ProgramScreens::ShowMenu(MenuEntry entry) {
    window_.Replace(std::make_unique<MenuForm>(*session_, entry));
}

void ProgramScreens::ShowRooms() {
    window_.Replace(std::make_unique<TarnForm>(*session_));
}

void ProgramScreens::ShowEstimate(bool fromMenu) {
    auto screen = std::make_unique<ESCarpForm>(*session_, fromMenu);
    if (fromMenu) {
        window_.Replace(std::move(screen));
    } else {
        window_.Cover(std::move(screen));
    }
}

void ProgramScreens::ShowOptions(FillsClient& client) {
    window_.Cover(std::make_unique<ESTFORM>(*session_, client));
}

void ProgramScreens::Return() {
    window_.Uncover();
}

void ProgramScreens::End() {
    window_.hide();
    QCoreApplication::exit(0);
}

} // namespace tarn
