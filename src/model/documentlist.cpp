#include "model/documentlist.h"

#include <algorithm>

namespace tamo {

DocumentList::DocumentList(QObject* parent)
    : QObject(parent), sort_{{"date", false}, {"number", false}}
{
}

void DocumentList::setContext(Context* context)
{
    disconnect(connection_);
    context_ = context;
    if (context_) {
        connection_ =
            connect(context_, &Context::objectsDidChange, this, &DocumentList::contextChanged);
    }
    selection_.clear();
    rearrange();
    emit selectionChanged();
}

Record* DocumentList::at(int row) const
{
    return row >= 0 && row < size() ? arranged_[size_t(row)] : nullptr;
}

int DocumentList::indexOf(const Record* record) const
{
    const auto it = rows_.find(record);
    return it == rows_.end() ? -1 : it->second;
}

void DocumentList::setFilter(int tag, Predicate filter)
{
    filter_ = std::move(filter);
    filterTag_ = tag;
    rearrange();
    emit filterChanged(tag);
}

void DocumentList::setSearchText(const QString& text)
{
    if (text == search_) {
        return;
    }
    search_ = text;
    rearrange();
    emit searchTextChanged(text);
}

void DocumentList::reveal(Record* document)
{
    const bool filtered = filter_ || filterTag_ != 0;
    const bool searched = !search_.isEmpty();
    filter_ = {};
    filterTag_ = 0;
    search_.clear();
    if (filtered || searched || (document && !rows_.contains(document))) {
        rearrange();
    }
    if (filtered) {
        emit filterChanged(0);
    }
    if (searched) {
        emit searchTextChanged(search_);
    }
    setSelection(document ? std::vector<Record*>{document} : std::vector<Record*>{});
}

void DocumentList::setSortDescriptors(std::vector<SortDescriptor> sort)
{
    sort_ = std::move(sort);
    rearrange();
}

bool DocumentList::matchesSearch(const Record& document, const QString& text)
{
    if (text.isEmpty()) {
        return true;
    }
    for (const char* key : {"number", "title", "subject", "customerName", "clientNumber", "address",
                            "emailAddress"}) {
        if (document.string(key).contains(text, Qt::CaseInsensitive)) {
            return true;
        }
    }
    return false;
}

void DocumentList::rearrange()
{
    arranged_.clear();
    rows_.clear();
    if (context_) {
        const QString search = search_.trimmed();
        arranged_ = context_->fetch(
            "Invoice",
            [&](const Record& r) { return (!filter_ || filter_(r)) && matchesSearch(r, search); },
            sort_);
    }
    rows_.reserve(arranged_.size());
    for (size_t i = 0; i < arranged_.size(); ++i) {
        rows_.emplace(arranged_[i], int(i));
    }
    // The selection keeps only what is still listed.
    const auto before = selection_.size();
    std::erase_if(selection_, [this](Record* r) { return !rows_.contains(r); });
    emit arrangementChanged();
    if (selection_.size() != before) {
        emit selectionChanged();
    }
}

void DocumentList::setSelection(std::vector<Record*> records)
{
    std::erase_if(records, [this](Record* r) { return !rows_.contains(r); });
    if (records == selection_) {
        return;
    }
    selection_ = std::move(records);
    emit selectionChanged();
}

void DocumentList::contextChanged(const ChangeSet& changes)
{
    const auto isDocument = [](const Record* r) { return r->is("Invoice"); };
    if (std::any_of(changes.inserted.begin(), changes.inserted.end(), isDocument) ||
        std::any_of(changes.deleted.begin(), changes.deleted.end(), isDocument)) {
        rearrange();
        return;
    }
    std::vector<Record*> changed;
    for (Record* r : changes.updated) {
        if (isDocument(r) && rows_.contains(r)) {
            changed.push_back(r);
        }
    }
    if (!changed.empty()) {
        emit documentsChanged(changed);
    }
}

}  // namespace tamo
