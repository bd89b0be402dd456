#include "app/editor/linessection.h"

#include <QAction>
#include <QActionGroup>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QMenu>
#include <QPushButton>
#include <QTableView>
#include <QToolButton>
#include <QVBoxLayout>

#include "app/editor/chargespopovers.h"
#include "app/editor/itempopover.h"
#include "app/editor/linefieldsform.h"
#include "app/editor/linetablemodel.h"
#include "app/editor/totalsview.h"
#include "documents/lineitems.h"
#include "model/transformers.h"

namespace tamo {

LinesSection::LinesSection(AppSession& session, LineItems& lines, QWidget* parent)
    : QWidget(parent),
      session_(session),
      lines_(lines),
      model_(new LineTableModel(this)),
      table_(new QTableView(this)),
      totals_(new TotalsView(this)),
      add_(new QPushButton(QIcon::fromTheme(QStringLiteral("list-add")), tr("Add Line…"), this)),
      edit_(new QPushButton(tr("Edit…"), this)),
      remove_(new QPushButton(QIcon::fromTheme(QStringLiteral("list-remove")), tr("Remove"), this)),
      shipping_(new QPushButton(tr("Shipping…"), this)),
      discount_(new QPushButton(tr("Discount…"), this)),
      itemPopover_(new ItemPopover(session, lines, this)),
      shippingPopover_(new ShippingPopover(session, lines, this)),
      discountPopover_(new DiscountPopover(session, lines, this))
{
    add_->setObjectName(QStringLiteral("addLine"));
    edit_->setObjectName(QStringLiteral("editLine"));
    remove_->setObjectName(QStringLiteral("removeLine"));
    shipping_->setObjectName(QStringLiteral("shipping"));
    discount_->setObjectName(QStringLiteral("discount"));
    for (QPushButton* b : {add_, edit_, remove_, shipping_, discount_}) {
        b->setAutoDefault(false);
    }

    table_->setModel(model_);
    table_->setSelectionBehavior(QAbstractItemView::SelectRows);
    table_->setSelectionMode(QAbstractItemView::SingleSelection);
    table_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table_->setAlternatingRowColors(true);
    table_->setShowGrid(false);
    table_->setWordWrap(false);
    table_->setItemDelegateForColumn(LineTableModel::Description, new DescriptionDelegate(table_));
    table_->verticalHeader()->hide();
    table_->verticalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    QHeaderView* header = table_->horizontalHeader();
    header->setHighlightSections(false);
    header->setSectionResizeMode(LineTableModel::Description, QHeaderView::Stretch);
    for (int c = LineTableModel::Quantity; c < LineTableModel::ColumnCount; ++c) {
        header->setSectionResizeMode(c, QHeaderView::ResizeToContents);
    }
    connect(table_, &QTableView::activated, this, &LinesSection::editLine);
    // Delete removes a line only while the line table has the focus.
    auto* removeKey = new QAction(this);
    removeKey->setShortcuts({QKeySequence::Delete, Qt::Key_Backspace});
    removeKey->setShortcutContext(Qt::WidgetShortcut);
    table_->addAction(removeKey);
    connect(removeKey, &QAction::triggered, this, &LinesSection::removeLine);

    connect(add_, &QPushButton::clicked, this, &LinesSection::addLine);
    connect(edit_, &QPushButton::clicked, this, &LinesSection::editLine);
    connect(remove_, &QPushButton::clicked, this, &LinesSection::removeLine);
    connect(shipping_, &QPushButton::clicked, this, &LinesSection::editShipping);
    connect(discount_, &QPushButton::clicked, this, &LinesSection::editDiscount);
    connect(itemPopover_, &ItemPopover::lineAdded, this, &LinesSection::selectLine);

    auto* buttons = new QHBoxLayout;
    buttons->addWidget(add_);
    buttons->addWidget(edit_);
    buttons->addWidget(remove_);
    buttons->addStretch();
    buttons->addWidget(sortButton());

    auto* charges = new QVBoxLayout;
    charges->addWidget(shipping_);
    charges->addWidget(discount_);
    charges->addStretch();
    auto* bottom = new QHBoxLayout;
    bottom->addLayout(charges);
    bottom->addStretch();
    bottom->addWidget(totals_);

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(buttons);
    layout->addWidget(table_, 1);
    layout->addSpacing(6);
    layout->addLayout(bottom);
}

QToolButton* LinesSection::sortButton()
{
    auto* button = new QToolButton(this);
    button->setText(tr("Sort"));
    button->setIcon(QIcon::fromTheme(QStringLiteral("view-sort-ascending")));
    button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    button->setPopupMode(QToolButton::InstantPopup);
    button->setToolTip(tr("Order of the lines"));
    auto* menu = new QMenu(button);
    auto* group = new QActionGroup(menu);
    const std::pair<int, QString> orders[] = {{1, tr("In Order of Entry")},
                                              {2, tr("By Title")},
                                              {3, tr("By Amount")},
                                              {0, tr("As Stored")}};
    for (const auto& [order, text] : orders) {
        QAction* a = menu->addAction(text);
        a->setCheckable(true);
        a->setData(order);
        group->addAction(a);
        connect(a, &QAction::triggered, this, [this, order] {
            session_.settings().set(key::itemSortOrder, order);
            refresh();
        });
    }
    connect(menu, &QMenu::aboutToShow, this, [this, group] {
        const int order = session_.settings().integer(key::itemSortOrder);
        for (QAction* a : group->actions()) {
            a->setChecked(a->data().toInt() == order);
        }
    });
    button->setMenu(menu);
    return button;
}

void LinesSection::showDocument(Record* document)
{
    document_ = document;
    refresh();
}

void LinesSection::refresh()
{
    if (!document_ || document_->isDeleted()) {
        model_->setLines({});
        return;
    }
    const Record* selected = selectedLine();
    model_->setLines(lines_.sortedItems(*document_));
    selectLine(selected);
    totals_->showDocument(*document_, session_.settings());
    // A sent document's lines, shipping and discount are locked with it.
    const bool editable = invoiceSentToBool(document_);
    for (QPushButton* b : {add_, edit_, remove_, shipping_, discount_}) {
        b->setEnabled(editable);
    }
}

Record* LinesSection::selectedLine() const
{
    const QModelIndexList rows = table_->selectionModel()->selectedRows();
    return rows.isEmpty() ? nullptr : model_->lineAt(rows.first().row());
}

void LinesSection::selectLine(const Record* line)
{
    const int row = model_->rowOf(line);
    if (row >= 0) {
        table_->selectRow(row);
        table_->scrollTo(model_->index(row, 0));
    }
}

void LinesSection::addLine()
{
    itemPopover_->open(add_);
}

void LinesSection::editLine()
{
    Record* line = selectedLine();
    const std::optional<LineFields> fields = lines_.openEditItemSheet(line);
    if (!fields) {
        return;
    }
    EditItemSheet sheet(session_, this);
    sheet.form()->setFields(*fields);
    if (sheet.exec() == QDialog::Accepted) {
        lines_.editItem(line, *sheet.form()->fields());
    }
}

void LinesSection::removeLine()
{
    Record* line = selectedLine();
    if (line) {
        lines_.deleteItem(line);
    }
}

void LinesSection::editShipping()
{
    shippingPopover_->open(shipping_);
}

void LinesSection::editDiscount()
{
    discountPopover_->open(discount_);
}

}  // namespace tamo
