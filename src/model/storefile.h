#pragma once

#include <QString>
#include <functional>
#include <memory>
#include <vector>

#include "model/entity.h"
#include "model/sqlite.h"

namespace tamo {

class Record;

// The SQLite side of the store: one table per entity with a column per attribute and per to-one
// relationship, the layout version in a meta table, and the statements that read and write rows.
class StoreFile {
public:
    static Result<std::unique_ptr<StoreFile>> open(const QString& path, const Model& model);

    QString path() const { return path_; }
    sql::Database& database() { return db_; }
    // The layout version the file had when it was opened (0 for a new file).
    int openedSchemaVersion() const { return openedVersion_; }

    qint64 maxPrimaryKey(const EntityDescription& entity);
    // Calls `row` with each row's primary key; `read` then fills the record from that row.
    Result<void> selectAll(const EntityDescription& entity, const std::function<void(qint64)>& row);
    Result<void> selectWhere(const EntityDescription& entity, const std::string& column,
                             qint64 value, const std::function<void(qint64)>& row);
    // Calls `row` when the row with that key exists; false when it does not.
    Result<bool> selectOne(const EntityDescription& entity, qint64 pk,
                           const std::function<void()>& row);
    void read(Record& record);

    // Writes inserts, updates and deletes of the given records in one transaction.
    Result<void> write(const std::vector<Record*>& records);
    Result<void> copyTo(const QString& path);

private:
    struct Statements {
        sql::Statement select;
        sql::Statement insert;
        sql::Statement update;
        sql::Statement remove;
    };

    StoreFile(QString path, sql::Database db, const Model& model);
    Result<void> prepareStatements();
    Statements& statements(const EntityDescription& entity);
    void bindRecord(sql::Statement& statement, const Record& record);
    Result<void> readRows(sql::Statement& statement, const std::function<void(qint64)>& row);

    QString path_;
    sql::Database db_;
    const Model& model_;
    int openedVersion_ = 0;
    std::vector<Statements> statements_;
    sql::Statement* current_ = nullptr;  // the statement positioned on the row being read
};

}  // namespace tamo
