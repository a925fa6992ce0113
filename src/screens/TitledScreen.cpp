#include "screens/TitledScreen.h"

#include "base/Text.h"
#include "base/Words.h"
#include "files/QtText.h"
#include "screens/ControlNames.h"
#include "screens/Controls.h"
#include "screens/Display.h"
#include "screens/Theme.h"

#include <QLabel>
#include <QPushButton>

#include <algorithm>

namespace tarn {

namespace {

QLabel* NewTitle(QWidget* parent, const char* name, std::string_view text, TextRole role) {
    QLabel* label = NewLabel(parent, name, text);
    label->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    SetRole(*label, role);
    return label;
}

QSize NaturalSize(const QWidget& widget) {
    return widget.sizeHint().expandedTo(widget.minimumSizeHint()).expandedTo(widget.minimumSize());
}

} // namespace

TitledScreen::TitledScreen(Session& session, QAnyStringView name, std::string_view formTitle)
    : Screen(session, name) {
    productTitle_ =
        NewTitle(&Body(), Controls::productTitle, ApplicationTitle, TextRole::ProductTitle);
    formTitle_ = NewTitle(&Body(), Controls::formTitle, formTitle, TextRole::FormTitle);
    titleWarning_ = NewLabel(&Body(), Controls::titleWarning, "");
    SetRole(*titleWarning_, TextRole::Warning);
    titleWarning_->hide();
    setWindowTitle(ToQt(formTitle).remove(QLatin1Char('*')));
    GuideButton().raise(); // above the title, which is as wide as the screen
    Body().installEventFilter(this);
}

void TitledScreen::AddPanel(QWidget& panel, PanelSize size) {
    panel.setParent(&Body());
    panel.installEventFilter(this);
    panels_.push_back({&panel, size});
    panel.setVisible(panels_.size() == 1);
    Arrange();
}

void TitledScreen::ShowPanel(QWidget& panel) {
    arranging_ = true; // once, when it is done
    for (const Panel& each : panels_) {
        if (each.Widget != &panel) {
            each.Widget->hide();
        }
    }
    panel.show();
    arranging_ = false;
    Arrange();
}

void TitledScreen::SetTitleWarning(std::string_view words) {
    SetText(*titleWarning_, FromQt(WithoutMark(words)));
    titleWarning_->setVisible(!words.empty());
    Arrange();
}

int TitledScreen::PanelRoom() const {
    return BodyRoom() - 2 * Pixels(Metrics::Margin);
}

void TitledScreen::SetBelow(QWidget& widget) {
    below_ = &widget;
    widget.setParent(&Body());
    widget.installEventFilter(this);
    Arrange();
}

bool TitledScreen::ChangesArrangement(const QObject* watched, QEvent::Type event) {
    switch (event) {
    case QEvent::Resize:
        return watched == &Body();
    case QEvent::LayoutRequest:
    case QEvent::ShowToParent:
    case QEvent::HideToParent:
    case QEvent::FontChange:
    case QEvent::StyleChange:
        return true;
    default:
        return false;
    }
}

bool TitledScreen::eventFilter(QObject* watched, QEvent* event) {
    if (ChangesArrangement(watched, event->type())) {
        Guard(Words("The screen could not be arranged."), [this] { Arrange(); });
    }
    return Screen::eventFilter(watched, event);
}

const TitledScreen::Panel* TitledScreen::VisiblePanel() const {
    const auto panel = std::find_if(panels_.begin(), panels_.end(),
                                    [](const Panel& each) { return !each.Widget->isHidden(); });
    return panel == panels_.end() ? nullptr : &*panel;
}

bool TitledScreen::HasBelow() const {
    return below_ != nullptr && !below_->isHidden();
}

int TitledScreen::BelowHeight() const {
    const int gap = Pixels(Metrics::Spacing);
    return HasBelow() ? NaturalSize(*below_).height() + 2 * gap : gap;
}

TitledScreen::Places TitledScreen::PlacesOf(const Panel& panel) const {
    const int titles = TextPixels(ProductTitleAbovePanel);
    const int margin = Pixels(Metrics::Margin);
    const QSize least = NaturalSize(*panel.Widget);
    const QSize area = Body().size();
    QSize size = least;
    if (panel.Size == PanelSize::Filling) {
        size = QSize(std::max(least.width(), area.width() - 2 * margin),
                     std::max(least.height(),
                              area.height() - titles - (HasBelow() ? BelowHeight() : margin)));
    }
    const int left = (area.width() - size.width()) / 2;
    int top = (area.height() - size.height()) / 2;
    top = std::max(std::min(top, area.height() - size.height() - BelowHeight()), titles);

    Places places{QRect(QPoint(left, top), size), {}};
    if (HasBelow()) {
        const QSize below = NaturalSize(*below_);
        places.Below =
            QRect((area.width() - below.width()) / 2,
                  top + size.height() + Pixels(Metrics::Spacing), below.width(), below.height());
    }
    return places;
}

TitledScreen::Places TitledScreen::PlacesOf(const QWidget& panel) const {
    const auto found = std::find_if(panels_.begin(), panels_.end(),
                                    [&panel](const Panel& each) { return each.Widget == &panel; });
    return found == panels_.end() ? Places() : PlacesOf(*found);
}

void TitledScreen::Arrange() {
    const Panel* panel = VisiblePanel();
    if (panel == nullptr || arranging_) {
        return;
    }
    arranging_ = true;
    PlaceAround(*panel);
    arranging_ = false;
    OnArranged();
}

void TitledScreen::PlaceAround(const Panel& panel) {
    const int titles = TextPixels(ProductTitleAbovePanel);
    const QSize least = NaturalSize(*panel.Widget);
    const int belowWidth = HasBelow() ? NaturalSize(*below_).width() : 0;
    Body().setMinimumSize(std::max(least.width(), belowWidth) + 2 * Pixels(Metrics::Margin),
                          titles + least.height() + BelowHeight());
    const Places places = PlacesOf(panel);
    const int width = Body().width();
    const int top = places.Panel.top();
    panel.Widget->setGeometry(places.Panel);
    productTitle_->setGeometry(0, top - titles, width, productTitle_->sizeHint().height());
    formTitle_->setGeometry(0, top - TextPixels(FormTitleAbovePanel), width,
                            formTitle_->sizeHint().height());
    PlaceTitleWarning();
    PlaceGuideButton();
    if (HasBelow()) {
        below_->setGeometry(places.Below);
    }
}

/// In the upper corner. Where large text leaves it no room beside the product's title, that makes
/// way.
void TitledScreen::PlaceGuideButton() {
    QPushButton& guide = GuideButton();
    const int gap = Pixels(Metrics::Spacing);
    const int width = Body().width();
    guide.adjustSize();
    guide.move(width - guide.width() - gap, gap);
    const int taken = guide.width() + 2 * gap;
    if (width - productTitle_->sizeHint().width() < 2 * taken) {
        productTitle_->resize(width - taken, productTitle_->height());
    }
}

/// On the line of the title, which stays in the middle of the screen.
void TitledScreen::PlaceTitleWarning() {
    const QRect title = formTitle_->geometry();
    const QSize size = titleWarning_->sizeHint();
    const int left =
        title.center().x() + formTitle_->sizeHint().width() / 2 + Pixels(Metrics::Margin);
    titleWarning_->setGeometry(
        QRect(QPoint(left, title.bottom() - (title.height() + size.height()) / 2 + 1), size));
}

} // namespace tarn
