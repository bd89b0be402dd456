#pragma once

#include <QStringList>
#include <string>

#include "model/entity.h"
#include "model/sqlite.h"

namespace tamo::layout {

// The tables of a store: one per entity, a column per attribute and per to-one relationship
// after the primary key `pk`, an index on each to-one relationship, and the table `meta` of
// small values (the layout version among them).

QString quotedName(const std::string& identifier);
// Columns after the primary key, quoted: every attribute, then every to-one relationship.
QStringList columns(const EntityDescription& entity);

// The layout version recorded in the file, creating the meta table when there is none.
Result<int> storedVersion(sql::Database& db);
// Brings the tables up to the model: new entities get tables, new attributes get columns.
Result<void> upgradeTables(sql::Database& db, const Model& model);
// The file holds exactly what Tamo makes and nothing else: its own tables, each with columns of
// its own (an older layout may lack some) in Tamo's own form, its own indexes, and no trigger,
// view or other object. The refusal names what is foreign.
Result<void> checkLayout(sql::Database& db, const Model& model);

// SQLite's own check of the file: every page (quick), or every page and index entry. The first
// problem found, or an empty text when there is none.
Result<QString> integrityProblem(sql::Database& db, bool quick);

}  // namespace tamo::layout
