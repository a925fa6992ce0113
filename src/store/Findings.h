// What was found, or done, in many places, told by kinds: a line for each, however many there are.

#pragma once

#include <cstddef>
#include <string>
#include <unordered_map>
#include <vector>

namespace tarn {

/// Sentences, and kinds of findings with the places of each, in the order in which they came.
class Findings {
  public:
    /// Keeps at most `most` places of each kind; the others are counted.
    explicit Findings(std::size_t most)
        : most_(most) {}

    /// Add a sentence of its own.
    void Tell(const std::string& sentence);
    /// Add a place to those of a kind: "Rooms without a sheet", "5 under the number 3".
    void Add(const std::string& kind, const std::string& place);

    /// A line for each sentence and kind: "Rooms without a sheet: 5 under the number 3; and 7
    /// more."
    std::vector<std::string> Lines() const;
    /// A line for each sentence and place: "Rooms without a sheet: 5 under the number 3."
    std::vector<std::string> LineOfEach() const;

  private:
    struct Kind {
        std::string Text;
        std::vector<std::string> Places; ///< none for a sentence
        std::size_t Count = 0;
    };

    std::size_t most_;
    std::vector<Kind> kinds_;
    std::unordered_map<std::string, std::size_t> indexes_;
};

} // namespace tarn
