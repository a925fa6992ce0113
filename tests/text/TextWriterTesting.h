#pragma once

#include "paper/PdfTesting.h"
#include "text/TextWriter.h"

#include <QFont>
#include <QImage>
#include <QPainter>

#include <optional>

namespace tarn::testing {

inline constexpr Integer True = -1;
inline constexpr Integer False = 0;

/// A white image of 400 by 200 pixels with a surface on it.
class Canvas {
  public:
    Canvas()
        : image_(400, 200, QImage::Format_RGB32) {
        image_.fill(Qt::white);
        painter_.begin(&image_);
        QFont own(QStringLiteral("Liberation Sans"));
        own.setPixelSize(20);
        painter_.setFont(own);
        surface_.emplace(painter_);
    }

    PainterSurface& Surface() { return *surface_; }
    QPainter& Painter() { return painter_; }
    const QImage& Image() const { return image_; }
    QRect Ink() const { return InkOf(image_); }
    void Clear() {
        painter_.save();
        painter_.setClipping(false);
        painter_.fillRect(image_.rect(), Qt::white);
        painter_.restore();
    }

  private:
    QImage image_;
    QPainter painter_;
    std::optional<PainterSurface> surface_;
};

inline TextWriter Sans(Long height) {
    TextWriter writer;
    writer.Font.SetFace("Liberation Sans");
    writer.Font.Height = height;
    writer.Font.Width = 0;
    writer.Font.Weight = 400;
    return writer;
}

/// The ink of "HHH" in a font, alone on a canvas.
inline QRect InkWith(TextWriter writer, const char* text = "HHH") {
    Canvas canvas;
    writer.SelectFont(canvas.Surface());
    TextWriter::Write(canvas.Surface(), text, 50, 50);
    return canvas.Ink();
}

} // namespace tarn::testing
