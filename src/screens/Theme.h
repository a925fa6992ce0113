#pragma once

// The looks of all screens: colours, sizes, and the roles of texts and panels.

#include <QColor>
#include <QObject>
#include <QString>

class QApplication;
class QWidget;

namespace tarn {

/// The program's colours, for light or dark surroundings. Text stands out from Window and Surface
/// by a contrast of at least 7, every other text colour by at least 4.5; ControlBorder and Accent
/// by at least 3 from all of them. DisabledText, which needs no contrast, still has 3.
struct Colours {
    QColor Window;        ///< behind everything
    QColor Surface;       ///< panels
    QColor Field;         ///< what is typed or chosen in
    QColor Text;          ///< what is read
    QColor MutedText;     ///< labels and hints
    QColor DisabledText;  ///< controls that cannot be used
    QColor Border;        ///< around panels and what cannot be used
    QColor ControlBorder; ///< around what is typed in, chosen from or pressed
    QColor Accent;        ///< the main button, the selection, the focus ring
    QColor AccentText;    ///< on Accent
    QColor Green;         ///< marked options
    QColor Warning;       ///< what the user should notice
};

const Colours& LightColours();
const Colours& DarkColours();

/// Sizes that every screen shares, twips; type sizes in points.
struct Metrics {
    static constexpr double Spacing = 120;      ///< between controls
    static constexpr double Margin = 240;       ///< inside panels
    static constexpr double ButtonWidth = 1800; ///< at least
    static constexpr double CellPadding = 90;   ///< of tables, on each side
    static constexpr double RowPadding = 75;    ///< of tables, above and below together
    static constexpr double BaseFont = 11;
    static constexpr double ListingFont = 10; ///< fixed pitch
    static constexpr double HeadingFont = 13;
    static constexpr double FormTitleFont = 14;
    static constexpr double ProductTitleFont = 24;
};

/// How large text is, beside the sizes in Metrics: they hold while the system's own text has
/// BaseFont or less, and grow with it beyond.
double TextScale();
/// Pixels of a length in twips that holds text and grows with it.
int TextPixels(double twips);

/// What a label is, for its type size and colour.
enum class TextRole { Label, Heading, FormTitle, ProductTitle, Hint, Warning };

/// Give a widget the looks of a role.
void SetRole(QWidget& widget, TextRole role);
/// Give a frame or a group box the looks of a panel.
void SetPanel(QWidget& frame);
/// Mark the button that a screen is mostly used for.
void SetPrimary(QWidget& button);
/// Mark an option on a panel: its text is green then. A disabled one keeps its disabled colour.
void SetMarked(QWidget& option, bool marked);
bool IsMarked(const QWidget& option);

/// The colours in force: dark when the system's palette is dark.
const Colours& CurrentColours();

/// Dresses the application, and again whenever the system changes between light and dark, or
/// the size of its text.
class Theme : public QObject {
  public:
    explicit Theme(QApplication& application);

    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void Apply();

    QApplication& application_;
    bool dark_ = false;
    double scale_ = 0; ///< none yet
};

} // namespace tarn
