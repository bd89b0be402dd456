#pragma once

#include <QObject>
#include <unordered_map>
#include <vector>

#include "model/context.h"

namespace tamo {

// The arranged list of documents: every Invoice record, narrowed by an optional filter and the
// search text, in the user's sort order; plus the selection, whose first record is the current
// document.
class DocumentList : public QObject {
    Q_OBJECT

public:
    explicit DocumentList(QObject* parent = nullptr);

    void setContext(Context* context);
    Context* context() const { return context_; }

    const std::vector<Record*>& arranged() const { return arranged_; }
    int size() const { return int(arranged_.size()); }
    Record* at(int row) const;
    int indexOf(const Record* record) const;  // -1 when not listed

    // The filter and the tag the window names it by (0: none, 99: one document).
    void setFilter(int tag, Predicate filter);
    int filterTag() const { return filterTag_; }
    void setSearchText(const QString& text);
    QString searchText() const { return search_; }
    // Lists every document again (no filter, no search text) and makes `document` the current
    // one: a document the person just created or brought in is never hidden.
    void reveal(Record* document);
    void setSortDescriptors(std::vector<SortDescriptor> sort);
    const std::vector<SortDescriptor>& sortDescriptors() const { return sort_; }
    // Fetches, filters and sorts again.
    void rearrange();

    const std::vector<Record*>& selection() const { return selection_; }
    void setSelection(std::vector<Record*> records);
    Record* current() const { return selection_.empty() ? nullptr : selection_.front(); }

    static bool matchesSearch(const Record& document, const QString& text);

signals:
    void arrangementChanged();
    void documentsChanged(const std::vector<tamo::Record*>& documents);
    void selectionChanged();
    void filterChanged(int tag);
    void searchTextChanged(const QString& text);

private:
    void contextChanged(const ChangeSet& changes);

    Context* context_ = nullptr;
    Predicate filter_;
    int filterTag_ = 0;
    QString search_;
    std::vector<SortDescriptor> sort_;
    std::vector<Record*> arranged_;
    std::unordered_map<const Record*, int> rows_;
    std::vector<Record*> selection_;
    QMetaObject::Connection connection_;
};

}  // namespace tamo
