#include "store/Projects.h"

#include "app/Text.h"
#include "store/Failure.h"
#include "store/Fields.h"
#include "store/Names.h"
#include "store/SharedRows.h"

namespace tarn {

namespace {

/// The shared set, standing at its first row.
Recordset& FirstOf(SharedState& state, SharedRows shared) {
    Recordset& rows = RowsOf(state, shared);
    rows.MoveFirst();
    return rows;
}

/// Stand the shared set on the first row whose `field` is `name`; at its end when there is none.
Recordset& Find(SharedState& state, SharedRows shared, std::string_view field,
                std::string_view name) {
    Recordset& rows = FirstOf(state, shared);
    const std::string wanted = StoredName(name);
    while (!rows.AtEnd() && StoredName(TextIn(rows, field)) != wanted) {
        rows.MoveNext();
    }
    return rows;
}

/// The stored form of a name that is to be added. `kind` is what it names.
std::string NewName(std::string_view kind, std::string_view name) {
    std::string stored = StoredName(name);
    if (stored.empty()) {
        throw DatabaseError("The " + std::string(kind) + " needs a name.");
    }
    if (Len(stored) > MaxNameLength) {
        throw DatabaseError(NameTooLongText(kind, stored));
    }
    return stored;
}

} // namespace

bool CheckDir(SharedState& state, std::string_view name) {
    return !Find(state, SharedRows::Directories, "Directory", name).AtEnd();
}

bool CheckProjName(SharedState& state, std::string_view name) {
    return !DirectoryOf(state, name).has_value();
}

std::optional<std::string> DirectoryOf(SharedState& state, std::string_view project) {
    const Recordset& rows = Find(state, SharedRows::Projects, "ProjName", project);
    if (rows.AtEnd()) {
        return std::nullopt;
    }
    return TextIn(rows, "Dir");
}

std::vector<std::string> ListDirectories(SharedState& state) {
    std::vector<std::string> names;
    for (Recordset& rows = FirstOf(state, SharedRows::Directories); !rows.AtEnd();
         rows.MoveNext()) {
        names.push_back(TextIn(rows, "Directory"));
    }
    return names;
}

std::vector<std::string> ListProjects(SharedState& state, std::string_view directory) {
    const std::string wanted = StoredName(directory);
    std::vector<std::string> names;
    for (Recordset& rows = FirstOf(state, SharedRows::Projects); !rows.AtEnd(); rows.MoveNext()) {
        if (StoredName(TextIn(rows, "Dir")) == wanted) {
            names.push_back(TextIn(rows, "ProjName"));
        }
    }
    return names;
}

bool AddDirectory(SharedState& state, std::string_view name) {
    return Succeeds(state, [&] {
        Recordset& rows = RowsOf(state, SharedRows::Directories);
        rows.AddNew();
        rows.SetField("Directory", NewName("directory", name));
        rows.Update();
    });
}

bool AddProject(SharedState& state, std::string_view directory, std::string_view project) {
    return Succeeds(state, [&] {
        const std::string name = NewName("project", project);
        if (name.find_first_of(ForbiddenInProjectName) != std::string::npos) {
            throw DatabaseError("The project name " + name + " holds one of the characters " +
                                std::string(ForbiddenInProjectName) + ".");
        }
        if (HoldsControlCharacter(name)) {
            throw DatabaseError("The project name holds a line break or another control "
                                "character.");
        }
        Recordset& rows = RowsOf(state, SharedRows::Projects);
        rows.AddNew();
        rows.SetField("Dir", NewName("directory", directory));
        rows.SetField("ProjName", name);
        rows.SetField("DrawingNum", std::int64_t{0});
        rows.Update();
    });
}

} // namespace tarn
