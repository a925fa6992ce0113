// The man pages of the programs, and of the formats of their files.

#pragma once

#include "tools/reference/OptionTable.h"

#include <string>
#include <string_view>
#include <vector>

namespace tarn {

/// What stands at the foot of every page.
struct ManFoot {
    std::string Version;
    std::string Day; ///< of the version: "2026-01-31"
};

/// The page in section 1 of one of `programs`; the others are named as what to see, too.
std::string ManPage(const ProgramTable& program, const std::vector<ProgramTable>& programs,
                    const ManFoot& foot);

/// The page in section 5 called `name` of a text in Markdown, whose first line is its heading "# "
/// with what it is about. Knows headings, paragraphs, lists, tables and blocks of code; in lines
/// code, stress and links. Raises std::runtime_error for a text without such a heading.
std::string ManPageOfText(const std::string& name, const std::string& markdown,
                          const ManFoot& foot);

/// Text for a line of a man page: whatever stands in it shows as it is.
std::string ManText(std::string_view text);

} // namespace tarn
