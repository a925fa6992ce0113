// Faults of the disk, made up: the system calls that write files, of which one at will fails.

#pragma once

#include <functional>
#include <string>
#include <vector>

namespace tarn::testing {

/// The names of the system calls that change files or store them, in the order in which `action`
/// makes them. Looking at a file does not count.
std::vector<std::string> CallsOf(const std::function<void()>& action);

/// Do `action` with the call of that place in CallsOf failing: it does nothing and gives `error`.
void WithFailingCall(std::size_t place, int error, const std::function<void()>& action);

/// Do `action`, and `meanwhile` just before its call of that place in CallsOf.
void BeforeCall(std::size_t place, const std::function<void()>& meanwhile,
                const std::function<void()>& action);

/// Do `action` with every write taking at most so many bytes.
void WithShortWrites(std::size_t most, const std::function<void()>& action);

} // namespace tarn::testing
