#include <QDir>
#include <QFile>

#include "documents/clients.h"
#include "support/testsupport.h"

using namespace tamo;
using namespace tamo::test;

namespace {

const QString kCards = QStringLiteral(TAMO_TEST_DATA "/vcards");

class ClientsTest : public SessionTest {
protected:
    Context& context = *session.managedObjectContext();
    Clients clients{session};
    Record* document = context.insert("Invoice");

    void SetUp() override
    {
        document->setValue("number", u"2026-1"_qs);
        session.documents().setSelection({document});
        session.saveContext();
    }
    static Contact card(const QString& file)
    {
        return ContactBook::load(kCards + u'/' + file).contacts.value(0);
    }
};

TEST_F(ClientsTest, APanelIsFilledFromACardThroughTheAddressPattern)
{
    settings.set(key::prefsSupplierTaxSchemeBool, true);
    settings.set(key::prefsSupplierTaxScheme, u"VAT"_qs);
    settings.set(key::prefsSupplierCurrency, u"EUR"_qs);  // its switch is off
    settings.set(key::prefsSupplierCountryCodeBool, true);
    settings.set(key::prefsSupplierCountryCode, u"AT"_qs);
    settings.set(
        key::prefsAddressPattern,
        u"%COMPANY%\n%FIRSTNAME% %LASTNAME%\n%STREET%\n%ZIP% %CITY% (%STATE%)\n%COUNTRY%"_qs);

    const ClientPanel p = clients.selectAddressRecord(card(u"apple-3.0.vcf"_qs));
    EXPECT_EQ(p.address,
              u"Schäfer Medien GmbH\nJürgen Schäfer\nMühlenweg 62\n04109 Leipzig (Sachsen)\n"
              u"Deutschland");
    // The work e-mail; the card's own country code wins over the preference.
    EXPECT_EQ(QStringList({p.emailAddress, p.evoiceContact, p.evoicePostalCode, p.evoiceStreet,
                           p.evoiceCity, p.evoiceCountryCode, p.evoiceTaxScheme, p.evoiceCurrency,
                           p.firstName, p.lastName})
                  .join(u'|'),
              u"j.schaefer@schaefer-medien.example|Jürgen Schäfer|04109|Mühlenweg 62|Leipzig|DE|"
              u"VAT||Jürgen|Schäfer");

    // A name that holds a later token gets it filled; one that holds an earlier one does not.
    Contact odd;
    odd.firstName = u"%CITY%"_qs;
    odd.lastName = u"%FIRSTNAME%"_qs;
    odd.addresses = {PostalAddress{}};
    odd.addresses[0].city = u"Bonn"_qs;
    settings.set(key::prefsAddressPattern, u"%FIRSTNAME% %LASTNAME%"_qs);
    EXPECT_EQ(clients.selectAddressRecord(odd).address, u"Bonn %FIRSTNAME%");

    // Without a pattern the hint is what the address field shows; an empty pattern is a pattern.
    settings.remove(key::prefsAddressPattern);
    EXPECT_EQ(clients.selectAddressRecord(odd).address,
              u"You need to provide an address pattern in the Preferences.");
    settings.set(key::prefsAddressPattern, QString());
    EXPECT_EQ(clients.selectAddressRecord(odd).address, u"");
}

TEST_F(ClientsTest, TheNamePatternComposesTheCustomerName)
{
    const struct {
        int tag;
        const char16_t* title;
        const char16_t* name;
    } cases[] = {
        {0, u"Dr.", u"Berg"},    {1, u"Dr.", u"Anna Berg"}, {2, u"Dr.", u"Dr. Berg"},
        {2, u"", u" Berg"},      {3, u"Dr.", u"Dr. Anna"},  {4, u"Dr.", u"Dr. Anna Berg"},
        {4, u"", u" Anna Berg"}, {9, u"Dr.", u"Berg"},
    };
    for (const auto& c : cases) {
        settings.set(key::clientNamePatternTag, c.tag);
        clients.selectAddress({.address = u"Berg"_qs,
                               .title = QString::fromUtf16(c.title),
                               .firstName = u"Anna"_qs,
                               .lastName = u"Berg"_qs});
        EXPECT_EQ(document->string("customerName"), QString::fromUtf16(c.name)) << c.tag;
    }
}

TEST_F(ClientsTest, ApplyingThePanelKeepsFilledFieldsAndRemembersEachAddressOnce)
{
    document->setValue("clientNumber", u"K-7"_qs);
    document->setValue("customerTitle", u"Frau"_qs);
    ClientPanel panel = clients.selectAddressRecord(card(u"cloud-4.0.vcf"_qs));
    panel.vatID = u"GB123"_qs;
    clients.selectAddress(panel);
    clients.selectAddress(panel);
    // Empty fields left the document's values, which the remembered client takes too.
    ASSERT_EQ(clients.rememberedClients().size(), 1u);
    Record* oliver = clients.rememberedClients().front();
    for (const Record* r : std::array<const Record*, 2>{document, oliver}) {
        EXPECT_EQ(QStringList({r->string("clientNumber"), r->string("customerTitle"),
                               r->string("customerVATID"), r->string("customerName"),
                               r->string("emailAddress"), r->string("evoiceCity")})
                      .join(u'|'),
                  u"K-7|Frau|GB123|Wright|o.wright@wrightdavies.example|Bristol");
    }

    panel.address += u"\nUnit 4"_qs;
    clients.selectAddress(panel);
    EXPECT_EQ(clients.rememberedClients().size(), 2u);
    context.undo();  // the document's client and the remembered one go together
    EXPECT_EQ(clients.rememberedClients().size(), 1u);
    EXPECT_FALSE(document->string("address").endsWith(u"Unit 4"));

    // A remembered client brings its own values, empty ones included.
    document->setValue("address", u"elsewhere"_qs);
    oliver->setValue("clientNumber", QString());
    clients.selectRecentAdress(*oliver);
    EXPECT_EQ(document->string("address"), oliver->string("address"));
    EXPECT_EQ(document->string("clientNumber"), u"");
}

TEST_F(ClientsTest, ThePanelStaysClosedOverBrokenCardsAndSentDocuments)
{
    settings.set(key::alwaysShowRecentAddresses, 1);
    ASSERT_TRUE(clients.showAddressPopover(ContactBook::load(kCards + u"/apple-3.0.vcf"_qs), {}));
    EXPECT_EQ(clients.addressPopoverPage(), 1);

    const QString broken = kCards + u"/broken.vcf"_qs;
    EXPECT_FALSE(clients.showAddressPopover(ContactBook::load(broken), broken));
    EXPECT_EQ(prompter.alerts().last().title, u"Error!");
    EXPECT_TRUE(prompter.alerts().last().text.startsWith(
        u"You have one ore more broken vcards in your "_qs + broken + u"; probably"_qs));

    document->setValue("status", 4);
    EXPECT_FALSE(clients.showAddressPopover({}, {}));
    EXPECT_TRUE(prompter.alerts().last().text.startsWith(u"The selected invoice is marked"));
    EXPECT_EQ(prompter.alerts().size(), 2);
}

TEST_F(ClientsTest, TheContactsButtonOpensTheLocationOrTheApplication)
{
    QStringList opened;
    session.hooks().openUrl = [&](const QString& url) {
        opened << url;
        return !url.endsWith(u".desktop");  // as if the application would not start
    };
    // The application's desktop entry stands in a data folder of the test's own.
    const QByteArray dataHome = qgetenv("XDG_DATA_HOME");
    qputenv("XDG_DATA_HOME", dir.path(u"share"_qs).toUtf8());
    const QString entry = dir.path(u"share/applications/org.gnome.Contacts.desktop"_qs);
    QDir().mkpath(dir.path(u"share/applications"_qs));
    QFile entryFile(entry);
    ASSERT_TRUE(entryFile.open(QIODevice::WriteOnly));

    // A missing address book is named; without one, and without a contacts application, Tamo
    // offers to choose the vCard folder and keeps the choice.
    prompter.queueAnswer(u"Cancel"_qs);
    prompter.queueAnswer(u"Choose Folder…"_qs);
    prompter.queueFile(kCards);
    for (const QString& location : {kCards, kCards + u"/none.vcf"_qs, QString()}) {
        settings.set(key::contactsLocation, location);
        EXPECT_EQ(clients.contactsButtonAction(), location != kCards + u"/none.vcf"_qs);
    }
    EXPECT_EQ(opened, QStringList({u"file://"_qs + kCards, u"file://"_qs + entry}));
    ASSERT_EQ(prompter.alerts().size(), 2);
    EXPECT_EQ(prompter.alerts()[0].title, u"Hint!");
    EXPECT_TRUE(prompter.alerts()[0].text.contains(kCards + u"/none.vcf"_qs));
    EXPECT_TRUE(prompter.alerts()[1].text.contains(u"vCard"));
    EXPECT_EQ(prompter.alerts()[1].buttons,
              (QStringList{u"Choose vCard File…"_qs, u"Choose Folder…"_qs, u"Cancel"_qs}));
    EXPECT_EQ(settings.string(key::contactsLocation), kCards);
    dataHome.isNull() ? qunsetenv("XDG_DATA_HOME") : qputenv("XDG_DATA_HOME", dataHome);
}

}  // namespace
