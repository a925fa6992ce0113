// Which queue of the printing system the user's jobs go to.

#pragma once

#include <map>
#include <string>

namespace tarn {

/// Options of a job by their names.
using QueueOptions = std::map<std::string, std::string>;

/// The user's choice among the queues of the printing system. It is found where the other programs
/// of the system find it: in the variables LPDEST and PRINTER, in ~/.cups/lpoptions and in
/// lpoptions of CUPS' own directory, in this order.
struct QueueChoice {
    std::string Name;     ///< empty: the system's own default
    std::string Instance; ///< "draft" of "laser/draft"; mostly empty
};

QueueChoice ChosenQueue();

/// What the user chose for the jobs of that queue, over what is chosen there for all users.
QueueOptions ChosenOptions(const QueueChoice& queue);

} // namespace tarn
