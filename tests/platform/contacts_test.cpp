#include <gtest/gtest.h>
#include <QTemporaryDir>

#include "platform/contacts.h"

using namespace tamo;

namespace {

const QString kCards = QStringLiteral(TAMO_TEST_DATA "/vcards");

const Contact* byName(const ContactBook& book, const QString& name)
{
    for (const Contact& c : book.contacts) {
        if (c.displayName() == name) {
            return &c;
        }
    }
    return nullptr;
}

TEST(ContactsTest, AFolderOfCardsFromDifferentProgramsIsRead)
{
    const ContactBook book = ContactBook::load(kCards);
    EXPECT_EQ(book.contacts.size(), 4);
    EXPECT_EQ(book.brokenCards, 3);  // no name, a line without a value, a card that never ends
    EXPECT_TRUE(book.unreadableFiles.isEmpty());

    // A desktop address book's card: grouped address with its own country code, two e-mails.
    const Contact* juergen = byName(book, u"Jürgen Schäfer"_qs);
    ASSERT_NE(juergen, nullptr);
    EXPECT_EQ(juergen->firstName, u"Jürgen");
    EXPECT_EQ(juergen->lastName, u"Schäfer");
    EXPECT_EQ(juergen->organization, u"Schäfer Medien GmbH");
    const PostalAddress a = juergen->primaryAddress();
    EXPECT_EQ(a.street, u"Mühlenweg 62");
    EXPECT_EQ(a.city, u"Leipzig");
    EXPECT_EQ(a.state, u"Sachsen");
    EXPECT_EQ(a.zip, u"04109");
    EXPECT_EQ(a.country, u"Deutschland");
    EXPECT_EQ(a.countryCode, u"DE");
    EXPECT_EQ(juergen->preferredEmail(), u"j.schaefer@schaefer-medien.example");

    // Quoted-printable names with a soft line break, escaped commas, a two-letter country.
    const Contact* anna = byName(book, u"Anna-Lena Müller"_qs);
    ASSERT_NE(anna, nullptr);
    EXPECT_EQ(anna->lastName, u"Müller");
    EXPECT_EQ(anna->firstName, u"Anna-Lena");
    EXPECT_EQ(anna->primaryAddress().street, u"Hinterhaus\nKönigstraße 12, 2. OG");
    EXPECT_EQ(anna->primaryAddress().countryCode, u"DE");
    EXPECT_EQ(anna->preferredEmail(), u"anna@mueller.example");  // the only one

    // vCard 4.0: the preferred address is the second; a quoted parameter holds a colon.
    const Contact* oliver = byName(book, u"Oliver Wright"_qs);
    ASSERT_NE(oliver, nullptr);
    EXPECT_EQ(oliver->primaryAddress().city, u"Bristol");
    EXPECT_EQ(oliver->primaryAddress().countryCode, u"GB");
    EXPECT_EQ(oliver->preferredEmail(), u"o.wright@wrightdavies.example");

    // An organisation without a person's name is still a contact.
    const Contact* company = byName(book, u"Nordlicht Media"_qs);
    ASSERT_NE(company, nullptr);
    EXPECT_EQ(company->primaryAddress().countryCode, u"DE");
}

TEST(ContactsTest, WithoutAWorkLabelTheFirstAddressIsUsed)
{
    const ContactBook book = ContactBook::parse(
        "BEGIN:VCARD\nVERSION:3.0\nN:Koch;Tobias\nEMAIL:a@x.example\nEMAIL;TYPE=HOME:b@x.example\n"
        "END:VCARD\n");
    ASSERT_EQ(book.contacts.size(), 1);
    EXPECT_EQ(book.contacts[0].preferredEmail(), u"a@x.example");
    EXPECT_TRUE(book.contacts[0].primaryAddress().street.isEmpty());
}

TEST(ContactsTest, AMissingOrUnreadableLocationGivesAnEmptyBook)
{
    const ContactBook none = ContactBook::load(QStringLiteral("/nonexistent/contacts.vcf"));
    EXPECT_TRUE(none.contacts.isEmpty());
    EXPECT_EQ(none.unreadableFiles.size(), 1);
    const ContactBook garbage = ContactBook::parse(QByteArray("\x00\xff\xfe garbage", 12));
    EXPECT_TRUE(garbage.contacts.isEmpty());
    EXPECT_EQ(garbage.brokenCards, 0);
}

}  // namespace
