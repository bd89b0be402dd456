#include "app/documenttablemodel.h"

#include <QLocale>

#include "calc/numberformat.h"
#include "model/documentlist.h"
#include "model/transformers.h"

namespace tamo {

DocumentTableModel::DocumentTableModel(DocumentList& list, QObject* parent)
    : QAbstractTableModel(parent), list_(list)
{
    connect(&list_, &DocumentList::arrangementChanged, this, [this] {
        beginResetModel();
        endResetModel();
    });
    connect(&list_, &DocumentList::documentsChanged, this,
            [this](const std::vector<Record*>& documents) {
                for (const Record* d : documents) {
                    const int row = list_.indexOf(d);
                    if (row >= 0) {
                        emit dataChanged(index(row, 0), index(row, ColumnCount - 1));
                    }
                }
            });
}

int DocumentTableModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : list_.size();
}

int DocumentTableModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

Record* DocumentTableModel::recordAt(int row) const
{
    return list_.at(row);
}

QIcon DocumentTableModel::stamp(const QString& name) const
{
    auto it = stamps_.find(name);
    if (it == stamps_.end()) {
        it = stamps_.insert(name, QIcon(QStringLiteral(":/stamps/%1.svg").arg(name)));
    }
    return *it;
}

QVariant DocumentTableModel::data(const QModelIndex& index, int role) const
{
    const Record* d = list_.at(index.row());
    if (!d) {
        return {};
    }
    const QLocale locale;
    if (role == Qt::DisplayRole) {
        switch (index.column()) {
        case Number:
            return d->string("number");
        case Title:
            return d->string("title");
        case Client:
            return d->string("customerName");
        case Date:
            return locale.toString(d->date("date").toLocalTime().date(), QLocale::ShortFormat);
        case Due:
            return locale.toString(d->date("due").toLocalTime().date(), QLocale::ShortFormat);
        case Amount:
            return stringFromNumber(d->decimal("amount"), locale);
        case Currency:
            return d->string("currency");
        default:
            return {};
        }
    }
    if (role == Qt::DecorationRole && index.column() == Stamp) {
        return stamp(stampImageName(d, true));
    }
    if (role == Qt::ToolTipRole && index.column() == Stamp) {
        return statusLabel(d);
    }
    if (role == Qt::TextAlignmentRole && index.column() == Amount) {
        return QVariant(Qt::AlignRight | Qt::AlignVCenter);
    }
    return {};
}

QVariant DocumentTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return {};
    }
    switch (section) {
    case Stamp:
        return QString();
    case Number:
        return tr("Number");
    case Title:
        return tr("Title");
    case Client:
        return tr("Client");
    case Date:
        return tr("Date");
    case Due:
        return tr("Due");
    case Amount:
        return tr("Amount");
    case Currency:
        return tr("Currency");
    default:
        return {};
    }
}

void DocumentTableModel::sort(int column, Qt::SortOrder order)
{
    static const char* const keys[ColumnCount] = {"status", "number", "title",  "customerName",
                                                  "date",   "due",    "amount", "currency"};
    if (column < 0 || column >= ColumnCount) {
        return;
    }
    const bool ascending = order == Qt::AscendingOrder;
    std::vector<SortDescriptor> sort;
    if (column == Stamp) {
        sort.push_back({"kind", ascending});
    }
    sort.push_back({keys[column], ascending});
    sort.push_back({"number", ascending});
    list_.setSortDescriptors(std::move(sort));
}

}  // namespace tamo
