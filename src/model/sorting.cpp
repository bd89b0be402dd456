#include <QDateTime>
#include <algorithm>

#include "model/context.h"

namespace tamo {

bool ChangeSet::touches(std::string_view entity) const
{
    for (const auto* list : {&inserted, &updated, &deleted}) {
        for (const Record* r : *list) {
            if (r->is(entity)) {
                return true;
            }
        }
    }
    return false;
}

int compareValues(const Value& a, const Value& b)
{
    if (a.isNull() || b.isNull()) {
        return int(b.isNull()) - int(a.isNull());
    }
    if (a.isString() && b.isString()) {
        const QString sa = a.toString(), sb = b.toString();
        const int c = QString::compare(sa, sb, Qt::CaseInsensitive);
        return c != 0 ? c : QString::compare(sa, sb, Qt::CaseSensitive);
    }
    if (a.isDate() && b.isDate()) {
        const qint64 ma = a.toDate().toMSecsSinceEpoch(), mb = b.toDate().toMSecsSinceEpoch();
        return ma < mb ? -1 : (ma > mb ? 1 : 0);
    }
    const double da = a.toDouble(), db = b.toDouble();
    return da < db ? -1 : (da > db ? 1 : 0);
}

void sortRecords(std::vector<Record*>& records, const std::vector<SortDescriptor>& sort)
{
    if (records.empty() || sort.empty()) {
        return;
    }
    std::vector<std::pair<int, bool>> keys;
    for (const SortDescriptor& d : sort) {
        const int index = records.front()->entity().attributeIndex(d.key);
        if (index < 0) {
            qFatal("Cannot sort %s by \"%s\"", records.front()->entity().name().c_str(),
                   d.key.c_str());
        }
        keys.emplace_back(index, d.ascending);
    }
    std::stable_sort(records.begin(), records.end(), [&](const Record* a, const Record* b) {
        for (const auto& [index, ascending] : keys) {
            const int c = compareValues(a->valueAt(index), b->valueAt(index));
            if (c != 0) {
                return ascending ? c < 0 : c > 0;
            }
        }
        return false;
    });
}

}  // namespace tamo
