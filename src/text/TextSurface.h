#pragma once

#include "text/DeviceContext.h"

namespace tarn {

/// What text is written on: anything with a device context that can tell how large a text is in its
/// own font. All in the surface's own units.
class TextSurface {
  public:
    virtual ~TextSurface() = default;

    virtual DeviceContext& Context() = 0;
    virtual Double TextWidth(std::string_view text) const = 0;
    virtual Double TextHeight(std::string_view text) const = 0;
};

/// A widget in its paint event, an image, a printer's page: whatever a painter is active on. Its
/// units are the painter's, its own font the painter's font when the surface is made.
class PainterSurface : public TextSurface {
  public:
    /// `painter` must outlive the surface, and be active on its device.
    explicit PainterSurface(QPainter& painter)
        : context_(painter) {}

    DeviceContext& Context() override { return context_; }
    Double TextWidth(std::string_view text) const override;
    Double TextHeight(std::string_view text) const override;

  private:
    DeviceContext context_;
};

} // namespace tarn
