// The page that has every option, argument, exit status and file format of the programs.

#pragma once

#include "tools/reference/OptionTable.h"

#include <string>
#include <vector>

namespace tarn {

/// The page in Markdown. `formats` is the text of the file formats, in Markdown too, whose first
/// line is its heading.
std::string ReferencePage(const std::vector<ProgramTable>& programs, const std::string& formats);

} // namespace tarn
