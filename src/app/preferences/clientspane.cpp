#include <QComboBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

#include "app/preferences/preferencepanes.h"
#include "app/preferences/settingfields.h"
#include "documents/clients.h"
#include "model/appsession.h"

namespace tamo {

namespace {

constexpr const char* kTokens[] = {"%FIRSTNAME%", "%LASTNAME%", "%COMPANY%", "%STREET%",
                                   "%ZIP%",       "%CITY%",     "%STATE%",   "%COUNTRY%"};

}  // namespace

ClientsPane::ClientsPane(AppSession& session, SettingFields& fields, QWidget* parent)
    : QWidget(parent),
      session_(session),
      fields_(fields),
      pattern_(fields.text(key::prefsAddressPattern, this)),
      preview_(new QLabel(this)),
      contacts_(new QLabel(this))
{
    setObjectName(QStringLiteral("prefs_clients_Template"));
    auto* address = new QGroupBox(tr("Clients from the address book"), this);
    auto* form = new QFormLayout(address);
    pattern_->setFixedHeight(pattern_->fontMetrics().lineSpacing() * 5 + 12);
    form->addRow(tr("Address pattern:"), pattern_);
    auto* tokens = new QHBoxLayout;
    tokens->setSpacing(4);
    for (const char* token : kTokens) {
        auto* insert = new QPushButton(QString::fromLatin1(token), address);
        insert->setFocusPolicy(Qt::NoFocus);
        insert->setToolTip(tr("Inserts the token at the cursor"));
        connect(insert, &QPushButton::clicked, this, [this, token] {
            pattern_->insertPlainText(QString::fromLatin1(token));
            pattern_->setFocus();
        });
        tokens->addWidget(insert);
    }
    tokens->addStretch();
    form->addRow(QString(), tokens);
    preview_->setObjectName(QStringLiteral("prefsAddressPatternPreview"));
    preview_->setFrameShape(QFrame::StyledPanel);
    preview_->setMargin(6);
    preview_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    form->addRow(tr("Example:"), preview_);
    form->addRow(
        tr("Client name:"),
        fields.choice(key::clientNamePatternTag,
                      {tr("Last name"), tr("First and last name"), tr("Title and last name"),
                       tr("Title and first name"), tr("Title, first and last name")},
                      address));

    auto* book = new QGroupBox(tr("Address book"), this);
    auto* bookForm = new QFormLayout(book);
    QLineEdit* location = fields.line(key::contactsLocation, book);
    location->setPlaceholderText(tr("A vCard file, or a folder of them"));
    auto* chooseFile = new QPushButton(tr("File…"), book);
    auto* chooseFolder = new QPushButton(tr("Folder…"), book);
    connect(chooseFile, &QPushButton::clicked, this, [this, location] {
        const QString path = QFileDialog::getOpenFileName(
            this, tr("Choose the Address Book"), location->text(), tr("vCards (*.vcf *.vcard)"));
        if (!path.isEmpty()) {
            location->setText(path);
        }
    });
    connect(chooseFolder, &QPushButton::clicked, this, [this, location] {
        const QString path = QFileDialog::getExistingDirectory(
            this, tr("Choose the Folder of vCards"), location->text());
        if (!path.isEmpty()) {
            location->setText(path);
        }
    });
    auto* locationRow = new QHBoxLayout;
    locationRow->addWidget(location, 1);
    locationRow->addWidget(chooseFile);
    locationRow->addWidget(chooseFolder);
    bookForm->addRow(tr("vCards:"), locationRow);
    contacts_->setObjectName(QStringLiteral("contactsLocationStatus"));
    contacts_->setForegroundRole(QPalette::PlaceholderText);
    bookForm->addRow(QString(), contacts_);

    auto* lists = new QGroupBox(tr("Pop-overs open on"), this);
    auto* listForm = new QFormLayout(lists);
    listForm->addRow(tr("Client:"),
                     fields.choice(key::alwaysShowRecentAddresses,
                                   {tr("The address book"), tr("The remembered clients")}, lists));
    listForm->addRow(
        tr("New line:"),
        fields.choice(key::alwaysShowRecentItems, {tr("An empty line"), tr("The catalog")}, lists));
    listForm->addRow(
        tr("Shipping:"),
        fields.choice(key::alwaysShowRecentShipping,
                      {tr("The shipping entry"), tr("The remembered shipping")}, lists));

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(address);
    layout->addWidget(book);
    layout->addWidget(lists);
    layout->addStretch();
    // The address book is read once the path has been typed, not at every letter.
    auto* pause = new QTimer(this);
    pause->setSingleShot(true);
    pause->setInterval(400);
    connect(pause, &QTimer::timeout, this, &ClientsPane::updateContacts);
    connect(&fields, &SettingFields::changed, this, [this, pause](const QString& changed) {
        if (changed == QLatin1StringView(key::contactsLocation.name)) {
            pause->start();
        } else {
            updatePreview();
        }
    });
    fields.follow([this] {
        updatePreview();
        updateContacts();
    });
}

void ClientsPane::updatePreview()
{
    Contact sample;
    sample.firstName = tr("Jane");
    sample.lastName = tr("Doe");
    sample.organization = tr("Example Ltd");
    sample.addresses << PostalAddress{.street = tr("1 Main Street"),
                                      .city = tr("Springfield"),
                                      .zip = tr("62701"),
                                      .state = tr("IL"),
                                      .country = tr("United States"),
                                      .countryCode = u"US"_qs};
    ClientPanel panel = Clients(session_).selectAddressRecord(sample);
    panel.title = tr("Dr.");
    const QString name =
        customerName(session_.settings().integer(key::clientNamePatternTag), panel);
    preview_->setText(panel.address + u"\n\n"_qs + tr("Client name: %1").arg(name));
}

void ClientsPane::updateContacts()
{
    const QString location = session_.settings().string(key::contactsLocation);
    if (location.isEmpty()) {
        contacts_->setText(
            tr("Without vCards, the client panel offers the remembered clients "
               "and lets you type a client."));
        return;
    }
    if (!QFileInfo::exists(location)) {
        contacts_->setText(tr("There is no file or folder at this place."));
        return;
    }
    const ContactBook book = ContactBook::load(location);
    QString text = tr("%n contact(s) found.", nullptr, int(book.contacts.size()));
    if (book.brokenCards > 0 || !book.unreadableFiles.isEmpty()) {
        text += u' ' + tr("%n card(s) cannot be read.", nullptr,
                          book.brokenCards + int(book.unreadableFiles.size()));
    }
    contacts_->setText(text);
}

}  // namespace tamo
