#pragma once

// The pages of the guide (docs/guide.md) that screens open: each is a heading of it, named as on
// the web, by its words in small letters with hyphens between them.

#include <string_view>

namespace tarn::GuidePages {

inline constexpr std::string_view beginning = "guide-from-an-empty-project-to-a-cut-list";
inline constexpr std::string_view projects = "projects";
inline constexpr std::string_view menu = "the-menu";
inline constexpr std::string_view rooms = "the-rooms";
inline constexpr std::string_view report = "the-report";
inline constexpr std::string_view choices = "the-choices";
inline constexpr std::string_view options = "the-options";
inline constexpr std::string_view result = "the-result";
inline constexpr std::string_view improving = "a-shorter-layout";
inline constexpr std::string_view order = "the-order";

} // namespace tarn::GuidePages
