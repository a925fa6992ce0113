#include "store/Schema.h"

#include "base/Words.h"
#include "project/Coverings.h"
#include "project/Room.h"
#include "project/WallBase.h"
#include "store/DatabaseError.h"
#include "store/DatabaseFile.h"
#include "store/FileInMaking.h"

#include <algorithm>
#include <limits>

namespace tarn {

namespace {

constexpr std::string_view Number = "INTEGER";
constexpr std::string_view Real = "REAL";
constexpr std::string_view TextType = "TEXT COLLATE NOCASE";
constexpr std::int32_t GreatestSheet = std::numeric_limits<Integer>::max();

Field WholeField(std::string_view name, std::int32_t greatest) {
    return {name, Number, FieldContent::WholeNumber, 0, greatest};
}

Field UnusedField(std::string_view name, std::string_view type) {
    return {name, type};
}

Field TextField(std::string_view name, FieldContent content) {
    return {name, TextType, content};
}

Field Indexed(Field field) {
    field.Indexed = true;
    return field;
}

Field OrNull(Field field) {
    field.MayBeNull = true;
    return field;
}

Field Optional(Field field) {
    field.Optional = true;
    return field;
}

Field SheetNumber() {
    return Indexed(WholeField("TabIndex", GreatestSheet));
}

Field ProjectName() {
    return Indexed(TextField("ProjName", FieldContent::ProjectName));
}

/// A carpet's number as it is shown, from 1.
Field CarpetNumber() {
    return {"Carpet", Number, FieldContent::WholeNumber, 1, FirstTileCode};
}

std::vector<Field> FieldsOf(std::string_view sheetTable) {
    constexpr std::int32_t MostRooms = RoomCapacity;
    constexpr std::int32_t GreatestSize = std::numeric_limits<Integer>::max();
    if (sheetTable == MainTab) {
        return {SheetNumber(),
                ProjectName(),
                WholeField("ObjNum", MostRooms),
                UnusedField("PicScale", Real),
                {"DigScale", Real, FieldContent::AboveZero},
                OrNull(WholeField("TileLabelNUm", 1)),
                UnusedField("MagScale", Number),
                UnusedField("ScaleTop", Number),
                UnusedField("ScaleLeft", Number),
                Optional(OrNull(WholeField("EnteredMetric", 1)))};
    }
    if (sheetTable == InputData) {
        return {
            WholeField("ObjNum", MostRooms - 1),         WholeField("RoomW", GreatestSize),
            WholeField("RoomL", GreatestSize),           TextField("RoomNoStr", FieldContent::Text),
            TextField("RoomRemark", FieldContent::Text), WholeField("CTType", LastTileCode),
            WholeField("BaseSty", LastBaseCode),         SheetNumber()};
    }
    return {SheetNumber()};
}

std::vector<TableShape> MakeShapes() {
    std::vector<TableShape> shapes = {
        {DirTab, {TextField("Directory", FieldContent::DirectoryName)}},
        {ProjTab,
         {Indexed(TextField("Dir", FieldContent::DirectoryName)), ProjectName(),
          UnusedField("DrawingNum", Number)}},
    };
    for (const std::string_view name : SheetTables) {
        shapes.push_back({name, FieldsOf(name)});
    }
    shapes.push_back({OrderData,
                      {SheetNumber(), CarpetNumber(), WholeField("Metric", 1),
                       TextField("Request", FieldContent::Text)},
                      true});
    return shapes;
}

} // namespace

const std::vector<TableShape>& TableShapes() {
    static const std::vector<TableShape> shapes = MakeShapes();
    return shapes;
}

const TableShape& ShapeOf(std::string_view table) {
    return *std::find_if(TableShapes().begin(), TableShapes().end(),
                         [table](const TableShape& shape) { return shape.Name == table; });
}

bool IsOfSheets(const TableShape& shape) {
    return std::any_of(shape.Fields.begin(), shape.Fields.end(),
                       [](const Field& field) { return field.Name == SheetNumber().Name; });
}

void CreateTable(Connection& connection, const TableShape& table) {
    const std::string name(table.Name);
    const std::string failing = Words("The table %1 cannot be made", name);
    std::string columns;
    for (const Field& field : table.Fields) {
        columns += columns.empty() ? "" : ", ";
        columns.append(field.Name).append(" ").append(field.Type);
    }
    connection.Run("CREATE TABLE " + name + " (" + columns + ")", failing);
    for (const Field& field : table.Fields) {
        if (field.Indexed) {
            std::string index = "CREATE INDEX " + name;
            index.append(field.Name).append(" ON ").append(name);
            index.append(" (").append(field.Name).append(")");
            connection.Run(index, failing);
        }
    }
}

void CreateTables(Connection& connection) {
    for (const TableShape& table : TableShapes()) {
        if (!table.Optional) {
            CreateTable(connection, table);
        }
    }
}

void CreateDatabaseFile(const std::string& path) {
    FileInMaking file(path);
    {
        Connection connection(file.Path(), Connection::Access::Create, DefaultBusyWait);
        const std::string failing = Words("The database file %1 cannot be made", path);
        connection.Run("BEGIN", failing);
        CreateTables(connection);
        MarkAsCopyOfItsOwn(connection, failing);
        connection.Run("COMMIT", failing);
    }
    file.Place();
}

void BackUpDatabaseFile(const std::string& source, const std::string& target, int busyWait) {
    const auto connection = ConnectToFile(source, DatabaseAccess::ReadOnly, busyWait);
    RequireSound(*connection, source);
    FileInMaking file(target);
    const std::string failing = Words("The backup %1 cannot be made", target);
    connection->Run("PRAGMA query_only = OFF",
                    failing); // it keeps the copy from being written, too
    connection->Run("VACUUM INTO ?", failing, {TextValue(file.Path())});
    {
        Connection copy(file.Path(), Connection::Access::ReadWrite, busyWait);
        MarkAsCopyOfItsOwn(copy, failing);
    }
    file.Place();
}

} // namespace tarn
