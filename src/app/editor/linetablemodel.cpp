#include "app/editor/linetablemodel.h"

#include <QApplication>
#include <QPainter>
#include <QStringList>
#include <algorithm>

#include "calc/numberformat.h"
#include "model/record.h"
#include "model/taxkeys.h"

namespace tamo {

namespace {

// "VAT 19 %" for each tax the line applies; the rate alone when the tax has no title.
QString taxesOf(const Record& line)
{
    QStringList taxes;
    for (int n = 1; n <= 3; ++n) {
        const TaxKeys& tax = kTaxes[size_t(n - 1)];
        if (!line.boolean(tax.applied)) {
            continue;
        }
        QString title = line.string(tax.title);
        if (title.isEmpty()) {
            title = LineTableModel::tr("Tax %1").arg(n);
        }
        taxes << LineTableModel::tr("%1 %2 %").arg(
            title, decimalStringFromNumber(line.decimal(tax.percent) * 100));
    }
    return taxes.join(QStringLiteral(", "));
}

}  // namespace

void LineTableModel::setLines(std::vector<Record*> lines)
{
    beginResetModel();
    lines_ = std::move(lines);
    endResetModel();
}

Record* LineTableModel::lineAt(int row) const
{
    return row >= 0 && size_t(row) < lines_.size() ? lines_[size_t(row)] : nullptr;
}

int LineTableModel::rowOf(const Record* line) const
{
    const auto it = std::find(lines_.begin(), lines_.end(), line);
    return it == lines_.end() ? -1 : int(it - lines_.begin());
}

int LineTableModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(lines_.size());
}

int LineTableModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant LineTableModel::data(const QModelIndex& index, int role) const
{
    const Record* line = lineAt(index.row());
    if (!line) {
        return {};
    }
    if (role == Qt::DisplayRole) {
        switch (index.column()) {
        case Description: {
            const QString subtitle = line->string("subtitle");
            return subtitle.isEmpty() ? line->string("title")
                                      : line->string("title") + u'\n' + subtitle;
        }
        case Quantity:
            return decimalStringFromNumber(line->decimal("unitCount"));
        case Unit:
            return line->string("unit");
        case UnitPrice:
            return stringFromNumber(line->decimal("baseAmount"));
        case Taxes:
            return taxesOf(*line);
        case Amount:
            return stringFromNumber(line->decimal("amount"));
        default:
            return {};
        }
    }
    if (role == TitleRole) {
        return line->string("title");
    }
    if (role == SubtitleRole) {
        return line->string("subtitle");
    }
    if (role == Qt::ToolTipRole && index.column() == Description) {
        const QString sku = line->string("sku");
        const QString note = line->string("note");
        QStringList tip;
        if (!sku.isEmpty()) {
            tip << tr("Article no. %1").arg(sku);
        }
        if (!note.isEmpty()) {
            tip << note;
        }
        return tip.isEmpty() ? QVariant() : QVariant(tip.join(u'\n'));
    }
    if (role == Qt::TextAlignmentRole && index.column() != Description && index.column() != Unit &&
        index.column() != Taxes) {
        return QVariant(Qt::AlignRight | Qt::AlignVCenter);
    }
    return {};
}

QVariant LineTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return {};
    }
    switch (section) {
    case Description:
        return tr("Description");
    case Quantity:
        return tr("Qty");
    case Unit:
        return tr("Unit");
    case UnitPrice:
        return tr("Unit Price");
    case Taxes:
        return tr("Taxes");
    case Amount:
        return tr("Amount");
    default:
        return {};
    }
}

void DescriptionDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                                const QModelIndex& index) const
{
    QStyleOptionViewItem item = option;
    initStyleOption(&item, index);
    item.text.clear();
    const QStyle* style = item.widget ? item.widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &item, painter, item.widget);

    const QRect text = style->subElementRect(QStyle::SE_ItemViewItemText, &item, item.widget)
                           .adjusted(2, 2, -2, -2);
    const bool selected = item.state & QStyle::State_Selected;
    const QPalette::ColorRole strong = selected ? QPalette::HighlightedText : QPalette::Text;
    const int lineHeight = item.fontMetrics.height();
    painter->save();
    painter->setFont(item.font);
    painter->setPen(item.palette.color(strong));
    const QString title = index.data(LineTableModel::TitleRole).toString();
    painter->drawText(text.left(), text.top(), text.width(), lineHeight, Qt::AlignLeft,
                      item.fontMetrics.elidedText(title, Qt::ElideRight, text.width()));
    const QString subtitle = index.data(LineTableModel::SubtitleRole).toString();
    if (!subtitle.isEmpty()) {
        painter->setPen(item.palette.color(selected ? strong : QPalette::PlaceholderText));
        painter->drawText(text.left(), text.top() + lineHeight, text.width(), lineHeight,
                          Qt::AlignLeft,
                          item.fontMetrics.elidedText(subtitle, Qt::ElideRight, text.width()));
    }
    painter->restore();
}

QSize DescriptionDelegate::sizeHint(const QStyleOptionViewItem& option,
                                    const QModelIndex& index) const
{
    const bool subtitle = !index.data(LineTableModel::SubtitleRole).toString().isEmpty();
    const QSize size = QStyledItemDelegate::sizeHint(option, index);
    return {size.width(), option.fontMetrics.height() * (subtitle ? 2 : 1) + 8};
}

}  // namespace tamo
