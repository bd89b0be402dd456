#include "model/sqlite.h"

#include <QCoreApplication>
#include <QLoggingCategory>

#include "platform/filewriting.h"
#include "platform/translations.h"

// Off unless asked for (QT_LOGGING_RULES="tamo.sqlite.debug=true"): the statements that failed.
Q_LOGGING_CATEGORY(lcSql, "tamo.sqlite", QtWarningMsg)

namespace tamo::sql {

namespace {

QString fileOf(sqlite3* db)
{
    const char* name = db ? sqlite3_db_filename(db, "main") : nullptr;
    return name && *name ? QString::fromUtf8(name) : tr("in memory");
}

// What the person is told; the statement itself only goes to the log.
Error errorFrom(sqlite3* db, int code, const QString& message, const QString& sql = {})
{
    const char* detail = db ? sqlite3_errmsg(db) : sqlite3_errstr(code);
    // Callers decide whether a failure matters (a first attempt may be expected to fail); the
    // statement and SQLite's own words are for the developer.
    qCDebug(lcSql).noquote() << message << (detail ? detail : "") << sql;
    return Error{QString::fromLatin1(kDomain), code, message, causeOf(db, code)};
}

}  // namespace

QString causeOf(sqlite3* db, int code)
{
    const int system = db ? sqlite3_system_errno(db) : 0;
    switch (code & 0xff) {
    case SQLITE_FULL:
        return fileFailureCause(ENOSPC);
    case SQLITE_READONLY:
        return system != 0 ? fileFailureCause(system) : tr("It may only be read.");
    case SQLITE_PERM:
    case SQLITE_AUTH:
        return fileFailureCause(EACCES);
    case SQLITE_CANTOPEN:
    case SQLITE_IOERR:
        return fileFailureCause(system != 0 ? system : EIO);
    case SQLITE_CORRUPT:
        return tr("The file is damaged.");
    case SQLITE_NOTADB:
        return tr("It is not a database.");
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return tr("Another program is using it.");
    case SQLITE_NOMEM:
        return tr("There is not enough memory.");
    default:
        break;
    }
    const char* detail = db ? sqlite3_errmsg(db) : sqlite3_errstr(code);
    return QString::fromUtf8(detail ? detail : sqlite3_errstr(code)) + u'.';
}

bool isDamage(int code)
{
    return (code & 0xff) == SQLITE_CORRUPT || (code & 0xff) == SQLITE_NOTADB;
}

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
    return openWith(path, SQLITE_OPEN_READWRITE | (create ? SQLITE_OPEN_CREATE : 0));
}

Result<Database> Database::openReadOnly(const QString& path)
{
    // URIs too, for the "immutable" reading of a store in a folder that may not be written.
    return openWith(path, SQLITE_OPEN_READONLY | SQLITE_OPEN_URI);
}

Result<Database> Database::openWith(const QString& path, int flags)
{
    sqlite3* db = nullptr;
    const int rc = sqlite3_open_v2(path.toUtf8().constData(), &db, flags, nullptr);
    if (rc != SQLITE_OK) {
        Error e = errorFrom(db, rc, tr("The store “%1” could not be opened.").arg(path));
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
        sqlite3_free(message);
        Error e =
            errorFrom(db_, rc, tr("The store “%1” could not be changed.").arg(fileOf(db_)), sql);
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
            errorFrom(db_, rc, tr("The store “%1” could not be read.").arg(fileOf(db_)), sql));
    }
    return Statement(stmt, db_);
}

Error Database::lastError(const QString& message) const
{
    return errorFrom(db_, sqlite3_extended_errcode(db_), message);
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
        error_ = errorFrom(db_, rc, tr("The store “%1” could not be read.").arg(fileOf(db_)));
    }
    return false;
}

Result<void> Statement::run()
{
    const int rc = sqlite3_step(stmt_);
    if (rc == SQLITE_ROW || rc == SQLITE_DONE) {
        return {};
    }
    return std::unexpected(
        errorFrom(db_, rc, tr("The store “%1” could not be written.").arg(fileOf(db_))));
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
