// What text is written on: a painter with a font, a colour and an alignment.

#pragma once

#include "base/Types.h"
#include "text/LogicalFont.h"

#include <QFont>
#include <QRectF>

#include <memory>
#include <string>
#include <string_view>

class QPaintDevice;
class QPainter;

namespace tarn {

/// A font that can be drawn with: a face, how far its letters are stretched, and the direction of
/// the line.
class DeviceFont {
  public:
    /// A surface's own font.
    DeviceFont(const QFont& font, const QPaintDevice& device);
    /// The font of a record for `device`. `own` is the own font of the surface there. Letters of
    /// more than 32767 units, in height or as the width asked for, are not drawn.
    DeviceFont(const FontRecord& record, const DeviceFont& own, const QPaintDevice& device);

    /// The width of a text on `device`, which may be another one than the font was made for: a font
    /// can outlive its surface.
    double Advance(const QString& text, const QPaintDevice& device) const;
    double Ascent() const { return ascent_; }
    double Descent() const { return descent_; }
    /// Draw with the line's beginning at (0, 0) of the painter, its letters standing on that line.
    void Draw(QPainter& painter, const QString& text) const;
    /// Degrees, counter-clockwise.
    double Direction() const { return direction_; }

  private:
    QFont font_;
    bool drawable_ = true;
    double scaleX_ = 1;
    double scaleY_ = 1;
    double ascent_ = 0;
    double descent_ = 0;
    double direction_ = 0;
};

using FontHandle = std::shared_ptr<const DeviceFont>;

/// How a text lies at its position.
struct TextAlignment {
    enum class Vertical { Top, Baseline, Bottom };
    enum class Horizontal { Left, Center, Right };

    Vertical Down = Vertical::Top;
    Horizontal Across = Horizontal::Left;

    bool operator==(const TextAlignment&) const = default;
};

/// The state of a surface for text: font, alignment, colour and clip. Positions are in the units of
/// its painter. Nothing fails here: what cannot be drawn is not drawn.
class DeviceContext {
  public:
    /// Draws with `painter`, which must outlive it; its font is the surface's own.
    explicit DeviceContext(QPainter& painter);

    const DeviceFont& OwnFont() const { return *ownFont_; }
    /// The width of a text in the surface's own font.
    double OwnAdvance(std::string_view text) const;
    /// The font of a description for this surface. For a face that is not there the system takes
    /// another.
    FontHandle CreateFont(const LogicalFont& description) const;
    /// Draw with `font` from now on; what was drawn with before. Nothing changes without a font.
    FontHandle SelectFont(FontHandle font);
    TextAlignment Alignment() const { return alignment_; }
    void SetAlignment(TextAlignment alignment) { alignment_ = alignment; }
    /// Red + 256 × green + 65536 × blue; what lies above is ignored.
    void SetColor(Long color) { color_ = color; }
    /// Draw only inside `region` from now on, whatever clip there was.
    void ClipTo(const QRectF& region);
    void Write(Long x, Long y, std::string_view text);

  private:
    QPainter& painter_;
    FontHandle ownFont_;
    FontHandle font_;
    TextAlignment alignment_;
    Long color_ = 0;
};

} // namespace tarn
