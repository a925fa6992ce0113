#pragma once

#include "screens/Screen.h"

#include <QEvent>
#include <QRect>

#include <string_view>
#include <vector>

class QLabel;

namespace tarn {

/// A screen with the product's title, a title of its own and panels of which one shows at a time.
/// The panel is centred; the titles stand at fixed distances above it, and what belongs below it
/// under it. Where that does not fit, the panel moves down or the body grows and scrolls, so that
/// nothing runs into anything.
class TitledScreen : public Screen {
  public:
    /// `formTitle` stands between asterisks; the window's caption is what is between them.
    TitledScreen(Session& session, QAnyStringView name, std::string_view formTitle);

    bool eventFilter(QObject* watched, QEvent* event) override;

  protected:
    /// Have these words stand beside the title, in the colour of a warning; empty for none.
    void SetTitleWarning(std::string_view words);

    enum class PanelSize {
        Natural, ///< as large as its content asks for
        Filling, ///< as much of the screen as the titles leave
    };
    /// Make `panel` one of the panels. The first one shows.
    void AddPanel(QWidget& panel, PanelSize size = PanelSize::Natural);
    /// Show that panel and hide the others.
    void ShowPanel(QWidget& panel);
    /// How wide a panel may be, pixels; see BodyRoom.
    int PanelRoom() const;
    /// What stands below the panel, on every panel while it is not hidden.
    void SetBelow(QWidget& widget);

    /// Where a panel stands on the body, and what is below it, also while another one shows.
    struct Places {
        QRect Panel;
        QRect Below; ///< empty for nothing
    };
    Places PlacesOf(const QWidget& panel) const;
    /// Called when panel, titles and what is below have got their places: what stands beside them
    /// can be given its own.
    virtual void OnArranged() {}

  private:
    struct Panel {
        QWidget* Widget;
        PanelSize Size;
    };
    bool ChangesArrangement(const QObject* watched, QEvent::Type event);
    void Arrange();
    void PlaceAround(const Panel& panel);
    void PlaceGuideButton();
    void PlaceTitleWarning();
    bool HasBelow() const;
    /// The height that the panel leaves to what is below it.
    int BelowHeight() const;
    Places PlacesOf(const Panel& panel) const;
    const Panel* VisiblePanel() const;

    QLabel* productTitle_ = nullptr;
    QLabel* formTitle_ = nullptr;
    QLabel* titleWarning_ = nullptr;
    std::vector<Panel> panels_;
    QWidget* below_ = nullptr;
    bool arranging_ = false;
};

/// How far the titles stand above the visible panel, twips; farther where the text is
/// larger than usual.
inline constexpr double ProductTitleAbovePanel = 1700;
inline constexpr double FormTitleAbovePanel = 800;

} // namespace tarn
