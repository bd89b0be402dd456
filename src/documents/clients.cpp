#include "documents/clients.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QStandardPaths>
#include <QUrl>

#include "calc/numbering.h"
#include "documents/lifecycle.h"
#include "platform/translations.h"

namespace tamo {

namespace {

// The buyer details of the e-invoice: panel fields and the attributes of the same name.
const std::pair<const char*, QString ClientPanel::*> kBuyerFields[] = {
    {"evoiceContact", &ClientPanel::evoiceContact},
    {"evoicePostalCode", &ClientPanel::evoicePostalCode},
    {"evoiceStreet", &ClientPanel::evoiceStreet},
    {"evoiceCity", &ClientPanel::evoiceCity},
    {"evoiceCountryCode", &ClientPanel::evoiceCountryCode},
    {"evoiceTaxScheme", &ClientPanel::evoiceTaxScheme},
    {"evoiceName", &ClientPanel::evoiceName},
    {"evoiceLegalName", &ClientPanel::evoiceLegalName},
    {"evoiceCurrency", &ClientPanel::evoiceCurrency},
};

// What a remembered client gives a document besides its address.
const char* const kClientKeys[] = {"clientNumber", "emailAddress", "customerVATID", "customerTitle",
                                   "customerName"};

void setUnlessEmpty(Record& document, const char* key, const QString& value)
{
    if (!value.isEmpty()) {
        document.setValue(key, value);
    }
}

}  // namespace

QString customerName(int patternTag, const ClientPanel& panel)
{
    const QChar blank = u' ';
    switch (patternTag) {
    case 1:
        return panel.firstName + blank + panel.lastName;
    case 2:
        return panel.title + blank + panel.lastName;
    case 3:
        return panel.title + blank + panel.firstName;
    case 4:
        return panel.title + blank + panel.firstName + blank + panel.lastName;
    default:
        return panel.lastName;
    }
}

QString Clients::contactsLocation() const
{
    return session_.settings().string(key::contactsLocation);
}

ContactBook Clients::contacts() const
{
    const QString location = contactsLocation();
    return location.isEmpty() ? ContactBook{} : ContactBook::load(location);
}

std::optional<ClientPanel> Clients::showAddressPopover(const ContactBook& book,
                                                       const QString& location)
{
    if (book.brokenCards > 0) {
        session_.prompter().ask(
            {tr("Error!"),
             tr("You have one ore more broken vcards in your %1; probably from a corrupted "
                "iCloud sync.\n\nPlease open your %1 and delete it or them. Usually, they are "
                "very easy to spot. Just look for 'No Name' or '(null)' and you may need to do "
                "this on your others devices as well, in case it is happening again.\n\nAfter "
                "doing that, just restart Tamo and you will be able to select people and "
                "addresses without any problems.")
                 .arg(location),
             {tr("OK")}});
        return std::nullopt;
    }
    if (!session_.documents().current() || refuseChangesToSentDocument(session_)) {
        return std::nullopt;
    }
    Settings& s = session_.settings();
    s.set(key::addressTabViewIndex, s.integer(key::alwaysShowRecentAddresses));
    return ClientPanel{};
}

int Clients::addressPopoverPage() const
{
    return session_.settings().integer(key::addressTabViewIndex);
}

ClientPanel Clients::selectAddressRecord(const Contact& contact) const
{
    const Settings& s = session_.settings();
    ClientPanel panel;
    if (s.boolean(key::prefsSupplierTaxSchemeBool)) {
        panel.evoiceTaxScheme = s.string(key::prefsSupplierTaxScheme);
    }
    if (s.boolean(key::prefsEvoiceDefaultCurrencyCodeBool)) {
        panel.evoiceCurrency = s.string(key::prefsSupplierCurrency);
    }
    if (s.boolean(key::prefsSupplierCountryCodeBool)) {
        panel.evoiceCountryCode = s.string(key::prefsSupplierCountryCode);
    }
    const PostalAddress address = contact.primaryAddress();
    if (!address.countryCode.isEmpty()) {
        panel.evoiceCountryCode = address.countryCode;
    }
    panel.firstName = contact.firstName;
    panel.lastName = contact.lastName;
    panel.evoiceContact = contact.firstName + u' ' + contact.lastName;
    panel.evoicePostalCode = address.zip;
    panel.evoiceStreet = address.street;
    panel.evoiceCity = address.city;

    // Without a pattern the hint lands in the address field, where the person will see it.
    QString text = s.contains(key::prefsAddressPattern)
                       ? s.string(key::prefsAddressPattern)
                       : tr("You need to provide an address pattern in the Preferences.");
    // In this order, so that a value holding a later token has that token filled too.
    const std::pair<const char16_t*, const QString&> tokens[] = {
        {u"%FIRSTNAME%", contact.firstName},
        {u"%LASTNAME%", contact.lastName},
        {u"%COMPANY%", contact.organization},
        {u"%STREET%", address.street},
        {u"%CITY%", address.city},
        {u"%ZIP%", address.zip},
        {u"%STATE%", address.state},
        {u"%COUNTRY%", address.country},
    };
    for (const auto& [token, value] : tokens) {
        text.replace(QString::fromUtf16(token), value);
    }
    panel.address = text;
    panel.emailAddress = contact.preferredEmail();
    return panel;
}

void Clients::selectAddress(const ClientPanel& panel)
{
    Record* document = session_.documents().current();
    if (!document) {
        return;
    }
    {
        UndoGroup group(document->context(), tr("Set Client"));
        document->setValue("address", panel.address);
        setUnlessEmpty(*document, "clientNumber", panel.clientNumber);
        setUnlessEmpty(*document, "emailAddress", panel.emailAddress);
        setUnlessEmpty(*document, "customerVATID", panel.vatID);
        setUnlessEmpty(*document, "customerTitle", panel.title);
        document->setValue(
            "customerName",
            customerName(session_.settings().integer(key::clientNamePatternTag), panel));
        for (const auto& [k, field] : kBuyerFields) {
            document->setValue(k, panel.*field);
        }
        rememberClient(*document);
    }
    session_.saveContext();
}

void Clients::rememberClient(const Record& document)
{
    Context& context = document.context();
    const QString address = document.string("address");
    if (!context.fetch("Address", [&](const Record& r) { return r.string("address") == address; })
             .empty()) {
        return;
    }
    const QDateTime now = session_.clock().now();
    Record* client = context.insert("Address");
    client->setValue("address", address);
    for (const char* k : kClientKeys) {
        client->setValue(k, document.string(k));
    }
    for (const auto& [k, field] : kBuyerFields) {
        client->setValue(k, document.string(k));
    }
    client->setValue("date", now);
    client->setValue("misc2", 0);
    client->setValue("misc3", 0.0);
    client->setValue("misc4", false);
    client->setValue("misc5", now);
}

void Clients::selectRecentAdress(const Record& address)
{
    Record* document = session_.documents().current();
    if (!document) {
        return;
    }
    {
        UndoGroup group(document->context(), tr("Choose Client"));
        document->setValue("address", address.string("address"));
        // A value the remembered client lacks clears the document's.
        for (const char* k : kClientKeys) {
            document->setValue(k, address.string(k));
        }
        for (const auto& [k, field] : kBuyerFields) {
            document->setValue(k, address.string(k));
        }
    }
    session_.saveContext();
}

std::vector<Record*> Clients::rememberedClients() const
{
    Context* context = session_.context();
    return context ? context->fetch("Address") : std::vector<Record*>{};
}

void Clients::generateClientNumber(ClientPanel& panel) const
{
    Numbering(session_).generateClientNumber(
        [&panel](const QString& number) { panel.clientNumber = number; });
}

bool Clients::contactsButtonAction()
{
    const QString location = contactsLocation();
    QString url;
    if (!location.isEmpty()) {
        if (QFileInfo::exists(location)) {
            url = QUrl::fromLocalFile(location).toString();
        }
    } else {
        // The application is handed over as its desktop entry, which the desktop launches.
        const QString entry = QStandardPaths::locate(
            QStandardPaths::ApplicationsLocation,
            QString::fromUtf16(kContactsApplication) + QStringLiteral(".desktop"));
        if (!entry.isEmpty()) {
            url = QUrl::fromLocalFile(entry).toString();
        }
    }
    const auto& openUrl = session_.hooks().openUrl;
    if (!url.isEmpty() && openUrl && openUrl(url)) {
        return true;
    }
    // Nothing to open: say what is missing and offer to choose the address book.
    const QString file = tr("Choose vCard File…");
    const QString folder = tr("Choose Folder…");
    const QString text =
        location.isEmpty()
            ? tr("Tamo takes its clients from an address book of vCard files (.vcf), and none is "
                 "chosen yet; no contacts application was found to open instead. Choose a vCard "
                 "file, or a folder of vCard files, as your address book.")
            : tr("The address book “%1” is not there any more. Choose a vCard file, or a folder "
                 "of vCard files, as your address book.")
                  .arg(location);
    const QString answer =
        session_.prompter().ask({tr("Hint!"), text, {file, folder, tr("Cancel")}});
    if (answer != file && answer != folder) {
        return false;
    }
    FileRequest request;
    request.title = tr("Choose Address Book");
    if (answer == file) {
        request.extensions = {QStringLiteral("vcf"), QStringLiteral("vcard")};
    } else {
        request.directories = true;
    }
    const std::optional<QString> chosen = session_.prompter().chooseFileToOpen(request);
    if (!chosen) {
        return false;
    }
    session_.settings().set(key::contactsLocation, *chosen);
    return true;
}

}  // namespace tamo
