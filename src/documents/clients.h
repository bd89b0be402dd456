#pragma once

#include <QString>
#include <optional>

#include "model/appsession.h"
#include "platform/contacts.h"

namespace tamo {

// The fields of the client panel.
struct ClientPanel {
    QString address{};
    QString clientNumber{};
    QString emailAddress{};
    QString vatID{};
    QString title{};
    // Buyer details of the e-invoice.
    QString evoiceContact{};
    QString evoicePostalCode{};
    QString evoiceStreet{};
    QString evoiceCity{};
    QString evoiceCountryCode{};
    QString evoiceTaxScheme{};
    QString evoiceName{};
    QString evoiceLegalName{};
    QString evoiceCurrency{};
    // Kept from the chosen contact for composing the client's name.
    QString firstName{};
    QString lastName{};
};

// The client's name by `clientNamePatternTag`: 1 first and last name, 2 title and last name,
// 3 title and first name, 4 title, first and last name, anything else the last name alone.
QString customerName(int patternTag, const ClientPanel& panel);

// A document's client: its data is copied into the document's client fields from a contact of
// the address book or from a remembered client, and applied clients are remembered.
class Clients {
public:
    explicit Clients(AppSession& session) : session_(session) {}

    // The contacts application stands in for the address book when no vCard location is set.
    static constexpr const char16_t* kContactsApplication = u"org.gnome.Contacts";

    // The vCard file or folder the preferences name, and the address book read from it.
    QString contactsLocation() const;
    ContactBook contacts() const;
    // An empty panel to open, or nothing when the address book read from `location` has
    // broken cards or the document is sent (the reason has been shown).
    std::optional<ClientPanel> showAddressPopover(const ContactBook& book, const QString& location);
    int addressPopoverPage() const;
    ClientPanel selectAddressRecord(const Contact& contact) const;
    // Copies the panel into the current document and remembers the client.
    void selectAddress(const ClientPanel& panel);
    void selectRecentAdress(const Record& address);
    std::vector<Record*> rememberedClients() const;
    void generateClientNumber(ClientPanel& panel) const;
    // Opens the vCard location, or without one the contacts application. When neither can be
    // opened, says so and offers to choose a vCard file or folder as the address book (then
    // stored in the settings); false when nothing was opened or chosen.
    bool contactsButtonAction();

private:
    void rememberClient(const Record& document);

    AppSession& session_;
};

}  // namespace tamo
