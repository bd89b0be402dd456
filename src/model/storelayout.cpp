#include "model/storelayout.h"
#include "platform/translations.h"

#include <QCoreApplication>
#include <QHash>
#include <QSet>

namespace tamo::layout {

namespace {

constexpr auto kMetaTable = "CREATE TABLE meta (key TEXT PRIMARY KEY, value TEXT)";

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

// Each column after the primary key with its definition ("\"title\" TEXT"), in model order.
std::vector<std::pair<QString, QString>> definitions(const EntityDescription& entity)
{
    std::vector<std::pair<QString, QString>> list;
    for (const auto& a : entity.attributes()) {
        list.emplace_back(QString::fromStdString(a.key), q(a.key) + u' ' + columnType(a.type));
    }
    for (const auto& r : entity.relationships()) {
        if (!r.toMany) {
            list.emplace_back(QString::fromStdString(r.key), q(r.key) + QStringLiteral(" INTEGER"));
        }
    }
    return list;
}

QString createTable(const EntityDescription& entity, const QStringList& columnDefinitions)
{
    return QStringLiteral("CREATE TABLE %1 (pk INTEGER PRIMARY KEY%2)")
        .arg(q(entity.name()),
             columnDefinitions.isEmpty() ? QString() : u", "_qs + columnDefinitions.join(u", "));
}

QString indexName(const EntityDescription& entity, const RelationshipDescription& relationship)
{
    return QString::fromStdString(entity.name() + '_' + relationship.key);
}

QString createIndex(const EntityDescription& entity, const RelationshipDescription& relationship)
{
    return QStringLiteral("CREATE INDEX %1 ON %2 (%3)")
        .arg(sql::quoted(indexName(entity, relationship)), q(entity.name()), q(relationship.key));
}

// The table's columns with their "hidden" mark (generated and virtual columns are hidden).
Result<std::vector<std::pair<QString, int>>> tableColumns(sql::Database& db, const QString& table)
{
    auto info = db.prepare(QStringLiteral("PRAGMA table_xinfo(%1)").arg(sql::quoted(table)));
    if (!info) {
        return std::unexpected(info.error());
    }
    std::vector<std::pair<QString, int>> list;
    while (info->step()) {
        list.emplace_back(info->text(1), int(info->int64(6)));
    }
    if (info->error()) {
        return std::unexpected(*info->error());
    }
    return list;
}

Error foreign(const QString& reason)
{
    return Error{QString::fromLatin1(sql::kDomain), SQLITE_MISMATCH,
                 tr("The file does not hold a Tamo database alone."), reason};
}

// The table holds only columns of the entity, each as Tamo defines it.
Result<void> checkTable(sql::Database& db, const EntityDescription& entity, const QString& sql)
{
    auto columns = tableColumns(db, QString::fromStdString(entity.name()));
    if (!columns) {
        return std::unexpected(columns.error());
    }
    QHash<QString, QString> known;
    for (const auto& [name, definition] : definitions(entity)) {
        known.insert(name, definition);
    }
    QStringList present;
    for (size_t i = 0; i < columns->size(); ++i) {
        const auto& [name, hidden] = (*columns)[i];
        if (i == 0 && name == u"pk") {
            continue;
        }
        if (hidden != 0 || !known.contains(name)) {
            return std::unexpected(foreign(tr("Its table “%1” has a column “%2” that Tamo does "
                                              "not make.")
                                               .arg(entity.qName(), name)));
        }
        present << known.value(name);
    }
    if (sql != createTable(entity, present)) {
        return std::unexpected(
            foreign(tr("Its table “%1” is not defined as Tamo defines it.").arg(entity.qName())));
    }
    return {};
}

}  // namespace

QString quotedName(const std::string& identifier)
{
    return q(identifier);
}

QStringList columns(const EntityDescription& entity)
{
    QStringList list;
    for (const auto& column : definitions(entity)) {
        list << sql::quoted(column.first);
    }
    return list;
}

Result<int> storedVersion(sql::Database& db)
{
    if (auto r = db.exec(QString::fromLatin1(kMetaTable)
                             .replace(u"CREATE TABLE"_qs, u"CREATE TABLE IF NOT EXISTS"_qs));
        !r) {
        return std::unexpected(r.error());
    }
    auto s = db.prepare(QStringLiteral("SELECT value FROM meta WHERE key = 'schemaVersion'"));
    if (!s) {
        return std::unexpected(s.error());
    }
    return s->step() ? s->text(0).toInt() : 0;
}

// Stores only ever gain; nothing is dropped, so an older store keeps all it holds.
Result<void> upgradeTables(sql::Database& db, const Model& model)
{
    for (const EntityDescription& entity : model.entities()) {
        auto existing = tableColumns(db, QString::fromStdString(entity.name()));
        if (!existing) {
            return std::unexpected(existing.error());
        }
        QSet<QString> names;
        for (const auto& column : *existing) {
            names.insert(column.first);
        }
        QStringList wanted;
        for (const auto& [name, definition] : definitions(entity)) {
            if (existing->empty()) {
                wanted << definition;
            } else if (!names.contains(name)) {
                if (auto r = db.exec(QStringLiteral("ALTER TABLE %1 ADD COLUMN %2")
                                         .arg(q(entity.name()), definition));
                    !r) {
                    return r;
                }
            }
        }
        if (existing->empty()) {
            if (auto r = db.exec(createTable(entity, wanted)); !r) {
                return r;
            }
        }
        for (const auto& r : entity.relationships()) {
            if (r.toMany) {
                continue;
            }
            if (auto e = db.exec(createIndex(entity, r).replace(u"CREATE INDEX"_qs,
                                                                u"CREATE INDEX IF NOT EXISTS"_qs));
                !e) {
                return e;
            }
        }
    }
    return db.exec(QStringLiteral("INSERT OR REPLACE INTO meta (key, value) "
                                  "VALUES ('schemaVersion', '%1')")
                       .arg(Model::kSchemaVersion));
}

Result<void> checkLayout(sql::Database& db, const Model& model)
{
    auto objects =
        db.prepare(QStringLiteral("SELECT type, name, tbl_name, sql FROM sqlite_master"));
    if (!objects) {
        return std::unexpected(objects.error());
    }
    while (objects->step()) {
        const QString type = objects->text(0);
        const QString name = objects->text(1);
        const QString table = objects->text(2);
        const QString sql = objects->text(3);
        const EntityDescription* entity = model.entity(table.toStdString());
        if (type == u"table" && name == u"meta") {
            if (sql != QLatin1String(kMetaTable)) {
                return std::unexpected(
                    foreign(tr("Its table “meta” is not defined as Tamo "
                               "defines it.")));
            }
            continue;
        }
        if (type == u"table" && entity && name == table) {
            if (auto checked = checkTable(db, *entity, sql); !checked) {
                return checked;
            }
            continue;
        }
        if (type == u"index" && name == u"sqlite_autoindex_meta_1" && table == u"meta" &&
            objects->isNull(3)) {
            continue;
        }
        if (type == u"index" && entity) {
            bool ours = false;
            for (const auto& r : entity->relationships()) {
                ours = ours || (!r.toMany && name == indexName(*entity, r) &&
                                sql == createIndex(*entity, r));
            }
            if (ours) {
                continue;
            }
        }
        const QString kind = type == u"trigger" ? tr("a trigger")
                             : type == u"view"  ? tr("a view")
                             : type == u"index" ? tr("an index")
                                                : tr("a table");
        return std::unexpected(
            foreign(tr("It holds %1 “%2”, which a Tamo database never has.").arg(kind, name)));
    }
    if (objects->error()) {
        return std::unexpected(*objects->error());
    }
    return {};
}

Result<QString> integrityProblem(sql::Database& db, bool quick)
{
    auto check = db.prepare(quick ? QStringLiteral("PRAGMA quick_check(1)")
                                  : QStringLiteral("PRAGMA integrity_check(1)"));
    if (!check) {
        return std::unexpected(check.error());
    }
    if (!check->step()) {
        if (check->error()) {
            return std::unexpected(*check->error());
        }
        return tr("SQLite gave no result.");
    }
    // The first problem, without SQLite's heading ("*** in database main ***").
    QStringList lines = check->text(0).split(u'\n', Qt::SkipEmptyParts);
    lines.removeIf([](const QString& line) { return line.startsWith(u"*** "); });
    const QString result = lines.join(u' ');
    return result == u"ok" ? QString() : result + u'.';
}

}  // namespace tamo::layout
