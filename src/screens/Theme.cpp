#include "screens/Theme.h"

#include "screens/ControlNames.h"
#include "screens/Display.h"
#include "screens/IndicatorStyle.h"

#include <QApplication>
#include <QEvent>
#include <QFontInfo>
#include <QPalette>
#include <QStyle>
#include <QVariant>
#include <QWidget>

#include <algorithm>
#include <array>
#include <utility>

namespace tarn {

namespace {

constexpr const char* RoleProperty = "textRole";
constexpr const char* PrimaryProperty = "primary";
constexpr const char* MarkedProperty = "marked";

bool IsDark() {
    const QPalette palette = QGuiApplication::palette();
    return palette.color(QPalette::Window).lightness() <
           palette.color(QPalette::WindowText).lightness();
}

void SetStyled(QWidget& widget, const char* property, const QVariant& value) {
    widget.setProperty(property, value);
    widget.style()->unpolish(&widget);
    widget.style()->polish(&widget);
}

// @NAME stands for a colour or a type size, a number before tw for twips, before tx for twips that
// grow with the text, %NAME% for a control.
constexpr const char* SheetTemplate = R"(
QWidget { font-size: @BaseFontpt; color: @Text; }
QWidget#%Window%, QWidget#%Body%, QDialog { background: @Window; }
QMenuBar { background: @Surface; color: @Text; border-bottom: 1px solid @Border; }
QMenuBar::item { padding: 60tw 150tw; background: transparent; }
QMenuBar::item:selected, QMenu::item:selected { background: @Accent; color: @AccentText; }
QMenu { background: @Surface; color: @Text; border: 1px solid @Border; }
QMenu::item { padding: 75tw 360tw; }
QMenu::item:disabled { color: @Disabled; }
QMenu::separator { height: 1px; background: @Border; margin: 60tw 120tw; }

QLabel { background: transparent; }
QLabel[textRole="Heading"] { font-size: @HeadingFontpt; font-weight: 600; }
QLabel[textRole="FormTitle"] { font-size: @FormTitleFontpt; color: @Muted; }
QLabel[textRole="ProductTitle"] { font-size: @ProductTitleFontpt; font-weight: 600; color: @Accent; }
QLabel[textRole="Hint"] { color: @Muted; }
QLabel[textRole="Warning"] { color: @Warning; font-weight: 600; }
QLabel:disabled { color: @Disabled; }

QFrame[panel="true"] { background: @Surface; border: 1px solid @Border; border-radius: 90tw; }
QGroupBox { background: @Surface; border: 1px solid @Border; border-radius: 90tw;
    margin-top: 165tx; padding-top: 165tx; font-weight: 600; color: @Muted; }
QGroupBox::title { subcontrol-origin: margin; subcontrol-position: top left; left: 150tw;
    padding: 0 75tw; background: @Surface; }
QGroupBox[panel="true"] { margin-top: 0; padding-top: 405tx; }
QGroupBox[panel="true"]::title { subcontrol-origin: border; top: 135tx; }

QPushButton { background: @Field; border: 2px solid @ControlBorder; border-radius: 75tw;
    padding: 45tw 210tw; min-height: 345tx; }
QPushButton[textRole="Warning"] { color: @Warning; font-weight: 600; }
QPushButton[textRole="Hint"] { background: transparent; color: @Muted; padding: 0 90tw;
    border-color: transparent; min-height: 0; }
QPushButton:hover { background: @Window; }
QPushButton[textRole="Hint"]:hover { border-color: @Border; color: @Text; }
QPushButton[textRole="Hint"]:disabled { background: transparent; border-color: transparent; }
QPushButton:pressed { background: @Border; color: @Text; }
QPushButton:disabled { color: @Disabled; background: @Surface; border-color: @Border; }
QPushButton[primary="true"] { background: @Accent; color: @AccentText; border-color: @Accent;
    font-weight: 600; }
QPushButton[primary="true"]:hover { background: @Accent; }
QPushButton[primary="true"]:disabled { background: @Surface; color: @Disabled;
    border-color: @Border; }
QPushButton:focus { border-color: @Accent; outline: none; }
QPushButton[primary="true"]:focus { border-color: @Text; outline: 1px solid @AccentText;
    outline-radius: 60tw; }

QLineEdit, QComboBox, QPlainTextEdit, QTextBrowser, QListWidget, #%RollList% {
    background: @Field; color: @Text; border: 2px solid @ControlBorder; border-radius: 60tw;
    selection-background-color: @Accent; selection-color: @AccentText; }
QLineEdit, QComboBox { padding: 30tw 90tw; min-height: 345tx; }
QLineEdit:focus, QComboBox:focus, QPlainTextEdit:focus, QTextBrowser:focus, QListWidget:focus,
    #%RollList%:focus { border-color: @Accent; }
QLineEdit:disabled, QComboBox:disabled { color: @Disabled; background: @Surface;
    border-color: @Border; }
QPlainTextEdit { font-size: @ListingFontpt; }
QComboBox::drop-down { border: none; width: 360tx; }
QComboBox::down-arrow { width: 0; height: 0; border-top: 90tx solid @Muted;
    border-left: 75tx solid @Field; border-right: 75tx solid @Field; }
QLineEdit:read-only { background: @Window; color: @Muted; }
QListWidget::item, #%RollList%::item { padding: 15tw 75tw; border: none; color: @Text; }
QListWidget::item:selected, #%RollList%::item:selected { background: @Accent; color: @AccentText; }
QComboBox QAbstractItemView { background: @Field; color: @Text;
    selection-background-color: @Accent; selection-color: @AccentText; }

QTabBar::tab { background: @Surface; color: @Text; border: 2px solid @ControlBorder;
    padding: 45tw 150tw; margin-left: -2px; }
QTabBar::tab:first { margin-left: 0; }
QTabBar::tab:selected { background: @Accent; color: @AccentText; border-color: @Accent;
    font-weight: 600; }
QTabBar::tab:selected:focus { border-color: @Text; }

QTableView { background: @Field; color: @Text; border: 2px solid @ControlBorder; border-radius: 60tw;
    outline: none; selection-background-color: @Accent; selection-color: @AccentText; }
QTableView:focus { border-color: @Accent; }
QTableView::item { padding: 0 30tw; border: none; }
QTableView::item:selected { background: @Accent; color: @AccentText; }
QTableView QHeaderView { background: @Surface; border: none; }
QTableView QHeaderView::section { background: @Surface; color: @Muted; border: none;
    border-bottom: 1px solid @Border; padding: 45tw 75tw; font-size: @ListingFontpt; }

QRadioButton, QCheckBox { border: 2px solid transparent;
    border-radius: 60tw; padding: 15tw 45tw; spacing: 120tw; min-height: 330tx; }
QRadioButton:focus, QCheckBox:focus { border-color: @Accent; }
QRadioButton[marked="true"], QCheckBox[marked="true"] { color: @Green; }
QRadioButton:disabled, QCheckBox:disabled { color: @Disabled; }

QProgressBar { background: @Field; border: 1px solid @ControlBorder; border-radius: 60tw;
    min-height: 240tx; text-align: center; }
QProgressBar::chunk { background: @Accent; border-radius: 45tw; }
QToolTip { background: @Surface; color: @Text; border: 1px solid @Border; padding: 45tw; }
QScrollBar { background: @Surface; border: none; margin: 0; }
QScrollBar:vertical { width: 210tw; }
QScrollBar:horizontal { height: 210tw; }
QScrollBar::handle { background: @ControlBorder; border-radius: 60tw; margin: 30tw; }
QScrollBar::handle:hover { background: @Muted; }
QScrollBar::handle:vertical { min-height: 450tw; }
QScrollBar::handle:horizontal { min-width: 450tw; }
QScrollBar::add-line, QScrollBar::sub-line { width: 0; height: 0; }
QScrollBar::add-page, QScrollBar::sub-page { background: none; }
#%Picture% { background: white; border: 2px solid @ControlBorder; }
#%RollView% { background: @Field; border: 2px solid @ControlBorder; }
#%Picture%:focus, #%RollView%:focus { border-color: @Accent; }
QScrollArea { border: none; background: @Window; }
)";

/// Replace every number before "tw" or "tx" by pixels.
QString WithPixels(const QString& sheet) {
    QString result;
    QString number;
    for (qsizetype i = 0; i < sheet.size(); ++i) {
        if (sheet[i].isDigit()) {
            number += sheet[i];
        } else if (const QString unit = sheet.mid(i, 2);
                   !number.isEmpty() &&
                   (unit == QLatin1String("tw") || unit == QLatin1String("tx"))) {
            const double twips = number.toDouble();
            const bool grows = unit == QLatin1String("tx");
            result +=
                QString::number(grows ? TextPixels(twips) : Pixels(twips)) + QLatin1String("px");
            number.clear();
            ++i;
        } else {
            result += number + sheet[i];
            number.clear();
        }
    }
    return result;
}

QString StyleSheet(const Colours& colours) {
    QString sheet = QString::fromLatin1(SheetTemplate);
    // A name that begins with another one stands before it.
    const std::array<std::pair<const char*, QColor>, 12> names{
        {{"@Window", colours.Window},
         {"@Surface", colours.Surface},
         {"@Field", colours.Field},
         {"@Text", colours.Text},
         {"@Muted", colours.MutedText},
         {"@Disabled", colours.DisabledText},
         {"@Border", colours.Border},
         {"@ControlBorder", colours.ControlBorder},
         {"@AccentText", colours.AccentText},
         {"@Accent", colours.Accent},
         {"@Green", colours.Green},
         {"@Warning", colours.Warning}}};
    for (const auto& [name, colour] : names) {
        sheet.replace(QLatin1String(name), colour.name());
    }
    const std::array<std::pair<const char*, double>, 5> sizes{
        {{"@BaseFont", Metrics::BaseFont},
         {"@ListingFont", Metrics::ListingFont},
         {"@HeadingFont", Metrics::HeadingFont},
         {"@FormTitleFont", Metrics::FormTitleFont},
         {"@ProductTitleFont", Metrics::ProductTitleFont}}};
    for (const auto& [name, size] : sizes) {
        sheet.replace(QLatin1String(name), QString::number(size * TextScale()));
    }
    const std::array<std::pair<const char*, const char*>, 5> controls{
        {{"%Window%", Controls::window},
         {"%Body%", Controls::body},
         {"%Picture%", Controls::layoutPicture},
         {"%RollView%", Controls::rollView},
         {"%RollList%", Controls::rollList}}};
    sheet = WithPixels(sheet);
    for (const auto& [name, control] : controls) {
        sheet.replace(QLatin1String(name), QLatin1String(control));
    }
    return sheet;
}

const char* RoleName(TextRole role) {
    switch (role) {
    case TextRole::Label:
        return "Label";
    case TextRole::Heading:
        return "Heading";
    case TextRole::FormTitle:
        return "FormTitle";
    case TextRole::ProductTitle:
        return "ProductTitle";
    case TextRole::Hint:
        return "Hint";
    case TextRole::Warning:
        return "Warning";
    }
    return "";
}

} // namespace

const Colours& LightColours() {
    static const Colours colours{0xECF0EF, 0xFAFBFB, 0xFFFFFF, 0x17242A, 0x4A5A60, 0x7C898D,
                                 0xB4C0C1, 0x76858A, 0x17655F, 0xFFFFFF, 0x1B6E2F, 0x9A3412};
    return colours;
}

const Colours& DarkColours() {
    static const Colours colours{0x161C1F, 0x20282B, 0x12181A, 0xECF1F1, 0xB2BFC1, 0x7A878A,
                                 0x4A5A5F, 0x6E7F85, 0x5CC4B6, 0x0A1615, 0x86D993, 0xF5A97A};
    return colours;
}

void SetRole(QWidget& widget, TextRole role) {
    SetStyled(widget, RoleProperty, QString::fromLatin1(RoleName(role)));
}

void SetPanel(QWidget& frame) {
    SetStyled(frame, "panel", true);
}

void SetPrimary(QWidget& button) {
    SetStyled(button, PrimaryProperty, true);
}

void SetMarked(QWidget& option, bool marked) {
    SetStyled(option, MarkedProperty, marked);
}

bool IsMarked(const QWidget& option) {
    return option.property(MarkedProperty).toBool();
}

const Colours& CurrentColours() {
    return IsDark() ? DarkColours() : LightColours();
}

double TextScale() {
    constexpr double Most = 3;
    const QFont font = QGuiApplication::font();
    const double points = font.pointSizeF() > 0
                              ? font.pointSizeF()
                              : QFontInfo(font).pointSizeF(); // one that is given in pixels
    return std::clamp(points / Metrics::BaseFont, 1.0, Most);
}

int TextPixels(double twips) {
    return Pixels(twips * TextScale());
}

Theme::Theme(QApplication& application)
    : application_(application) {
    QApplication::setStyle(new IndicatorStyle);
    Apply();
    application_.installEventFilter(this);
}

void Theme::Apply() {
    const bool dark = IsDark();
    const double scale = TextScale();
    if (dark == dark_ && scale == scale_) {
        return;
    }
    dark_ = dark;
    scale_ = scale;
    application_.setStyleSheet(StyleSheet(CurrentColours()));
}

bool Theme::eventFilter(QObject* watched, QEvent* event) {
    if (watched == &application_ && (event->type() == QEvent::ApplicationPaletteChange ||
                                     event->type() == QEvent::ApplicationFontChange)) {
        Apply();
    }
    return QObject::eventFilter(watched, event);
}

} // namespace tarn
