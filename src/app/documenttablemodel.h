#pragma once

#include <QAbstractTableModel>
#include <QHash>
#include <QIcon>

namespace tamo {

class DocumentList;
class Record;

// Shows the arranged document list in a table; sorting by a column sorts the list itself.
class DocumentTableModel : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column { Stamp, Number, Title, Client, Date, Due, Amount, Currency, ColumnCount };

    explicit DocumentTableModel(DocumentList& list, QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    void sort(int column, Qt::SortOrder order) override;

    Record* recordAt(int row) const;

private:
    QIcon stamp(const QString& name) const;

    DocumentList& list_;
    mutable QHash<QString, QIcon> stamps_;
};

}  // namespace tamo
