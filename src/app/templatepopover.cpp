#include "app/templatepopover.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QInputDialog>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include "render/documenttemplates.h"
#include "settings/settings.h"

namespace tamo {

TemplatePopover::TemplatePopover(DocumentTemplates& templates, Settings& settings, QWidget* parent)
    : QDialog(parent), templates_(templates), settings_(settings), list_(new QListWidget(this))
{
    setWindowTitle(tr("Document Templates"));
    setObjectName(QStringLiteral("templatePopover"));

    // What "Save as Template" takes over; remembered in the settings.
    auto* include = new QGroupBox(tr("A new template takes over"), this);
    auto* boxes = new QHBoxLayout(include);
    for (const TemplatePart& part : templateParts()) {
        auto* box =
            new QCheckBox(QCoreApplication::translate("DocumentTemplates", part.label), include);
        box->setChecked(settings_.boolean(*part.include));
        connect(box, &QCheckBox::toggled, this,
                [this, k = part.include](bool on) { settings_.set(*k, on); });
        boxes->addWidget(box);
    }

    auto* buttons = new QDialogButtonBox(this);
    QPushButton* apply = buttons->addButton(tr("Apply"), QDialogButtonBox::AcceptRole);
    QPushButton* save =
        buttons->addButton(tr("Save Current as Template…"), QDialogButtonBox::ActionRole);
    QPushButton* remove = buttons->addButton(tr("Delete"), QDialogButtonBox::DestructiveRole);
    buttons->addButton(QDialogButtonBox::Close);
    apply->setDefault(true);
    connect(apply, &QPushButton::clicked, this, &TemplatePopover::selectTemplate);
    connect(list_, &QListWidget::itemActivated, this, &TemplatePopover::selectTemplate);
    connect(save, &QPushButton::clicked, this, &TemplatePopover::createNewTemplate);
    connect(remove, &QPushButton::clicked, this, [this] {
        const auto list = templates_.templates();
        const int row = list_->currentRow();
        if (row >= 0 && row < int(list.size())) {
            templates_.deleteTemplate(list[size_t(row)]);
            reload();
        }
    });
    connect(buttons, &QDialogButtonBox::rejected, this, &TemplatePopover::cancelTemplatePopover);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(list_, 1);
    layout->addWidget(include);
    layout->addWidget(buttons);
    resize(560, 420);
    reload();
}

void TemplatePopover::reload()
{
    list_->clear();
    for (const Record* t : templates_.templates()) {
        const QString client = t->string("customerName");
        list_->addItem(client.isEmpty()
                           ? t->string("notes")
                           : QStringLiteral("%1 — %2").arg(t->string("notes"), client));
    }
    list_->setCurrentRow(0);
}

void TemplatePopover::selectTemplate()
{
    const auto list = templates_.templates();
    const int row = list_->currentRow();
    if (row < 0 || row >= int(list.size()) || !templates_.selectTemplate(*list[size_t(row)])) {
        return;
    }
    if (!templates_.keepsPopoverOpen()) {
        accept();
    }
}

void TemplatePopover::createNewTemplate()
{
    bool ok = false;
    const QString notes =
        QInputDialog::getText(this, tr("Save as Template"), tr("Name of the template:"),
                              QLineEdit::Normal, QString(), &ok);
    if (ok && templates_.createNewTemplate(notes.trimmed())) {
        reload();
        list_->setCurrentRow(list_->count() - 1);
    }
}

void TemplatePopover::cancelTemplatePopover()
{
    templates_.cancelTemplatePopover();
    reject();
}

}  // namespace tamo
