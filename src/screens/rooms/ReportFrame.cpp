#include "screens/rooms/ReportFrame.h"

#include "base/Twips.h"
#include "base/Words.h"
#include "files/QtText.h"
#include "paper/FixedPitchFont.h"
#include "screens/Arrangement.h"
#include "screens/ControlNames.h"
#include "screens/Controls.h"
#include "screens/Display.h"
#include "screens/Theme.h"

#include <QAction>
#include <QHBoxLayout>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include <string_view>
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
    QList<QAction*> actions;
    QAction* pages = nullptr; // the first file of pages, behind those of figures
    for (const ReportFile& file : ReportFiles()) {
        auto* action = new QAction(ToQt(file.Caption), this);
        action->setObjectName(file.Control);
        connect(action, &QAction::triggered, this, [this, &file] { OnSave(file); });
        actions.append(action);
        pages = std::string_view(file.Control) == Controls::reportAsPdf ? action : pages;
    }
    view_->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(view_, &QWidget::customContextMenuRequested, this,
            [this, actions, pages](const QPoint& at) {
                QMenu* menu = view_->createStandardContextMenu();
                menu->setAttribute(Qt::WA_DeleteOnClose);
                menu->addSeparator();
                menu->addActions(actions);
                menu->insertSeparator(pages);
                menu->popup(view_->viewport()->mapToGlobal(at));
            });
}

void ReportFrame::Show(EnteredDataReport report) {
    shown_ = std::move(report);
    view_->setPlainText(ToQtLines(shown_.Text()));
}

} // namespace tarn
