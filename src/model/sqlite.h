#pragma once

#include <sqlite3.h>
#include <QString>

#include "platform/error.h"

namespace tamo::sql {

inline constexpr auto kDomain = "SQLite";

class Statement;

// An open SQLite connection; closed when destroyed.
class Database {
public:
    Database() = default;
    ~Database();
    Database(Database&& other) noexcept : db_(std::exchange(other.db_, nullptr)) {}
    Database& operator=(Database&& other) noexcept;
    Database(const Database&) = delete;
    Database& operator=(const Database&) = delete;

    static Result<Database> open(const QString& path, bool create);
    // Only reads; writing through it fails.
    static Result<Database> openReadOnly(const QString& path);

    sqlite3* handle() const { return db_; }
    bool isOpen() const { return db_ != nullptr; }

    Result<void> exec(const QString& sql);
    Result<Statement> prepare(const QString& sql);
    Error lastError(const QString& message) const;
    bool isReadOnly() const { return sqlite3_db_readonly(db_, "main") == 1; }

private:
    explicit Database(sqlite3* db) : db_(db) {}
    static Result<Database> openWith(const QString& path, int flags);
    sqlite3* db_ = nullptr;
};

// A prepared statement; finalised when destroyed.
class Statement {
public:
    Statement() = default;
    ~Statement();
    Statement(Statement&& other) noexcept
        : stmt_(std::exchange(other.stmt_, nullptr)), db_(other.db_)
    {
    }
    Statement& operator=(Statement&& other) noexcept;
    Statement(const Statement&) = delete;
    Statement& operator=(const Statement&) = delete;

    void reset();
    void bindNull(int index);
    void bind(int index, qint64 value);
    void bind(int index, double value);
    void bind(int index, const QString& value);

    // True while a row is available; an error ends the rows and is kept in `error()`.
    bool step();
    Result<void> run();  // steps a statement that returns no rows
    const std::optional<Error>& error() const { return error_; }

    int columnCount() const { return sqlite3_column_count(stmt_); }
    int columnType(int column) const { return sqlite3_column_type(stmt_, column); }
    bool isNull(int column) const { return columnType(column) == SQLITE_NULL; }
    qint64 int64(int column) const { return sqlite3_column_int64(stmt_, column); }
    double real(int column) const { return sqlite3_column_double(stmt_, column); }
    QString text(int column) const;
    QString columnName(int column) const;

private:
    friend class Database;
    Statement(sqlite3_stmt* stmt, sqlite3* db) : stmt_(stmt), db_(db) {}
    sqlite3_stmt* stmt_ = nullptr;
    sqlite3* db_ = nullptr;
    std::optional<Error> error_;
};

// Why an SQLite call failed, in words: the disk is full, the file is damaged, ...
QString causeOf(sqlite3* db, int code);
// The code says that the file is damaged or no database at all.
bool isDamage(int code);

// Quotes an identifier for use in SQL text.
QString quoted(const QString& identifier);

}  // namespace tamo::sql
