#pragma once

#include "app/SharedState.h"
#include "rooms/RoomRecord.h"

#include <string>
#include <vector>

namespace tarn {

/// Open a database file for reading as the current database. Raises DatabaseError.
void OpenForReading(SharedState& state, const std::string& path);

/// Load the project of that name from the current database. What is missing or odd in it goes to
/// standard error as warnings. Returns whether its rooms were entered in metric. Raises Refusal
/// when there is no such project, when it has never been saved, or when it cannot be loaded whole.
bool LoadProjectNamed(SharedState& state, const std::string& name);

/// Tell on standard error that the open project was entered in metric, and what follows from it.
void WarnOfMetric(const SharedState& state, const char* consequence);

/// The rooms of a CSV file. Raises Refusal naming every bad line.
std::vector<RoomRecord> ReadRoomFile(const std::string& path, bool metric);

} // namespace tarn
