#include "app/editor/clientsection.h"

#include <QFormLayout>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/editor/clientchooser.h"
#include "app/editor/fieldbinder.h"

namespace tamo {

ClientSection::ClientSection(FieldBinder& binder, Clients& clients, QWidget* parent)
    : QWidget(parent),
      clients_(clients),
      name_(new QLineEdit(this)),
      choose_(new QPushButton(QIcon::fromTheme(QStringLiteral("x-office-address-book")),
                              tr("Choose Client…"), this))
{
    name_->setObjectName(QStringLiteral("customerName"));
    choose_->setObjectName(QStringLiteral("chooseClient"));
    choose_->setAutoDefault(false);
    connect(choose_, &QPushButton::clicked, this, &ClientSection::chooseClient);

    auto* form = new QFormLayout;
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    form->setLabelAlignment(Qt::AlignRight);
    binder.bindText(name_, "customerName", tr("Edit Client Name"));
    form->addRow(tr("Name:"), name_);
    const std::tuple<const char*, QString, QString> lines[] = {
        {"customerTitle", tr("Title:"), tr("Edit Client Title")},
        {"clientNumber", tr("Client no.:"), tr("Edit Client Number")},
        {"customerVATID", tr("VAT ID:"), tr("Edit VAT ID")},
        {"emailAddress", tr("E-mail:"), tr("Edit E-mail Address")},
    };
    for (const auto& [key, label, undo] : lines) {
        auto* edit = new QLineEdit(this);
        edit->setObjectName(QString::fromLatin1(key));
        binder.bindText(edit, key, undo);
        form->addRow(label, edit);
    }
    auto* address = new QPlainTextEdit(this);
    address->setObjectName(QStringLiteral("address"));
    address->setTabChangesFocus(true);
    address->setFixedHeight(address->fontMetrics().lineSpacing() * 6 + 12);
    binder.bindText(address, "address", tr("Edit Address"));
    form->addRow(tr("Address:"), address);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(choose_, 0, Qt::AlignRight);
    layout->addLayout(form);
    layout->addStretch();
}

void ClientSection::setEditable(bool editable)
{
    choose_->setEnabled(editable);
}

void ClientSection::chooseClient()
{
    ClientChooser chooser(clients_, this);
    if (chooser.prepare()) {
        chooser.exec();
    }
}

}  // namespace tamo
