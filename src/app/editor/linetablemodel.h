#pragma once

#include <QAbstractTableModel>
#include <QStyledItemDelegate>
#include <vector>

namespace tamo {

class Record;

// The lines of the shown document, in the order the line list is sorted.
class LineTableModel : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column { Description, Quantity, Unit, UnitPrice, Taxes, Amount, ColumnCount };
    // The line's title and subtitle apart, for the description's delegate.
    enum Role { TitleRole = Qt::UserRole, SubtitleRole };

    using QAbstractTableModel::QAbstractTableModel;

    void setLines(std::vector<Record*> lines);
    Record* lineAt(int row) const;
    int rowOf(const Record* line) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    std::vector<Record*> lines_;
};

// Draws a line's description as its title with the subtitle beneath in a quieter colour.
class DescriptionDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;
    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

}  // namespace tamo
