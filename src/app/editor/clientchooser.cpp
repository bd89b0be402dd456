#include "app/editor/clientchooser.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSplitter>
#include <QTabWidget>
#include <QVBoxLayout>

namespace tamo {

namespace {

struct FieldLabel {
    QString ClientPanel::*field;
    const char* label;
    const char* name = "";  // the field's object name
};

const FieldLabel kClientFields[] = {
    // The names make the document's client name, after the pattern the preferences choose.
    {&ClientPanel::firstName, QT_TRANSLATE_NOOP("tamo::ClientChooser", "First name:"), "firstName"},
    {&ClientPanel::lastName, QT_TRANSLATE_NOOP("tamo::ClientChooser", "Last name:"), "lastName"},
    {&ClientPanel::title, QT_TRANSLATE_NOOP("tamo::ClientChooser", "Title:")},
    {&ClientPanel::emailAddress, QT_TRANSLATE_NOOP("tamo::ClientChooser", "E-mail:")},
    {&ClientPanel::vatID, QT_TRANSLATE_NOOP("tamo::ClientChooser", "VAT ID:")},
};

const FieldLabel kBuyerFields[] = {
    {&ClientPanel::evoiceName, QT_TRANSLATE_NOOP("tamo::ClientChooser", "Name:")},
    {&ClientPanel::evoiceLegalName, QT_TRANSLATE_NOOP("tamo::ClientChooser", "Legal name:")},
    {&ClientPanel::evoiceContact, QT_TRANSLATE_NOOP("tamo::ClientChooser", "Contact:")},
    {&ClientPanel::evoiceStreet, QT_TRANSLATE_NOOP("tamo::ClientChooser", "Street:")},
    {&ClientPanel::evoicePostalCode, QT_TRANSLATE_NOOP("tamo::ClientChooser", "Postal code:")},
    {&ClientPanel::evoiceCity, QT_TRANSLATE_NOOP("tamo::ClientChooser", "City:")},
    {&ClientPanel::evoiceCountryCode, QT_TRANSLATE_NOOP("tamo::ClientChooser", "Country code:")},
    {&ClientPanel::evoiceTaxScheme, QT_TRANSLATE_NOOP("tamo::ClientChooser", "Tax scheme:")},
    {&ClientPanel::evoiceCurrency, QT_TRANSLATE_NOOP("tamo::ClientChooser", "Currency:")},
};

// What a remembered client is listed as: its name, else the first line of its address.
QString rememberedName(const Record& client)
{
    const QString name = client.string("customerName").trimmed();
    return name.isEmpty() ? client.string("address").section(u'\n', 0, 0) : name;
}

}  // namespace

ClientChooser::ClientChooser(Clients& clients, QWidget* parent)
    : QDialog(parent),
      clients_(clients),
      pages_(new QTabWidget(this)),
      contacts_(new QListWidget(this)),
      remembered_(new QListWidget(this)),
      rememberedSearch_(new QLineEdit(this)),
      address_(new QPlainTextEdit(this)),
      number_(new QLineEdit(this)),
      noContacts_(new QLabel(this))
{
    setWindowTitle(tr("Choose Client"));
    setObjectName(QStringLiteral("clientChooser"));

    auto* contactsPage = new QWidget(pages_);
    auto* contactsLayout = new QVBoxLayout(contactsPage);
    contactsLayout->addWidget(contacts_);
    noContacts_->setWordWrap(true);
    noContacts_->setForegroundRole(QPalette::PlaceholderText);
    noContacts_->setText(
        tr("No contacts to show. Tamo reads them from the vCard file or folder "
           "chosen in the preferences."));
    contactsLayout->addWidget(noContacts_);
    auto* openContacts = new QPushButton(tr("Open Contacts"), contactsPage);
    openContacts->setAutoDefault(false);
    contactsLayout->addWidget(openContacts, 0, Qt::AlignLeft);
    connect(openContacts, &QPushButton::clicked, this, [this] {
        const QString before = clients_.contactsLocation();
        clients_.contactsButtonAction();
        if (clients_.contactsLocation() != before) {  // an address book was chosen
            book_ = clients_.contacts();
            fillContacts();
        }
    });
    connect(contacts_, &QListWidget::currentRowChanged, this, &ClientChooser::takeContact);

    auto* rememberedPage = new QWidget(pages_);
    auto* rememberedLayout = new QVBoxLayout(rememberedPage);
    rememberedSearch_->setPlaceholderText(tr("Search"));
    rememberedSearch_->setClearButtonEnabled(true);
    rememberedLayout->addWidget(rememberedSearch_);
    rememberedLayout->addWidget(remembered_);
    auto* use = new QPushButton(tr("Use Client"), rememberedPage);
    use->setAutoDefault(false);
    rememberedLayout->addWidget(use, 0, Qt::AlignRight);
    connect(rememberedSearch_, &QLineEdit::textChanged, this, &ClientChooser::fillRemembered);
    connect(use, &QPushButton::clicked, this, &ClientChooser::takeRemembered);
    connect(remembered_, &QListWidget::itemActivated, this, &ClientChooser::takeRemembered);

    pages_->addTab(contactsPage, tr("Contacts"));
    pages_->addTab(rememberedPage, tr("Remembered Clients"));

    auto* fields = new QWidget(this);
    auto* form = new QFormLayout;
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    form->setLabelAlignment(Qt::AlignRight);
    address_->setTabChangesFocus(true);
    address_->setFixedHeight(address_->fontMetrics().lineSpacing() * 5 + 12);
    form->addRow(tr("Address:"), address_);
    auto* generate = new QPushButton(tr("New Client Number"), fields);
    generate->setAutoDefault(false);
    connect(generate, &QPushButton::clicked, this, &ClientChooser::newClientNumber);
    auto* numberRow = new QHBoxLayout;
    numberRow->addWidget(number_);
    numberRow->addWidget(generate);
    form->addRow(tr("Client no.:"), numberRow);
    lines_.emplace_back(&ClientPanel::clientNumber, number_);
    for (const FieldLabel& f : kClientFields) {
        auto* edit = new QLineEdit(fields);
        edit->setObjectName(QString::fromLatin1(f.name));
        form->addRow(tr(f.label), edit);
        lines_.emplace_back(f.field, edit);
    }
    auto* buyer = new QGroupBox(tr("E-invoice buyer"), fields);
    auto* grid = new QGridLayout(buyer);
    int i = 0;
    for (const FieldLabel& f : kBuyerFields) {
        auto* edit = new QLineEdit(buyer);
        grid->addWidget(new QLabel(tr(f.label), buyer), i / 2, (i % 2) * 2);
        grid->addWidget(edit, i / 2, (i % 2) * 2 + 1);
        lines_.emplace_back(f.field, edit);
        ++i;
    }
    auto* fieldsLayout = new QVBoxLayout(fields);
    fieldsLayout->addLayout(form);
    fieldsLayout->addWidget(buyer);
    fieldsLayout->addStretch();

    auto* split = new QSplitter(this);
    split->addWidget(pages_);
    split->addWidget(fields);
    split->setStretchFactor(1, 1);
    split->setChildrenCollapsible(false);

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    QPushButton* applyButton = buttons->addButton(tr("Apply"), QDialogButtonBox::AcceptRole);
    applyButton->setDefault(true);
    connect(buttons, &QDialogButtonBox::accepted, this, &ClientChooser::apply);
    connect(buttons, &QDialogButtonBox::rejected, this, &ClientChooser::reject);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(split, 1);
    layout->addWidget(buttons);
    resize(860, 520);
}

bool ClientChooser::prepare()
{
    book_ = clients_.contacts();
    const std::optional<ClientPanel> panel =
        clients_.showAddressPopover(book_, clients_.contactsLocation());
    if (!panel) {
        return false;
    }
    setFields(*panel);
    fillContacts();
    rememberedSearch_->clear();
    fillRemembered();
    pages_->setCurrentIndex(clients_.addressPopoverPage() == 1 ? 1 : 0);
    return true;
}

void ClientChooser::fillContacts()
{
    const QSignalBlocker quiet(contacts_);
    contacts_->clear();
    for (const Contact& c : book_.contacts) {
        const QString city = c.primaryAddress().city;
        contacts_->addItem(city.isEmpty() ? c.displayName()
                                          : tr("%1 — %2").arg(c.displayName(), city));
    }
    contacts_->setCurrentRow(-1);
    noContacts_->setVisible(book_.contacts.isEmpty());
}

void ClientChooser::fillRemembered()
{
    remembered_->clear();
    rememberedClients_.clear();
    const QString search = rememberedSearch_->text().trimmed();
    for (Record* client : clients_.rememberedClients()) {
        if (!search.isEmpty() && !client->string("address").contains(search, Qt::CaseInsensitive) &&
            !client->string("customerName").contains(search, Qt::CaseInsensitive)) {
            continue;
        }
        auto* item = new QListWidgetItem(rememberedName(*client), remembered_);
        item->setToolTip(client->string("address"));
        rememberedClients_.push_back(client);
    }
}

void ClientChooser::setFields(const ClientPanel& panel)
{
    address_->setPlainText(panel.address);
    for (const auto& [field, edit] : lines_) {
        edit->setText(panel.*field);
    }
}

ClientPanel ClientChooser::fields() const
{
    ClientPanel panel;
    panel.address = address_->toPlainText();
    for (const auto& [field, edit] : lines_) {
        panel.*field = edit->text();
    }
    return panel;
}

void ClientChooser::takeContact(int row)
{
    if (row < 0 || row >= book_.contacts.size()) {
        return;
    }
    const ClientPanel typed = fields();
    ClientPanel filled = clients_.selectAddressRecord(book_.contacts[row]);
    // What the address book does not know stays as typed.
    filled.clientNumber = typed.clientNumber;
    filled.vatID = typed.vatID;
    filled.title = typed.title;
    setFields(filled);
}

void ClientChooser::takeRemembered()
{
    const int row = remembered_->currentRow();
    if (row < 0 || size_t(row) >= rememberedClients_.size()) {
        return;
    }
    clients_.selectRecentAdress(*rememberedClients_[size_t(row)]);
    accept();
}

void ClientChooser::apply()
{
    clients_.selectAddress(fields());
    accept();
}

void ClientChooser::newClientNumber()
{
    ClientPanel panel = fields();
    clients_.generateClientNumber(panel);
    number_->setText(panel.clientNumber);
}

}  // namespace tamo
