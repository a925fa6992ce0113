#include "store/SqlDatabase.h"

#include "store/Connection.h"
#include "store/DatabaseFile.h"
#include "store/QueryText.h"
#include "store/SqlRecordset.h"

namespace tarn {

namespace {

class SqlDatabase final : public Database {
  public:
    explicit SqlDatabase(std::shared_ptr<Connection> connection)
        : connection_(std::move(connection)) {}

    std::unique_ptr<Recordset> OpenDynaset(std::string_view query) override {
        return Open(query, SqlRecordset::Kind::Dynaset);
    }
    std::unique_ptr<Recordset> OpenSnapshot(std::string_view query) override {
        return Open(query, SqlRecordset::Kind::Snapshot);
    }

    void Begin() override {
        // Takes the write lock at once: what is read from here on cannot change until Commit.
        connection_->Run("BEGIN IMMEDIATE", "The database takes no change");
    }
    void Commit() override { connection_->Run("COMMIT", "The change cannot be stored"); }
    void Rollback() noexcept override {
        try {
            connection_->Run("ROLLBACK", "The change cannot be taken back");
        } catch (const DatabaseError&) {
            // SQLite took it back itself, as it does when the disk fails.
        }
    }

  private:
    std::unique_ptr<Recordset> Open(std::string_view query, SqlRecordset::Kind kind) {
        return std::make_unique<SqlRecordset>(connection_, ReadQuery(query), kind);
    }

    std::shared_ptr<Connection> connection_;
};

} // namespace

std::unique_ptr<Database> OpenSqlDatabase(const std::string& path, DatabaseAccess access,
                                          int busyWait) {
    auto connection = ConnectToFile(path, access, busyWait);
    RequireSound(*connection, path);
    connection->Run("PRAGMA synchronous = FULL", "The database file " + path + " cannot be opened");
    return std::make_unique<SqlDatabase>(std::move(connection));
}

} // namespace tarn
