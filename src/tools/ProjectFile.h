// Where the programs take rooms from: a project of a database, or a CSV file.

#pragma once

#include "base/Units.h"
#include "store/ProjectStore.h"

#include <string>
#include <vector>

namespace tarn {

/// ProjectStore::Load of a name as it is stored. Raises Refusal, which names the project and the
/// cause, when it cannot be loaded whole.
LoadedProject LoadWhole(ProjectStore& store, const std::string& name);

/// The project of that name. What is missing or odd in it goes to standard error as warnings.
/// Raises Refusal when there is no such project, when it has never been saved, or when it cannot be
/// loaded whole.
Project LoadProjectNamed(ProjectStore& store, const std::string& name);

/// Tell on standard error that the project was entered in metric, and what follows from it.
void WarnOfMetric(const Project& project, const char* consequence);

/// The rooms of a CSV file. Raises Refusal naming its mistakes, MaxRoomCsvErrors of them at most.
std::vector<Room> ReadRoomFile(const std::string& path, Units units);

} // namespace tarn
