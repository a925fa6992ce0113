// Where the programs take rooms from: a project of a database, or a CSV file.

#pragma once

#include "base/Units.h"
#include "base/Words.h"
#include "files/RoomCsv.h"
#include "store/ProjectStore.h"
#include "tools/SharedOptions.h"

#include <string>
#include <string_view>
#include <vector>

namespace tarn {

/// A name of a project or directory as it was given to a program, in the form in which it is
/// stored. `kind` is what it names. Raises Refusal for a name that is empty or holds bytes that are
/// not UTF-8, a control character or no character.
std::string NameArgument(std::string_view kind, const std::string& name);

/// ProjectStore::Load of a name as it is stored. Raises Refusal, which names the project and the
/// cause, when it cannot be loaded whole.
LoadedProject LoadWhole(ProjectStore& store, const std::string& name);

/// The project of that name. What is missing or odd in it goes to standard error as warnings.
/// Raises Refusal when there is no such project, when it has never been saved, or when it cannot be
/// loaded whole.
Project LoadProjectNamed(ProjectStore& store, const std::string& name);

/// Tell on standard error that the project was entered in metric, and what follows from it: a
/// sentence that has the project's name as %1.
void WarnOfMetric(Phrase warning, const Project& project);

/// The rooms of a CSV file; sizes that are rounded are told on standard error. Raises Refusal
/// naming its mistakes, MaxRoomCsvErrors of them at most, and for an encoding that is not known.
std::vector<Room> ReadRoomFile(const RoomFile& file, Units units);

} // namespace tarn
