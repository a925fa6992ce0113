// Messages of the printing protocol: their life time, and their attributes by name.

#pragma once

#include <cups/ipp.h>
#include <memory>
#include <string>
#include <vector>

namespace tarn {

struct DeleteIpp {
    void operator()(ipp_t* message) const { ippDelete(message); }
};
/// A request to the printing system or its answer.
using Ipp = std::unique_ptr<ipp_t, DeleteIpp>;

/// An attribute that is a number; 0 when there is none.
int NumberIn(ipp_t* message, const char* name);

/// The values of an attribute that is text; none when there is none.
std::vector<std::string> TextsIn(ipp_t* message, const char* name);

/// The first of them; empty when there is none.
std::string TextIn(ipp_t* message, const char* name);

/// An attribute of whatever kind as text, as a job's option has it; empty when there is none and
/// when it has no value.
std::string ValueIn(ipp_t* message, const std::string& name);

} // namespace tarn
