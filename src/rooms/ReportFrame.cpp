#include "rooms/ReportFrame.h"

#include "app/Controls.h"
#include "app/Display.h"
#include "app/QtText.h"
#include "app/Theme.h"

#include <QFont>
#include <QHBoxLayout>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace tarn {

namespace {

QFont FixedPitchFont() {
    QFont font(QStringLiteral("Courier New"));
    font.setStyleHint(QFont::TypeWriter);
    font.setFixedPitch(true);
    return font;
}

} // namespace

ReportFrame::ReportFrame() {
    NameControl(*this, QStringLiteral("Frame4"), QStringLiteral("ENTERED DATA REPORT"));
    setProperty("panel", true);

    view_ = new QPlainTextEdit(this);
    NameControl(*view_, QStringLiteral("Text2"), accessibleName());
    view_->setReadOnly(true);
    view_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    view_->setLineWrapMode(QPlainTextEdit::NoWrap);
    view_->setFont(FixedPitchFont());

    print_ = NewButton(this, IndexedName("Command2", 0), "PRINT", 'I');
    close_ = NewButton(this, IndexedName("Command2", 1), "CLOSE", 'C');
    SetPrimary(*print_);

    const int margin = Pixels(Metrics::Spacing);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->setSpacing(margin);
    layout->addWidget(view_, 1);
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(margin);
    buttons->addStretch();
    for (QPushButton* button : {print_, close_}) {
        button->setMinimumWidth(Pixels(Metrics::ButtonWidth));
        buttons->addWidget(button);
    }
    buttons->addStretch();
    layout->addLayout(buttons);
}

void ReportFrame::SetText(const std::string& text) {
    text_ = text;
    view_->setPlainText(ToQtLines(text));
}

} // namespace tarn
