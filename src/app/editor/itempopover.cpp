#include "app/editor/itempopover.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "app/editor/linefieldsform.h"
#include "calc/numberformat.h"
#include "documents/lineitems.h"

namespace tamo {

ItemPopover::ItemPopover(AppSession& session, LineItems& lines, QWidget* parent)
    : PagedPopover(parent),
      session_(session),
      lines_(lines),
      form_(new LineFieldsForm(this)),
      catalogSearch_(new QLineEdit(this)),
      catalog_(new QTreeWidget(this))
{
    setObjectName(QStringLiteral("itemPopover"));

    auto* entry = new QWidget(this);
    auto* add = new QPushButton(tr("Add Line"), entry);
    add->setObjectName(QStringLiteral("addLineButton"));
    add->setDefault(true);
    auto* entryButtons = new QHBoxLayout;
    entryButtons->addStretch();
    entryButtons->addWidget(add);
    auto* entryLayout = new QVBoxLayout(entry);
    entryLayout->addWidget(form_);
    entryLayout->addStretch();
    entryLayout->addLayout(entryButtons);
    connect(add, &QPushButton::clicked, this, &ItemPopover::addLine);
    connect(form_, &LineFieldsForm::submitted, this, &ItemPopover::addLine);

    auto* page = new QWidget(this);
    catalogSearch_->setPlaceholderText(tr("Search the catalog"));
    catalogSearch_->setClearButtonEnabled(true);
    catalog_->setObjectName(QStringLiteral("catalogList"));
    catalog_->setRootIsDecorated(false);
    catalog_->setAlternatingRowColors(true);
    catalog_->setHeaderLabels({tr("Title"), tr("Article no."), tr("Unit"), tr("Price")});
    catalog_->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    catalog_->header()->setStretchLastSection(false);
    auto* take = new QPushButton(tr("Use Entry"), page);
    auto* pageButtons = new QHBoxLayout;
    pageButtons->addStretch();
    pageButtons->addWidget(take);
    auto* pageLayout = new QVBoxLayout(page);
    pageLayout->addWidget(catalogSearch_);
    pageLayout->addWidget(catalog_);
    pageLayout->addLayout(pageButtons);
    connect(take, &QPushButton::clicked, this, &ItemPopover::takeCatalogEntry);
    connect(catalog_, &QTreeWidget::itemActivated, this, &ItemPopover::takeCatalogEntry);
    connect(catalogSearch_, &QLineEdit::textChanged, this, &ItemPopover::fillCatalog);

    setPages(entry, tr("New Line"), page, tr("Catalog"));
    setMinimumWidth(460);
}

bool ItemPopover::open(QWidget* anchor)
{
    std::optional<LineFields> fields = lines_.showItemPopover();
    if (!fields) {
        return false;
    }
    form_->showTaxes(session_.settings());
    if (!taxesSet_) {
        // The first time, the taxes switched on in the preferences are ticked; afterwards the
        // boxes stay as the person left them.
        fields->tax1 = session_.settings().boolean(key::tax1Enabled);
        fields->tax2 = session_.settings().boolean(key::tax2Enabled);
        fields->tax3 = session_.settings().boolean(key::tax3Enabled);
    }
    form_->setFields(*fields, taxesSet_);
    taxesSet_ = true;
    catalogSearch_->clear();
    fillCatalog();
    turnTo(lines_.itemPopoverPage());
    openAt(anchor);
    (pages()->currentIndex() == kEntryPage ? static_cast<QWidget*>(form_->titleField())
                                           : catalogSearch_)
        ->setFocus(Qt::PopupFocusReason);
    return true;
}

void ItemPopover::fillCatalog()
{
    catalog_->clear();
    entries_.clear();
    const QString search = catalogSearch_->text().trimmed();
    for (Record* entry : lines_.catalog()) {
        if (!search.isEmpty() && !entry->string("title").contains(search, Qt::CaseInsensitive) &&
            !entry->string("sku").contains(search, Qt::CaseInsensitive)) {
            continue;
        }
        auto* item = new QTreeWidgetItem(
            catalog_, {entry->string("title"), entry->string("sku"), entry->string("unit"),
                       stringFromNumber(entry->decimal("baseAmount"))});
        item->setTextAlignment(3, Qt::AlignRight | Qt::AlignVCenter);
        item->setToolTip(0, entry->string("subtitle"));
        item->setData(0, Qt::UserRole, int(entries_.size()));  // kept when the list is sorted
        entries_.push_back(entry);
    }
    catalog_->sortItems(0, Qt::AscendingOrder);
    if (catalog_->topLevelItemCount() > 0) {
        catalog_->setCurrentItem(catalog_->topLevelItem(0));
    }
}

void ItemPopover::takeCatalogEntry()
{
    QTreeWidgetItem* item = catalog_->currentItem();
    if (!item) {
        return;
    }
    const auto row = size_t(item->data(0, Qt::UserRole).toInt());
    if (row >= entries_.size()) {
        return;
    }
    const LineFields current = form_->fields().value_or(LineFields{});
    form_->setFields(lines_.addItemRecent(*entries_[row], current));
    turnTo(kEntryPage);
    form_->quantityField()->setFocus(Qt::OtherFocusReason);
    form_->quantityField()->selectAll();
}

void ItemPopover::addLine()
{
    const std::optional<LineFields> fields = form_->fields();
    if (!fields) {
        return;
    }
    Record* line = lines_.addItem(*fields);
    close();
    if (line) {
        emit lineAdded(line);
    }
}

EditItemSheet::EditItemSheet(const AppSession& session, QWidget* parent)
    : QDialog(parent), form_(new LineFieldsForm(this))
{
    setWindowTitle(tr("Edit Line"));
    form_->showTaxes(session.settings());
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &EditItemSheet::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &EditItemSheet::reject);
    connect(form_, &LineFieldsForm::submitted, this, &EditItemSheet::accept);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(form_);
    layout->addWidget(buttons);
    setMinimumWidth(440);
}

void EditItemSheet::accept()
{
    if (form_->fields()) {
        QDialog::accept();
    }
}

}  // namespace tamo
