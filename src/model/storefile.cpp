#include "model/storefile.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QLoggingCategory>
#include <QStringList>
#include <QUrl>
#include <cmath>

#include "model/record.h"
#include "model/storelayout.h"
#include "platform/translations.h"

Q_LOGGING_CATEGORY(lcStore, "tamo.store")

namespace tamo {

namespace {

Error damagedStore(const QString& path, const QString& detail)
{
    return Error{QString::fromLatin1(sql::kDomain), SQLITE_CORRUPT,
                 tr("The store “%1” is damaged.").arg(path),
                 tr("SQLite reports: %1 Tamo has changed nothing; a recovery copy or a backup can "
                    "take its place (File › Recover Previous Database…, or tamo recover).")
                     .arg(detail)};
}

// Errors of a file that is damaged say so; any other error stays as it is.
Error asDamage(const Error& e, const QString& path)
{
    return sql::isDamage(e.code) ? damagedStore(path, e.reason) : e;
}

// Reads every page; the first problem SQLite finds is named.
Result<void> checkPages(sql::Database& db, const QString& path)
{
    auto problem = layout::integrityProblem(db, true);
    if (!problem) {
        return std::unexpected(asDamage(problem.error(), path));
    }
    if (!problem->isEmpty()) {
        return std::unexpected(damagedStore(path, *problem));
    }
    return {};
}

QString q(const std::string& identifier)
{
    return layout::quotedName(identifier);
}

Error newerStore(const QString& path)
{
    return Error{QString::fromLatin1(sql::kDomain), 1,
                 tr("The store “%1” was written by a newer version of Tamo.").arg(path),
                 tr("Please update Tamo to open it.")};
}

}  // namespace

StoreFile::StoreFile(QString path, sql::Database db, const Model& model)
    : path_(std::move(path)), db_(std::move(db)), model_(model)
{
}

Result<std::unique_ptr<StoreFile>> StoreFile::open(const QString& path, const Model& model)
{
    const bool existing = QFileInfo(path).size() > 0;
    auto db = sql::Database::open(path, true);
    if (!db) {
        return std::unexpected(db.error());
    }
    if (db->isReadOnly()) {
        return openReadOnly(path, model);
    }
    for (const char* pragma : {"PRAGMA journal_mode=WAL", "PRAGMA synchronous=FULL"}) {
        if (auto r = db->exec(QString::fromLatin1(pragma)); !r) {
            return std::unexpected(existing ? asDamage(r.error(), path) : r.error());
        }
    }
    if (existing) {
        if (auto checked = checkPages(*db, path); !checked) {
            return std::unexpected(checked.error());
        }
    }
    if (auto r = db->exec(QStringLiteral("BEGIN IMMEDIATE")); !r) {
        return std::unexpected(r.error());
    }
    auto version = layout::storedVersion(*db);
    Result<void> upgraded;
    if (!version) {
        upgraded = std::unexpected(version.error());
    } else if (*version > Model::kSchemaVersion) {
        upgraded = std::unexpected(newerStore(path));
    } else if (*version < Model::kSchemaVersion) {
        upgraded = layout::upgradeTables(*db, model);
    }
    if (!upgraded) {
        (void)db->exec(QStringLiteral("ROLLBACK"));
        return std::unexpected(upgraded.error());
    }
    if (auto r = db->exec(QStringLiteral("COMMIT")); !r) {
        return std::unexpected(r.error());
    }
    if (*version != 0 && *version < Model::kSchemaVersion) {
        qCInfo(lcStore) << "Migrated the store from layout version" << *version << "to"
                        << Model::kSchemaVersion;
    }
    return finishOpening(path, std::move(*db), model, *version, false);
}

namespace {

// Starts the read transaction that the connection keeps: its snapshot is what every later read
// sees. The layout version of the file, 0 when it records none.
Result<int> beginSnapshot(sql::Database& db)
{
    if (auto r = db.exec(QStringLiteral("BEGIN")); !r) {
        return std::unexpected(r.error());
    }
    auto s = db.prepare(QStringLiteral("SELECT value FROM meta WHERE key = 'schemaVersion'"));
    if (!s) {
        // No meta table: no store of ours, unless the file cannot be read at all.
        auto any = db.prepare(QStringLiteral("SELECT count(*) FROM sqlite_master"));
        if (!any || !any->step()) {
            return std::unexpected(any ? *any->error() : any.error());
        }
        return 0;
    }
    const bool found = s->step();
    if (s->error()) {
        return std::unexpected(*s->error());
    }
    return found ? s->text(0).toInt() : 0;
}

// A folder that may not be written holds no "-shm" file for the readers' shared memory; the
// store is then read as a file that nothing changes.
Result<sql::Database> openImmutable(const QString& path)
{
    QUrl url = QUrl::fromLocalFile(path);
    url.setQuery(QStringLiteral("immutable=1"));
    return sql::Database::openReadOnly(QString::fromUtf8(url.toEncoded()));
}

}  // namespace

Result<std::unique_ptr<StoreFile>> StoreFile::openReadOnly(const QString& path, const Model& model)
{
    auto db = sql::Database::openReadOnly(path);
    if (!db) {
        return std::unexpected(db.error());
    }
    auto version = beginSnapshot(*db);
    if (!version && !sql::isDamage(version.error().code)) {
        if (auto immutable = openImmutable(path); immutable) {
            if (auto v = beginSnapshot(*immutable); v) {
                db = std::move(immutable);
                version = v;
            }
        }
    }
    if (!version) {
        return std::unexpected(asDamage(version.error(), path));
    }
    if (*version == 0) {
        return fail(QString::fromLatin1(sql::kDomain), SQLITE_NOTADB,
                    tr("The store “%1” could not be opened.").arg(path),
                    tr("It holds no Tamo data, and it may only be read."));
    }
    if (*version > Model::kSchemaVersion) {
        return std::unexpected(newerStore(path));
    }
    if (auto checked = checkPages(*db, path); !checked) {
        return std::unexpected(checked.error());
    }
    if (*version < Model::kSchemaVersion) {
        // The layout is brought up to date in a copy in memory.
        auto memory = sql::Database::open(QStringLiteral(":memory:"), true);
        if (!memory) {
            return std::unexpected(memory.error());
        }
        sqlite3_backup* copy = sqlite3_backup_init(memory->handle(), "main", db->handle(), "main");
        const int rc = copy ? sqlite3_backup_step(copy, -1) : SQLITE_ERROR;
        sqlite3_backup_finish(copy);
        if (rc != SQLITE_DONE) {
            return std::unexpected(
                db->lastError(tr("The store “%1” could not be read.").arg(path)));
        }
        if (auto r = layout::upgradeTables(*memory, model); !r) {
            return std::unexpected(r.error());
        }
        db = std::move(memory);
    }
    return finishOpening(path, std::move(*db), model, *version, true);
}

Result<std::unique_ptr<StoreFile>> StoreFile::finishOpening(QString path, sql::Database db,
                                                            const Model& model, int version,
                                                            bool readOnly)
{
    std::unique_ptr<StoreFile> file(new StoreFile(std::move(path), std::move(db), model));
    file->openedVersion_ = version;
    file->readOnly_ = readOnly;
    if (auto r = file->prepareStatements(); !r) {
        return std::unexpected(r.error());
    }
    return file;
}

Result<void> StoreFile::prepareStatements()
{
    for (const EntityDescription& entity : model_.entities()) {
        const QStringList cols = layout::columns(entity);
        const QString table = q(entity.name());
        QStringList placeholders, assignments;
        for (const QString& c : cols) {
            placeholders << QStringLiteral("?");
            assignments << c + QStringLiteral(" = ?");
        }
        Statements s;
        for (auto [target, text] :
             {std::pair{
                  &s.select,
                  QStringLiteral("SELECT %1 FROM %2 WHERE pk = ?").arg(cols.join(u','), table)},
              std::pair{&s.insert, QStringLiteral("INSERT INTO %1 (%2, pk) VALUES (%3, ?)")
                                       .arg(table, cols.join(u','), placeholders.join(u','))},
              std::pair{&s.update, QStringLiteral("UPDATE %1 SET %2 WHERE pk = ?")
                                       .arg(table, assignments.join(u','))},
              std::pair{&s.remove, QStringLiteral("DELETE FROM %1 WHERE pk = ?").arg(table)}}) {
            auto stmt = db_.prepare(text);
            if (!stmt) {
                return std::unexpected(stmt.error());
            }
            *target = std::move(*stmt);
        }
        statements_.push_back(std::move(s));
    }
    return {};
}

StoreFile::Statements& StoreFile::statements(const EntityDescription& entity)
{
    return statements_[size_t(&entity - model_.entities().data())];
}

qint64 StoreFile::maxPrimaryKey(const EntityDescription& entity)
{
    auto s = db_.prepare(QStringLiteral("SELECT MAX(pk) FROM %1").arg(q(entity.name())));
    return s && s->step() ? s->int64(0) : 0;
}

Result<void> StoreFile::selectAll(const EntityDescription& entity,
                                  const std::function<void(qint64)>& row)
{
    auto s = db_.prepare(QStringLiteral("SELECT %1, pk FROM %2 ORDER BY pk")
                             .arg(layout::columns(entity).join(u','), q(entity.name())));
    if (!s) {
        return std::unexpected(s.error());
    }
    return readRows(*s, row);
}

Result<void> StoreFile::selectWhere(const EntityDescription& entity, const std::string& column,
                                    qint64 value, const std::function<void(qint64)>& row)
{
    auto s = db_.prepare(QStringLiteral("SELECT %1, pk FROM %2 WHERE %3 = ? ORDER BY pk")
                             .arg(layout::columns(entity).join(u','), q(entity.name()), q(column)));
    if (!s) {
        return std::unexpected(s.error());
    }
    s->bind(1, value);
    return readRows(*s, row);
}

// Steps through rows whose last column is the primary key, each readable by `read` meanwhile.
Result<void> StoreFile::readRows(sql::Statement& s, const std::function<void(qint64)>& row)
{
    current_ = &s;
    while (s.step()) {
        row(s.int64(s.columnCount() - 1));
    }
    current_ = nullptr;
    if (s.error()) {
        return std::unexpected(*s.error());
    }
    return {};
}

Result<bool> StoreFile::selectOne(const EntityDescription& entity, qint64 pk,
                                  const std::function<void()>& row)
{
    sql::Statement& s = statements(entity).select;
    s.reset();
    s.bind(1, pk);
    const bool found = s.step();
    if (found) {
        current_ = &s;
        row();
        current_ = nullptr;
    }
    if (s.error()) {
        return std::unexpected(*s.error());
    }
    s.reset();
    return found;
}

void StoreFile::read(Record& record)
{
    Q_ASSERT(current_);
    const sql::Statement& s = *current_;
    const auto& attributes = record.entity().attributes();
    int column = 0;
    for (size_t i = 0; i < attributes.size(); ++i, ++column) {
        Value& v = record.values_[i];
        if (s.isNull(column)) {
            v = Value();
            continue;
        }
        switch (attributes[i].type) {
        case AttributeType::String:
            v = Value(s.text(column));
            break;
        case AttributeType::Integer:
            v = Value(int(s.int64(column)));
            break;
        case AttributeType::Boolean:
            v = Value(s.int64(column) != 0);
            break;
        case AttributeType::Decimal:
            v = Value(s.real(column));
            break;
        case AttributeType::Date:
            v = Value(
                QDateTime::fromMSecsSinceEpoch(std::llround(s.real(column) * 1000.0), Qt::UTC));
            break;
        }
    }
    const auto& relationships = record.entity().relationships();
    for (size_t i = 0; i < relationships.size(); ++i) {
        if (!relationships[i].toMany) {
            record.links_[i].target = s.isNull(column) ? 0 : s.int64(column);
            ++column;
        }
    }
}

void StoreFile::bindRecord(sql::Statement& s, const Record& record)
{
    const auto& attributes = record.entity().attributes();
    int index = 1;
    for (size_t i = 0; i < attributes.size(); ++i, ++index) {
        const Value& v = record.values_[i];
        if (v.isNull()) {
            s.bindNull(index);
            continue;
        }
        switch (attributes[i].type) {
        case AttributeType::String:
            s.bind(index, v.toString());
            break;
        case AttributeType::Integer:
            s.bind(index, qint64(v.toInt()));
            break;
        case AttributeType::Boolean:
            s.bind(index, qint64(v.toBool() ? 1 : 0));
            break;
        case AttributeType::Decimal:
            s.bind(index, v.toDouble());
            break;
        case AttributeType::Date:
            s.bind(index, double(v.toDate().toMSecsSinceEpoch()) / 1000.0);
            break;
        }
    }
    const auto& relationships = record.entity().relationships();
    for (size_t i = 0; i < relationships.size(); ++i) {
        if (!relationships[i].toMany) {
            const qint64 target = record.links_[i].target;
            target ? s.bind(index, target) : s.bindNull(index);
            ++index;
        }
    }
    s.bind(index, record.pk_);
}

Result<QString> StoreFile::mark(const QString& key)
{
    auto s = db_.prepare(QStringLiteral("SELECT value FROM meta WHERE key = ?"));
    if (!s) {
        return std::unexpected(s.error());
    }
    s->bind(1, key);
    const bool found = s->step();
    if (s->error()) {
        return std::unexpected(*s->error());
    }
    return found ? s->text(0) : QString();
}

Result<void> StoreFile::write(const std::vector<Record*>& records,
                              const std::vector<std::pair<QString, QString>>& marks)
{
    if (readOnly_) {
        return fail(QString::fromLatin1(sql::kDomain), SQLITE_READONLY,
                    tr("The store “%1” is open for reading only.").arg(path_),
                    tr("Your changes were not saved."));
    }
    if (auto r = db_.exec(QStringLiteral("BEGIN IMMEDIATE")); !r) {
        return r;
    }
    for (const auto& [key, value] : marks) {
        auto s =
            db_.prepare(QStringLiteral("INSERT OR REPLACE INTO meta (key, value) VALUES (?, ?)"));
        Result<void> done = s ? Result<void>() : std::unexpected(s.error());
        if (s) {
            s->bind(1, key);
            s->bind(2, value);
            done = s->run();
        }
        if (!done) {
            (void)db_.exec(QStringLiteral("ROLLBACK"));
            return done;
        }
    }
    for (const Record* record : records) {
        Statements& s = statements(record->entity());
        Result<void> done;
        if (record->deleted_ && record->persisted_) {
            s.remove.reset();
            s.remove.bind(1, record->pk_);
            done = s.remove.run();
        } else if (!record->deleted_ && !record->persisted_) {
            s.insert.reset();
            bindRecord(s.insert, *record);
            done = s.insert.run();
        } else if (!record->deleted_ && record->dirty_) {
            s.update.reset();
            bindRecord(s.update, *record);
            done = s.update.run();
        }
        if (!done) {
            (void)db_.exec(QStringLiteral("ROLLBACK"));
            return done;
        }
    }
    if (auto r = db_.exec(QStringLiteral("COMMIT")); !r) {
        (void)db_.exec(QStringLiteral("ROLLBACK"));
        return r;
    }
    return {};
}

Result<void> StoreFile::copyTo(const QString& path)
{
    if (readOnly_) {
        return copyByBackup(path);
    }
    auto s = db_.prepare(QStringLiteral("VACUUM INTO ?"));
    if (!s) {
        return std::unexpected(s.error());
    }
    s->bind(1, path);
    return s->run();
}

// A snapshot's copy: VACUUM cannot run inside the read transaction that holds the snapshot.
Result<void> StoreFile::copyByBackup(const QString& path)
{
    auto target = sql::Database::open(path, true);
    if (!target) {
        return std::unexpected(target.error());
    }
    sqlite3_backup* copy = sqlite3_backup_init(target->handle(), "main", db_.handle(), "main");
    if (!copy) {
        return std::unexpected(
            target->lastError(tr("The copy “%1” could not be written.").arg(path)));
    }
    const int rc = sqlite3_backup_step(copy, -1);
    sqlite3_backup_finish(copy);
    if (rc != SQLITE_DONE) {
        return std::unexpected(
            target->lastError(tr("The copy “%1” could not be written.").arg(path)));
    }
    return {};
}

}  // namespace tamo
