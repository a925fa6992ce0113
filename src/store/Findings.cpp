#include "store/Findings.h"

#include "base/Words.h"

namespace tarn {

void Findings::Tell(const std::string& sentence) {
    kinds_.push_back({sentence, {}, 0});
}

void Findings::Add(const std::string& kind, const std::string& place) {
    const auto [known, isNew] = indexes_.try_emplace(kind, kinds_.size());
    if (isNew) {
        kinds_.push_back({kind, {}, 0});
    }
    Kind& found = kinds_.at(known->second);
    ++found.Count;
    if (found.Places.size() < most_) {
        found.Places.push_back(place);
    }
}

std::vector<std::string> Findings::Lines() const {
    std::vector<std::string> lines;
    for (const Kind& kind : kinds_) {
        std::string line = kind.Text;
        for (std::size_t i = 0; i < kind.Places.size(); ++i) {
            line += (i == 0 ? ": " : "; ") + kind.Places.at(i);
        }
        if (kind.Count > kind.Places.size()) {
            line = Words("%1; and %2 more", line, std::to_string(kind.Count - kind.Places.size()));
        }
        lines.push_back(line + (kind.Places.empty() ? "" : "."));
    }
    return lines;
}

std::vector<std::string> Findings::LineOfEach() const {
    std::vector<std::string> lines;
    for (const Kind& kind : kinds_) {
        for (const std::string& place : kind.Places) {
            lines.push_back(kind.Text + ": " + place + ".");
        }
        if (kind.Count == 0) {
            lines.push_back(kind.Text);
        } else if (kind.Count > kind.Places.size()) {
            lines.push_back(
                Words("%1: %2 more.", kind.Text, std::to_string(kind.Count - kind.Places.size())));
        }
    }
    return lines;
}

} // namespace tarn
