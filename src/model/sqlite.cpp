#include "model/sqlite.h"

namespace tamo::sql {

namespace {
Error errorFrom(sqlite3* db, int code, const QString& context)
{
    const char* message = db ? sqlite3_errmsg(db) : sqlite3_errstr(code);
    return Error{QString::fromLatin1(kDomain), code, context,
                 QString::fromUtf8(message ? message : "unknown error")};
}
}  // namespace

Database::~Database()
{
    if (db_) {
        sqlite3_close_v2(db_);
    }
}

Database& Database::operator=(Database&& other) noexcept
{
    if (this != &other) {
        if (db_) {
            sqlite3_close_v2(db_);
        }
        db_ = std::exchange(other.db_, nullptr);
    }
    return *this;
}

Result<Database> Database::open(const QString& path, bool create)
{
    sqlite3* db = nullptr;
    const int flags = SQLITE_OPEN_READWRITE | (create ? SQLITE_OPEN_CREATE : 0);
    const int rc = sqlite3_open_v2(path.toUtf8().constData(), &db, flags, nullptr);
    if (rc != SQLITE_OK) {
        Error e = errorFrom(db, rc, QStringLiteral("Unable to open the store file %1.").arg(path));
        sqlite3_close_v2(db);
        return std::unexpected(e);
    }
    sqlite3_extended_result_codes(db, 1);
    sqlite3_busy_timeout(db, 2000);
    return Database(db);
}

Result<void> Database::exec(const QString& sql)
{
    char* message = nullptr;
    const int rc = sqlite3_exec(db_, sql.toUtf8().constData(), nullptr, nullptr, &message);
    if (rc != SQLITE_OK) {
        Error e{QString::fromLatin1(kDomain), rc, QStringLiteral("Failed to run %1.").arg(sql),
                QString::fromUtf8(message ? message : sqlite3_errstr(rc))};
        sqlite3_free(message);
        return std::unexpected(e);
    }
    return {};
}

Result<Statement> Database::prepare(const QString& sql)
{
    sqlite3_stmt* stmt = nullptr;
    const QByteArray utf8 = sql.toUtf8();
    const int rc = sqlite3_prepare_v3(db_, utf8.constData(), int(utf8.size()),
                                      SQLITE_PREPARE_PERSISTENT, &stmt, nullptr);
    if (rc != SQLITE_OK) {
        return std::unexpected(
            errorFrom(db_, rc, QStringLiteral("Failed to prepare %1.").arg(sql)));
    }
    return Statement(stmt, db_);
}

Error Database::lastError(const QString& context) const
{
    return errorFrom(db_, sqlite3_extended_errcode(db_), context);
}

Statement::~Statement()
{
    if (stmt_) {
        sqlite3_finalize(stmt_);
    }
}

Statement& Statement::operator=(Statement&& other) noexcept
{
    if (this != &other) {
        if (stmt_) {
            sqlite3_finalize(stmt_);
        }
        stmt_ = std::exchange(other.stmt_, nullptr);
        db_ = other.db_;
        error_ = std::move(other.error_);
    }
    return *this;
}

void Statement::reset()
{
    sqlite3_reset(stmt_);
    sqlite3_clear_bindings(stmt_);
    error_.reset();
}

void Statement::bindNull(int index)
{
    sqlite3_bind_null(stmt_, index);
}

void Statement::bind(int index, qint64 value)
{
    sqlite3_bind_int64(stmt_, index, value);
}

void Statement::bind(int index, double value)
{
    sqlite3_bind_double(stmt_, index, value);
}

void Statement::bind(int index, const QString& value)
{
    const QByteArray utf8 = value.toUtf8();
    sqlite3_bind_text64(stmt_, index, utf8.constData(), sqlite3_uint64(utf8.size()),
                        SQLITE_TRANSIENT, SQLITE_UTF8);
}

bool Statement::step()
{
    const int rc = sqlite3_step(stmt_);
    if (rc == SQLITE_ROW) {
        return true;
    }
    if (rc != SQLITE_DONE) {
        error_ = errorFrom(db_, rc, QStringLiteral("Failed to read from the store."));
    }
    return false;
}

Result<void> Statement::run()
{
    const int rc = sqlite3_step(stmt_);
    if (rc == SQLITE_ROW || rc == SQLITE_DONE) {
        return {};
    }
    return std::unexpected(errorFrom(db_, rc, QStringLiteral("Failed to write to the store.")));
}

QString Statement::text(int column) const
{
    const auto* data = reinterpret_cast<const char*>(sqlite3_column_text(stmt_, column));
    const int size = sqlite3_column_bytes(stmt_, column);
    return QString::fromUtf8(data, size);
}

QString Statement::columnName(int column) const
{
    return QString::fromUtf8(sqlite3_column_name(stmt_, column));
}

QString quoted(const QString& identifier)
{
    QString q = identifier;
    q.replace(u'"', QStringLiteral("\"\""));
    return u'"' + q + u'"';
}

}  // namespace tamo::sql
