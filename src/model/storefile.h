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
    // Opens (or creates) the file for reading and writing, bringing an older layout up to date.
    // A file that may only be read is opened as openReadOnly does. A damaged file is refused.
    static Result<std::unique_ptr<StoreFile>> open(const QString& path, const Model& model);
    // Opens the file for reading only, on a snapshot: everything read through it shows the store
    // as it was when it was opened, whatever another process writes meanwhile. An older layout is
    // brought up to date in a copy in memory; the file is never changed.
    static Result<std::unique_ptr<StoreFile>> openReadOnly(const QString& path, const Model& model);

    QString path() const { return path_; }
    sql::Database& database() { return db_; }
    // The layout version the file had when it was opened (0 for a new file).
    int openedSchemaVersion() const { return openedVersion_; }
    bool isReadOnly() const { return readOnly_; }

    // Small values kept with the records (in the meta table), written in the same transaction.
    Result<QString> mark(const QString& key);

    qint64 maxPrimaryKey(const EntityDescription& entity);
    // Calls `row` with each row's primary key; `read` then fills the record from that row.
    Result<void> selectAll(const EntityDescription& entity, const std::function<void(qint64)>& row);
    Result<void> selectWhere(const EntityDescription& entity, const std::string& column,
                             qint64 value, const std::function<void(qint64)>& row);
    // Calls `row` when the row with that key exists; false when it does not.
    Result<bool> selectOne(const EntityDescription& entity, qint64 pk,
                           const std::function<void()>& row);
    void read(Record& record);

    // Writes inserts, updates and deletes of the given records, and the marks, in one
    // transaction.
    Result<void> write(const std::vector<Record*>& records,
                       const std::vector<std::pair<QString, QString>>& marks = {});
    Result<void> copyTo(const QString& path);

private:
    struct Statements {
        sql::Statement select;
        sql::Statement insert;
        sql::Statement update;
        sql::Statement remove;
    };

    StoreFile(QString path, sql::Database db, const Model& model);
    static Result<std::unique_ptr<StoreFile>> finishOpening(QString path, sql::Database db,
                                                            const Model& model, int version,
                                                            bool readOnly);
    Result<void> prepareStatements();
    Result<void> copyByBackup(const QString& path);
    Statements& statements(const EntityDescription& entity);
    void bindRecord(sql::Statement& statement, const Record& record);
    Result<void> readRows(sql::Statement& statement, const std::function<void(qint64)>& row);

    QString path_;
    sql::Database db_;
    const Model& model_;
    int openedVersion_ = 0;
    bool readOnly_ = false;
    std::vector<Statements> statements_;
    sql::Statement* current_ = nullptr;  // the statement positioned on the row being read
};

}  // namespace tamo
