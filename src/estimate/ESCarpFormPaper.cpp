// The estimate on paper and in files.

#include "app/OutputFile.h"
#include "app/Printing.h"
#include "app/QtText.h"
#include "app/RunTimeError.h"
#include "app/SaveAs.h"
#include "estimate/ESCarpForm.h"
#include "estimate/EstimatePage.h"
#include "estimate/Svg.h"
#include "print/PdfFile.h"
#include "print/PrinterPage.h"
#include "rooms/Report.h"

#include <QAction>
#include <QMenu>

#include <utility>

namespace tarn {

namespace {

constexpr const char* PictureFailure = "The picture could not be saved.";

} // namespace

/// A child of the picture that pops up without waiting, so that the screen may close under it.
void ESCarpForm::BuildPictureMenu() {
    pictureMenu_ = new QMenu(picture_);
    const auto add = [this](const char* name, const char* text, std::function<void()> save) {
        QAction* action = pictureMenu_->addAction(QString::fromLatin1(text));
        action->setObjectName(QString::fromLatin1(name));
        connect(action, &QAction::triggered, this,
                [this, save = std::move(save)] { Guard(PictureFailure, save); });
    };
    add("SavePdf", SaveAsPdfCaption, [this] {
        SavePicture("pdf", [this](const std::string& path) { WriteEstimatePdf(Page(), path); });
    });
    add("SaveSvg", SaveAsSvgCaption, [this] {
        SavePicture("svg", [this](const std::string& path) {
            WriteOutputFile(path, SvgDocument(picture_->Drawing(), FromQt(windowTitle())));
        });
    });
    picture_->ContextMenu = [this](QPoint global) { pictureMenu_->popup(global); };
}

void ESCarpForm::PrintPic() {
    Printed(Shared().Boxes, [this] {
        if (State().PrnWidth == 0 || State().PrnHeight == 0) {
            AskForPage();
        }
        Shared().Paper.PrintEstimate(Page());
    });
}

void ESCarpForm::AskForPage() {
    try {
        TakePrinterPage(State(), Shared().Paper);
    } catch (const RunTimeError&) {
        // A sheet of more than 22 inches: the printer knows its size, PrnWidth and PrnHeight
        // cannot.
    }
}

EstimatePage ESCarpForm::Page() const {
    const QDate today = Shared().Today();
    return MakeEstimatePage(State(), Shared().Engine, estimate_, picture_->Drawing(),
                            ShortDate(today.year(), today.month(), today.day()));
}

void ESCarpForm::SavePicture(const char* suffix,
                             const std::function<void(const std::string& path)>& write) {
    SaveAs(Shared().Boxes, State().CurProjName, suffix, write);
}

} // namespace tarn
