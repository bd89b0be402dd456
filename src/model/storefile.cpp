#include "model/storefile.h"

#include <QLoggingCategory>
#include <QSet>
#include <QStringList>
#include <cmath>

#include "model/record.h"

Q_LOGGING_CATEGORY(lcStore, "tamo.store")

namespace tamo {

namespace {

QString q(const std::string& identifier)
{
    return sql::quoted(QString::fromStdString(identifier));
}

QString columnType(AttributeType type)
{
    switch (type) {
    case AttributeType::String:
        return QStringLiteral("TEXT");
    case AttributeType::Integer:
    case AttributeType::Boolean:
        return QStringLiteral("INTEGER");
    case AttributeType::Decimal:
    case AttributeType::Date:  // seconds since 1970-01-01 UTC
        return QStringLiteral("REAL");
    }
    return {};
}

// Columns after the primary key: every attribute, then every to-one relationship.
QStringList columns(const EntityDescription& entity)
{
    QStringList list;
    for (const auto& a : entity.attributes()) {
        list << q(a.key);
    }
    for (const auto& r : entity.relationships()) {
        if (!r.toMany) {
            list << q(r.key);
        }
    }
    return list;
}

Result<QSet<QString>> existingColumns(sql::Database& db, const EntityDescription& entity)
{
    auto info = db.prepare(QStringLiteral("PRAGMA table_info(%1)").arg(q(entity.name())));
    if (!info) {
        return std::unexpected(info.error());
    }
    QSet<QString> names;
    while (info->step()) {
        names.insert(info->text(1));
    }
    if (info->error()) {
        return std::unexpected(*info->error());
    }
    return names;
}

Result<int> storedVersion(sql::Database& db)
{
    if (auto r = db.exec(
            QStringLiteral("CREATE TABLE IF NOT EXISTS meta (key TEXT PRIMARY KEY, value TEXT)"));
        !r) {
        return std::unexpected(r.error());
    }
    auto s = db.prepare(QStringLiteral("SELECT value FROM meta WHERE key = 'schemaVersion'"));
    if (!s) {
        return std::unexpected(s.error());
    }
    return s->step() ? s->text(0).toInt() : 0;
}

// Brings the tables up to the model: new entities get tables, new attributes get columns.
// Stores only ever gain; nothing is dropped, so an older store keeps all it holds.
Result<void> upgradeTables(sql::Database& db, const Model& model)
{
    for (const EntityDescription& entity : model.entities()) {
        auto existing = existingColumns(db, entity);
        if (!existing) {
            return std::unexpected(existing.error());
        }
        QStringList wanted;
        for (const auto& a : entity.attributes()) {
            wanted << QString::fromStdString(a.key) + u' ' + columnType(a.type);
        }
        for (const auto& r : entity.relationships()) {
            if (!r.toMany) {
                wanted << QString::fromStdString(r.key) + QStringLiteral(" INTEGER");
            }
        }
        if (existing->isEmpty()) {
            QStringList defs{QStringLiteral("pk INTEGER PRIMARY KEY")};
            for (const QString& w : wanted) {
                const auto space = w.indexOf(u' ');
                defs << sql::quoted(w.left(space)) + w.mid(space);
            }
            if (auto r = db.exec(QStringLiteral("CREATE TABLE %1 (%2)")
                                     .arg(q(entity.name()), defs.join(QStringLiteral(", "))));
                !r) {
                return r;
            }
        } else {
            for (const QString& w : wanted) {
                const auto space = w.indexOf(u' ');
                if (existing->contains(w.left(space))) {
                    continue;
                }
                if (auto r = db.exec(
                        QStringLiteral("ALTER TABLE %1 ADD COLUMN %2%3")
                            .arg(q(entity.name()), sql::quoted(w.left(space)), w.mid(space)));
                    !r) {
                    return r;
                }
            }
        }
        for (const auto& r : entity.relationships()) {
            if (r.toMany) {
                continue;
            }
            const QString index = QString::fromStdString(entity.name() + '_' + r.key);
            if (auto e = db.exec(QStringLiteral("CREATE INDEX IF NOT EXISTS %1 ON %2 (%3)")
                                     .arg(sql::quoted(index), q(entity.name()), q(r.key)));
                !e) {
                return e;
            }
        }
    }
    return db.exec(QStringLiteral("INSERT OR REPLACE INTO meta (key, value) "
                                  "VALUES ('schemaVersion', '%1')")
                       .arg(Model::kSchemaVersion));
}

}  // namespace

StoreFile::StoreFile(QString path, sql::Database db, const Model& model)
    : path_(std::move(path)), db_(std::move(db)), model_(model)
{
}

Result<std::unique_ptr<StoreFile>> StoreFile::open(const QString& path, const Model& model)
{
    auto db = sql::Database::open(path, true);
    if (!db) {
        return std::unexpected(db.error());
    }
    for (const char* pragma : {"PRAGMA journal_mode=WAL", "PRAGMA synchronous=FULL"}) {
        if (auto r = db->exec(QString::fromLatin1(pragma)); !r) {
            return std::unexpected(r.error());
        }
    }
    if (auto r = db->exec(QStringLiteral("BEGIN IMMEDIATE")); !r) {
        return std::unexpected(r.error());
    }
    auto version = storedVersion(*db);
    Result<void> upgraded;
    if (!version) {
        upgraded = std::unexpected(version.error());
    } else if (*version > Model::kSchemaVersion) {
        upgraded =
            fail(QString::fromLatin1(sql::kDomain), 1,
                 QStringLiteral("The store %1 was written by a newer version of Tamo.").arg(path),
                 QStringLiteral("Please update Tamo to open it."));
    } else if (*version < Model::kSchemaVersion) {
        upgraded = upgradeTables(*db, model);
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
    std::unique_ptr<StoreFile> file(new StoreFile(path, std::move(*db), model));
    file->openedVersion_ = *version;
    if (auto r = file->prepareStatements(); !r) {
        return std::unexpected(r.error());
    }
    return file;
}

Result<void> StoreFile::prepareStatements()
{
    for (const EntityDescription& entity : model_.entities()) {
        const QStringList cols = columns(entity);
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
                             .arg(columns(entity).join(u','), q(entity.name())));
    if (!s) {
        return std::unexpected(s.error());
    }
    return readRows(*s, row);
}

Result<void> StoreFile::selectWhere(const EntityDescription& entity, const std::string& column,
                                    qint64 value, const std::function<void(qint64)>& row)
{
    auto s = db_.prepare(QStringLiteral("SELECT %1, pk FROM %2 WHERE %3 = ? ORDER BY pk")
                             .arg(columns(entity).join(u','), q(entity.name()), q(column)));
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

Result<void> StoreFile::write(const std::vector<Record*>& records)
{
    if (auto r = db_.exec(QStringLiteral("BEGIN IMMEDIATE")); !r) {
        return r;
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
    auto s = db_.prepare(QStringLiteral("VACUUM INTO ?"));
    if (!s) {
        return std::unexpected(s.error());
    }
    s->bind(1, path);
    return s->run();
}

}  // namespace tamo
