#include "paper/QueueMedia.h"

#include "paper/IppAttributes.h"

#include <algorithm>
#include <cstdlib>
#include <cups/pwg.h>
#include <sstream>

namespace tarn {

namespace {

/// A sheet as a queue describes it, held upright; hundredths of a millimetre.
struct Sheet {
    int Width = 0;
    int Length = 0;
    int ShortEdgeMargin = 0; ///< the larger one of both
    int LongEdgeMargin = 0;
};

Double TwipsOf(int hundredths) {
    constexpr Double HundredthsPerInch = 2540;
    return hundredths * TwipsPerInch / HundredthsPerInch;
}

/// The sheet turned a quarter. Drivers turn it either way, so that both edges of a pair keep the
/// larger margin.
Paper LandscapeOf(const Sheet& sheet) {
    Paper paper;
    paper.Size = {TwipsOf(std::max(sheet.Width, sheet.Length)),
                  TwipsOf(std::min(sheet.Width, sheet.Length))};
    paper.Left = paper.Right = std::max(Paper::LeastMargin, TwipsOf(sheet.ShortEdgeMargin));
    paper.Top = paper.Bottom = std::max(Paper::LeastMargin, TwipsOf(sheet.LongEdgeMargin));
    return paper;
}

/// The size with that name, as standards or drivers call it; none for a roll without an end.
const pwg_media_t* SizeNamed(const std::string& name) {
    if (name.empty()) {
        return nullptr;
    }
    const pwg_media_t* known = pwgMediaForPWG(name.c_str());
    known = known == nullptr ? pwgMediaForPPD(name.c_str()) : known;
    return known != nullptr && known->width > 0 && known->length > 0 ? known : nullptr;
}

/// What the queue has of that size, with the largest margins that it lists for it; the size alone
/// when it has none.
Sheet SheetOf(ipp_t* queue, const pwg_media_t& size) {
    constexpr int Tolerance = 176; // five points, as CUPS has it
    Sheet sheet{size.width, size.length, 0, 0};
    ipp_attribute_t* list = ippFindAttribute(queue, "media-col-database", IPP_TAG_BEGIN_COLLECTION);
    for (int i = 0; list != nullptr && i < ippGetCount(list); ++i) {
        ipp_t* entry = ippGetCollection(list, i);
        ipp_attribute_t* sizes = ippFindAttribute(entry, "media-size", IPP_TAG_BEGIN_COLLECTION);
        if (sizes == nullptr) {
            continue;
        }
        const int width = NumberIn(ippGetCollection(sizes, 0), "x-dimension");
        const int length = NumberIn(ippGetCollection(sizes, 0), "y-dimension");
        if (std::abs(width - size.width) > Tolerance ||
            std::abs(length - size.length) > Tolerance) {
            continue;
        }
        sheet.Width = width;
        sheet.Length = length;
        sheet.ShortEdgeMargin =
            std::max({sheet.ShortEdgeMargin, NumberIn(entry, "media-top-margin"),
                      NumberIn(entry, "media-bottom-margin")});
        sheet.LongEdgeMargin = std::max({sheet.LongEdgeMargin, NumberIn(entry, "media-left-margin"),
                                         NumberIn(entry, "media-right-margin")});
    }
    return sheet;
}

std::string ValueOf(const QueueOptions& options, const char* name) {
    const auto found = options.find(name);
    return found == options.end() ? std::string() : found->second;
}

} // namespace

QueueMedia MediaOf(ipp_t* queue, const QueueOptions& chosen) {
    const pwg_media_t* size = nullptr;
    std::string others; // such as a tray, each behind a comma
    std::istringstream parts(ValueOf(chosen, "media"));
    for (std::string part; std::getline(parts, part, ',');) {
        const pwg_media_t* named = size == nullptr ? SizeNamed(part) : nullptr;
        if (named != nullptr) {
            size = named;
        } else if (!part.empty()) {
            others += "," + part;
        }
    }
    for (const std::string& name :
         {ValueOf(chosen, "PageSize"), TextIn(queue, "PageSize-default"),
          TextIn(queue, "PageRegion-default"), TextIn(queue, "media-default")}) {
        size = size == nullptr ? SizeNamed(name) : size;
    }
    if (size == nullptr) {
        return {{}, others.empty() ? others : others.substr(1), {}};
    }
    return {LandscapeOf(SheetOf(queue, *size)), size->pwg + others,
            size->ppd == nullptr ? std::string() : size->ppd};
}

} // namespace tarn
