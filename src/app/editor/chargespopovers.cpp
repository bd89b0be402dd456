#include "app/editor/chargespopovers.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "app/editor/fieldbinder.h"
#include "calc/numberformat.h"
#include "documents/lineitems.h"
#include "model/taxkeys.h"

namespace tamo {

namespace {

FieldBinder* currentDocumentBinder(AppSession& session, QObject* parent)
{
    return new FieldBinder(
        session, [&session] { return session.documents().current(); }, parent);
}

// A title field with a subtitle field and its "shown" box beneath.
void addTitleRows(QFormLayout* form, FieldBinder* binder, const char* title, const char* subtitle,
                  const char* hasSubtitle, const QString& what)
{
    QWidget* parent = form->parentWidget();
    auto* titleEdit = new QLineEdit(parent);
    auto* subtitleEdit = new QLineEdit(parent);
    auto* showSubtitle = new QCheckBox(QObject::tr("Show the subtitle"), parent);
    binder->bindText(titleEdit, title, QObject::tr("Edit %1 Title").arg(what));
    binder->bindText(subtitleEdit, subtitle, QObject::tr("Edit %1 Subtitle").arg(what));
    binder->bindCheck(showSubtitle, hasSubtitle, QObject::tr("Show %1 Subtitle").arg(what));
    form->addRow(QObject::tr("Title:"), titleEdit);
    form->addRow(QObject::tr("Subtitle:"), subtitleEdit);
    form->addRow(QString(), showSubtitle);
}

QWidget* doneRow(Popover* popover, QWidget* parent)
{
    auto* row = new QWidget(parent);
    auto* done = new QPushButton(QObject::tr("Done"), row);
    done->setDefault(true);
    QObject::connect(done, &QPushButton::clicked, popover, &Popover::close);
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addStretch();
    layout->addWidget(done);
    return row;
}

}  // namespace

ShippingPopover::ShippingPopover(AppSession& session, LineItems& lines, QWidget* parent)
    : PagedPopover(parent),
      session_(session),
      lines_(lines),
      binder_(currentDocumentBinder(session, this)),
      remembered_(new QTreeWidget(this))
{
    setObjectName(QStringLiteral("shippingPopover"));
    auto* entry = new QWidget(this);
    auto* form = new QFormLayout(entry);
    auto* enabled = new QCheckBox(tr("Charge shipping"), entry);
    binder_->bindCheck(enabled, "isShippingEnabled", tr("Charge Shipping"));
    form->addRow(QString(), enabled);
    addTitleRows(form, binder_, "shippingTitle", "shippingSubtitle", "hasShippingSubtitle",
                 tr("Shipping"));
    auto* amount = new QLineEdit(entry);
    binder_->bindAmount(amount, "shippingAmount", tr("Edit Shipping Amount"));
    form->addRow(tr("Amount:"), amount);
    auto* taxes = new QHBoxLayout;
    for (int i = 0; i < 3; ++i) {
        const TaxKeys& tax = kTaxes[size_t(i)];
        const QString title = session.settings().string(*tax.titleSetting);
        taxes_[i] = new QCheckBox(title.isEmpty() ? tr("Tax %1").arg(i + 1) : title, entry);
        binder_->bindCheck(taxes_[i], tax.shipping, tr("Tax Shipping"));
        taxes->addWidget(taxes_[i]);
    }
    taxes->addStretch();
    form->addRow(tr("Taxes:"), taxes);
    form->addRow(doneRow(this, entry));

    auto* page = new QWidget(this);
    remembered_->setRootIsDecorated(false);
    remembered_->setHeaderLabels({tr("Title"), tr("Amount")});
    remembered_->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    remembered_->header()->setStretchLastSection(false);
    auto* take = new QPushButton(tr("Use Entry"), page);
    auto* pageLayout = new QVBoxLayout(page);
    pageLayout->addWidget(remembered_);
    pageLayout->addWidget(take, 0, Qt::AlignRight);
    connect(take, &QPushButton::clicked, this, &ShippingPopover::takeRemembered);
    connect(remembered_, &QTreeWidget::itemActivated, this, &ShippingPopover::takeRemembered);

    setPages(entry, tr("Shipping"), page, tr("Remembered"));
    setMinimumWidth(400);
    connect(this, &Popover::closed, this, &ShippingPopover::finish);
}

bool ShippingPopover::open(QWidget* anchor)
{
    if (!lines_.showShippingPopover()) {
        return false;
    }
    taken_ = false;
    binder_->refresh();
    // Taxes switched off in the preferences are offered only while the shipping still has them.
    for (int i = 0; i < 3; ++i) {
        taxes_[i]->setVisible(session_.settings().boolean(*kTaxes[size_t(i)].enabled) ||
                              taxes_[i]->isChecked());
    }
    remembered_->clear();
    entries_ = lines_.rememberedShipping();
    for (size_t i = 0; i < entries_.size(); ++i) {
        auto* item = new QTreeWidgetItem(
            remembered_,
            {entries_[i]->string("title"), stringFromNumber(entries_[i]->decimal("amount"))});
        item->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
        item->setData(0, Qt::UserRole, int(i));
    }
    turnTo(lines_.shippingPopoverPage());
    openAt(anchor);
    return true;
}

void ShippingPopover::takeRemembered()
{
    const QTreeWidgetItem* item = remembered_->currentItem();
    if (!item) {
        return;
    }
    const auto row = size_t(item->data(0, Qt::UserRole).toInt());
    if (row < entries_.size()) {
        binder_->commitAll();
        taken_ = true;
        lines_.selectRecentShipping(*entries_[row]);
        close();
    }
}

void ShippingPopover::finish()
{
    if (!taken_) {
        binder_->commitAll();
        lines_.closeShippingPopover();
    }
    taken_ = false;
}

DiscountPopover::DiscountPopover(AppSession& session, LineItems& lines, QWidget* parent)
    : Popover(parent),
      session_(session),
      lines_(lines),
      binder_(currentDocumentBinder(session, this)),
      amount_(new QLineEdit(this)),
      percent_(new QLineEdit(this))
{
    setObjectName(QStringLiteral("discountPopover"));
    auto* form = new QFormLayout(this);
    form->setContentsMargins(12, 12, 12, 12);
    auto* enabled = new QCheckBox(tr("Grant a discount"), this);
    binder_->bindCheck(enabled, "isDiscountEnabled", tr("Grant Discount"));
    form->addRow(QString(), enabled);
    addTitleRows(form, binder_, "discountTitle", "discountSubtitle", "hasDiscountSubtitle",
                 tr("Discount"));
    auto* kind = new QComboBox(this);
    kind->addItem(tr("Fixed amount"), 0);
    kind->addItem(tr("Percentage of the net sum"), 1);
    binder_->bindChoice(kind, "discountKind", tr("Change Discount Kind"));
    connect(kind, &QComboBox::activated, this, &DiscountPopover::showKind);
    form->addRow(tr("Kind:"), kind);
    binder_->bindAmount(amount_, "discountAmount", tr("Edit Discount Amount"));
    binder_->bindPercent(percent_, "discountPercent", tr("Edit Discount Percentage"));
    percent_->setPlaceholderText(tr("in %"));
    form->addRow(tr("Amount:"), amount_);
    form->addRow(tr("Percentage:"), percent_);
    form->addRow(doneRow(this, this));
    setMinimumWidth(380);
    connect(this, &Popover::closed, this, &DiscountPopover::finish);
}

bool DiscountPopover::open(QWidget* anchor)
{
    if (!lines_.showDiscountPopover()) {
        return false;
    }
    binder_->refresh();
    showKind();
    openAt(anchor);
    return true;
}

void DiscountPopover::showKind()
{
    const Record* document = session_.documents().current();
    // A discount kind other than 0 is a percentage.
    const bool percentage = document && document->integer("discountKind") != 0;
    auto* form = static_cast<QFormLayout*>(layout());
    form->setRowVisible(amount_, !percentage);
    form->setRowVisible(percent_, percentage);
    adjustSize();
}

void DiscountPopover::finish()
{
    binder_->commitAll();
    lines_.closeDiscountPopover();
}

}  // namespace tamo
