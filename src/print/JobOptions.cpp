#include "print/JobOptions.h"

#include <array>

namespace tarn {

namespace {

/// Options that turn, resize or mirror pages or leave some out.
constexpr std::array PageOptions{
    "number-up", "orientation-requested", "landscape", "fit-to-page", "fitplot", "scaling",
    "mirror",    "page-ranges",           "page-set"};
/// Options that ask for the size of the paper as drivers call it. They outdo "media".
constexpr std::array SizeOptions{"PageSize", "PageRegion"};

std::string DefaultOf(const char* option) {
    return option + std::string("-default");
}

} // namespace

std::vector<std::string> JobDefaults() {
    std::vector<std::string> names{"media-default", "media-col-database"};
    for (const char* option : SizeOptions) {
        names.push_back(DefaultOf(option));
    }
    return names;
}

QueueOptions JobOptions(QueueOptions chosen, const QueueMedia& media) {
    QueueOptions options = std::move(chosen);
    for (const char* option : PageOptions) {
        options.erase(option);
    }
    for (const char* option : SizeOptions) {
        options.erase(option);
    }
    if (!media.Media.empty()) {
        options["media"] = media.Media;
    }
    options["print-scaling"] = "none";
    return options;
}

} // namespace tarn
