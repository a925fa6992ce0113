#include "screens/rooms/ReportFrame.h"

#include "base/Twips.h"
#include "base/Words.h"
#include "files/QtText.h"
#include "paper/FixedPitchFont.h"
#include "screens/Arrangement.h"
#include "screens/ControlNames.h"
#include "screens/Controls.h"
#include "screens/Display.h"
#include "screens/SaveAs.h"
#include "screens/Theme.h"

#include <QAction>
#include <QHBoxLayout>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include <utility>

namespace tarn {

ReportFrame::ReportFrame() {
    NameControl(*this, Controls::reportPanel, ToQt(ReportTitle));
    SetPanel(*this);

    view_ = new QPlainTextEdit(this);
    NameControl(*view_, Controls::reportText, accessibleName());
    view_->setReadOnly(true);
    view_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    view_->setLineWrapMode(QPlainTextEdit::NoWrap);
    view_->setFont(CourierNew(Pixels(Metrics::ListingFont * TwipsPerPoint)));
    MakeMenu();

    print_ = NewButton(this, Controls::printReport, Words("PR&INT"));
    close_ = NewButton(this, Controls::closeReport, Words("&CLOSE"));
    SetPrimary(*print_);

    auto* layout = new QVBoxLayout(this);
    SetSpacing(*layout, Metrics::Spacing);
    layout->addWidget(view_, 1);
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(Pixels(Metrics::Spacing));
    // At the right: nowhere near BACK and SAVE, which the second click of a double click would
    // press.
    buttons->addStretch();
    for (QPushButton* button : {print_, close_}) {
        button->setMinimumWidth(Pixels(Metrics::ButtonWidth));
        buttons->addWidget(button);
    }
    layout->addLayout(buttons);
}

void ReportFrame::MakeMenu() {
    saveAsPdf_ = new QAction(ToQt(SaveAsPdfCaption), this);
    saveAsPdf_->setObjectName(Controls::reportAsPdf);
    saveAsSvg_ = new QAction(ToQt(SaveAsSvgCaption), this);
    saveAsSvg_->setObjectName(Controls::reportAsSvg);
    view_->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(view_, &QWidget::customContextMenuRequested, this, [this](const QPoint& at) {
        QMenu* menu = view_->createStandardContextMenu();
        menu->setAttribute(Qt::WA_DeleteOnClose);
        menu->addSeparator();
        menu->addAction(saveAsPdf_);
        menu->addAction(saveAsSvg_);
        menu->popup(view_->viewport()->mapToGlobal(at));
    });
}

void ReportFrame::Show(EnteredDataReport report) {
    shown_ = std::move(report);
    view_->setPlainText(ToQtLines(shown_.Text()));
}

} // namespace tarn
