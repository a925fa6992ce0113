#include "store/Renames.h"

#include "store/Failure.h"
#include "store/Schema.h"
#include "store/SharedRows.h"
#include "store/Sheets.h"

#include <initializer_list>
#include <string_view>

namespace tarn {

namespace {

struct NameField {
    std::string_view Table;
    std::string_view Field;
};

bool Rename(SharedState& state, std::initializer_list<NameField> places, const std::string& oldName,
            const std::string& newName) {
    return Succeeds(state, [&] {
        Database& database = OpenedDatabase(state);
        Transaction transaction(database);
        for (const NameField& place : places) {
            const auto rows = database.OpenDynaset(TextQuery(place.Table, place.Field, oldName));
            for (; !rows->AtEnd(); rows->MoveNext()) {
                rows->Edit();
                rows->SetField(place.Field, newName);
                rows->Update();
            }
        }
        transaction.Commit();
    });
}

} // namespace

bool ChangeDirName(SharedState& state, const std::string& oldName, const std::string& newName) {
    return Rename(state, {{DirTab, "Directory"}, {ProjTab, "Dir"}}, oldName, newName);
}

bool ChangeProjName(SharedState& state, const std::string& oldName, const std::string& newName) {
    return Rename(state, {{MainTab, "ProjName"}, {ProjTab, "ProjName"}}, oldName, newName);
}

} // namespace tarn
