#include "paper/JobOptions.h"

#include "paper/IppAttributes.h"

#include <array>

namespace tarn {

namespace {

/// An option that turns, resizes or mirrors pages or leaves some out, and its value that does not.
struct PageOption {
    const char* Name;
    const char* Neutral;
};
constexpr PageOption PageOptions[] = {
    {"number-up", "1"},
    {"orientation-requested", "7"}, // none: as the document has it
    {"landscape", "false"},
    {"fit-to-page", "false"},
    {"fitplot", "false"},
    {"scaling", "100"},
    {"natural-scaling", "100"},
    {"mirror", "false"},
    {"page-ranges", "1-2147483647"},
    {"page-set", "all"},
    {"booklet", "off"},
};
/// Options that ask for the size of the paper as drivers call it. They outdo "media".
constexpr std::array SizeOptions{"PageSize", "PageRegion"};

std::string DefaultOf(const char* option) {
    return option + std::string("-default");
}

} // namespace

std::vector<std::string> JobDefaults() {
    std::vector<std::string> names{"media-default", "media-col-database"};
    for (const PageOption& option : PageOptions) {
        names.push_back(DefaultOf(option.Name));
    }
    for (const char* option : SizeOptions) {
        names.push_back(DefaultOf(option));
    }
    return names;
}

QueueOptions JobOptions(ipp_t* queue, QueueOptions chosen, const QueueMedia& media) {
    QueueOptions options = std::move(chosen);
    for (const PageOption& option : PageOptions) {
        const std::string own = ValueIn(queue, DefaultOf(option.Name));
        if (own.empty() || own == option.Neutral) {
            options.erase(option.Name);
        } else {
            options[option.Name] = option.Neutral;
        }
    }
    for (const char* option : SizeOptions) {
        if (media.Size.empty() || ValueIn(queue, DefaultOf(option)).empty()) {
            options.erase(option);
        } else {
            options[option] = media.Size;
        }
    }
    if (!media.Media.empty()) {
        options["media"] = media.Media;
    }
    options["print-scaling"] = "none";
    return options;
}

} // namespace tarn
