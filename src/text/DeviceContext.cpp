#include "text/DeviceContext.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace tarn {

namespace {

constexpr int MeasuredSize = 1000;    ///< large enough for no rounding to matter
constexpr double LargestSize = 32767; ///< in either direction: beyond, outlines get lost

QString ToQt(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QFont FontOf(const FontRecord& record) {
    constexpr Long Regular = 400;
    constexpr Long Heaviest = 1000;
    QFont font;
    font.setFamilies({ToQt(FaceIn(record.FaceName))}); // one name, commas and all
    font.setPixelSize(MeasuredSize);
    font.setWeight(static_cast<QFont::Weight>(
        record.Weight == 0 ? Regular : std::clamp(record.Weight, Long{1}, Heaviest)));
    font.setItalic(record.Italic != 0);
    font.setUnderline(record.UnderLine != 0);
    font.setStrikeOut(record.StrikeOut != 0);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

QColor ColorOf(Long color) {
    const auto channel = [color](unsigned shift) {
        return static_cast<int>((static_cast<std::uint32_t>(color) >> shift) & 0xFFU);
    };
    return {channel(0), channel(8), channel(16)};
}

} // namespace

DeviceFont::DeviceFont(const QFont& font, const QPaintDevice& device)
    : font_(font) {
    const QFontMetricsF metrics(font, &device);
    ascent_ = metrics.ascent();
    descent_ = metrics.descent();
}

DeviceFont::DeviceFont(const FontRecord& record, const DeviceFont& own, const QPaintDevice& device)
    : font_(FontOf(record))
    , direction_(record.Escapement / 10.0) {
    const QFontMetricsF measured(font_, &device);
    const double cell = measured.ascent() + measured.descent();
    double size = std::abs(static_cast<double>(record.Height)); // of the letters
    if (record.Height >= 0) {
        const double height = record.Height > 0 ? size : own.ascent_ + own.descent_;
        size = height * MeasuredSize / cell;
    }
    const double width = std::abs(static_cast<double>(record.Width));
    drawable_ = size <= LargestSize && width <= LargestSize;
    if (!drawable_) {
        return;
    }
    // The nearest whole size, stretched by what is left.
    const int whole = std::max(1, static_cast<int>(std::lround(size)));
    font_.setPixelSize(whole);
    scaleY_ = size / whole;
    const double average = measured.averageCharWidth() * size / MeasuredSize;
    scaleX_ = width > 0 && average > 0 ? scaleY_ * width / average : scaleY_;
    ascent_ = measured.ascent() * size / MeasuredSize;
    descent_ = measured.descent() * size / MeasuredSize;
}

double DeviceFont::Advance(const QString& text, const QPaintDevice& device) const {
    return QFontMetricsF(font_, &device).horizontalAdvance(text) * scaleX_;
}

void DeviceFont::Draw(QPainter& painter, const QString& text) const {
    if (!drawable_) {
        return;
    }
    painter.setFont(font_);
    painter.scale(scaleX_, scaleY_);
    painter.drawText(QPointF(), text);
}

DeviceContext::DeviceContext(QPainter& painter)
    : painter_(painter)
    , ownFont_(std::make_shared<DeviceFont>(painter.font(), *painter.device()))
    , font_(ownFont_) {}

double DeviceContext::OwnAdvance(std::string_view text) const {
    return ownFont_->Advance(ToQt(text), *painter_.device());
}

FontHandle DeviceContext::CreateFont(const LogicalFont& description) const {
    return std::make_shared<DeviceFont>(DecodeFont(description), *ownFont_, *painter_.device());
}

FontHandle DeviceContext::SelectFont(FontHandle font) {
    if (!font) {
        return nullptr;
    }
    std::swap(font, font_);
    return font;
}

void DeviceContext::ClipTo(const QRectF& region) {
    painter_.setClipRect(region, Qt::ReplaceClip);
}

void DeviceContext::Write(Long x, Long y, std::string_view text) {
    const QString line = ToQt(text);
    const double advance = font_->Advance(line, *painter_.device());
    using Horizontal = TextAlignment::Horizontal;
    using Vertical = TextAlignment::Vertical;
    const double left = alignment_.Across == Horizontal::Center  ? -advance / 2
                        : alignment_.Across == Horizontal::Right ? -advance
                                                                 : 0;
    const double down = alignment_.Down == Vertical::Baseline ? 0
                        : alignment_.Down == Vertical::Bottom ? -font_->Descent()
                                                              : font_->Ascent();
    painter_.save();
    painter_.setPen(ColorOf(color_));
    painter_.translate(x, y);
    painter_.rotate(-font_->Direction());
    painter_.translate(left, down);
    font_->Draw(painter_, line);
    painter_.restore();
}

} // namespace tarn
