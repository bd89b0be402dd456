#include <QFile>
#include <set>

#include "interchange/plistfile.h"
#include "render/designlibrary.h"
#include "setup/setupassistant.h"
#include "support/testsupport.h"

using namespace tamo;
using namespace tamo::test;

namespace {

class StartingValuesTest : public SessionTest {
protected:
    StartingValues read(const StartingLanguage& language)
    {
        auto values = readStartingValues(startingValuesPath(language));
        EXPECT_TRUE(values) << values.error().text().toStdString();
        return values.value_or(StartingValues{});
    }
};

TEST_F(StartingValuesTest, EachLanguageGivesEveryStartingKeyAValueOfItsType)
{
    for (const StartingLanguage& language : startingLanguages()) {
        SCOPED_TRACE(language.file);
        const StartingValues values = read(language);
        std::set<std::string_view> given;
        for (const SettingValue& v : values) {
            given.insert(v.key->name);
            EXPECT_EQ(settingOrigin(*v.key), SettingOrigin::Starting)
                << v.key->name << " is the user's own or the program's: the files leave it out";
            const std::string_view name = v.key->name;
            // Labels, titles and patterns must print something.
            if (name.starts_with("loc") || name.ends_with("Title") || name.ends_with("Pattern")) {
                EXPECT_FALSE(v.value.toString().trimmed().isEmpty()) << name;
            }
        }
        for (const SettingKey& k : allSettingKeys()) {
            if (settingOrigin(k) == SettingOrigin::Starting) {
                EXPECT_TRUE(given.contains(k.name))
                    << language.file << " gives no value to " << k.name
                    << ": add one to each file, or list the key among the user's own or the "
                       "program's";
            }
        }
        EXPECT_EQ(given.size(), values.size()) << "a key is given twice";
        // Reading checked every value's type; a few that the operations depend on.
        Settings s(dir.path(QString::fromLatin1(language.code) + u".conf"_qs));
        applyStartingValues(s, values);
        EXPECT_TRUE(s.string(key::invPattern).contains(u"%COUNT%"));
        EXPECT_TRUE(s.boolean(key::beforeTaxesBool));
        EXPECT_GE(s.real(key::tax1Rate), 0.0);
        EXPECT_LT(s.real(key::tax1Rate), 0.3);
        EXPECT_TRUE(s.integer(key::tempPaperSize) == 0 || s.integer(key::tempPaperSize) == 2);
    }
}

TEST_F(StartingValuesTest, ApplyingTwiceOverwritesOnlyTheKeysTheFileNames)
{
    const StartingValues german = read(*startingLanguage(u"de"));
    settings.set(key::prefsName, u"Studio Nord"_qs);  // the user's own: never in a file
    settings.set(key::invCount, 41);
    settings.set(key::locInvoice, u"Faktura"_qs);  // a starting value the user changed
    for (int run = 0; run < 2; ++run) {
        applyStartingValues(settings, german);
        EXPECT_EQ(settings.string(key::locInvoice), u"Rechnung");
        EXPECT_EQ(settings.string(key::prefsName), u"Studio Nord");
        EXPECT_EQ(settings.integer(key::invCount), 41);
        EXPECT_DOUBLE_EQ(settings.real(key::tax1Rate), 0.19);
    }
    // What the settings file holds reads back as the file gave it.
    Settings reread(settings.fileName());
    for (const SettingValue& v : german) {
        EXPECT_TRUE(sameSettingValue(*v.key, reread.value(*v.key), v.value)) << v.key->name;
    }
}

TEST_F(StartingValuesTest, AFileWithAnUnknownKeyOrAWrongTypeIsRefusedWhole)
{
    struct Case {
        const char* entries;
        const char16_t* reason;
    };
    const Case cases[] = {
        {"<key>locInvoice</key><string>Bill</string><key>noSuchKey</key><true/>",
         u"Tamo has no setting “noSuchKey”."},
        {"<key>locInvoice</key><string>Bill</string><key>tax1Rate</key><string>19 %</string>",
         u"The value of “tax1Rate” is text, which that setting cannot hold."},
        {"<key>invHaveNumber</key><integer>1</integer>",
         u"The value of “invHaveNumber” is a number, which that setting cannot hold."},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.entries);
        const QString path = dir.path(u"bad.plist"_qs);
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write(QByteArray("<?xml version=\"1.0\" encoding=\"UTF-8\"?><plist version=\"1.0\">"
                              "<dict>") +
                   c.entries + "</dict></plist>");
        file.close();
        const auto read = readStartingValues(path);
        ASSERT_FALSE(read);
        EXPECT_EQ(read.error().reason, QString::fromUtf16(c.reason));
    }
}

TEST_F(StartingValuesTest, ChangedSettingsAreTheUsersOwnAndWhatDiffersFromTheLanguage)
{
    settings.set(key::languageDefaults, 1);
    applyStartingValues(settings, read(*startingLanguage(u"de")));
    settings.set(key::isAssiDone, true);  // the program's own state
    EXPECT_TRUE(changedSettings(settings).empty());

    settings.set(key::locInvoice, u"Faktura"_qs);
    settings.set(key::prefsName, u"Studio Nord"_qs);
    settings.set(key::prefsEvoiceConformantBool, false);  // the user's, but still as it starts
    settings.set(key::tax1Rate, QStringLiteral("0.19"));  // the same value, kept as text
    QStringList changed;
    for (const SettingValue& v : changedSettings(settings)) {
        changed << QString::fromLatin1(v.key->name);
    }
    EXPECT_EQ(changed, (QStringList{u"prefsName"_qs, u"locInvoice"_qs}));
}

TEST_F(StartingValuesTest, TheAssistantShowsUntilDoneAndLoadsTheDesignsOnlyTheFirstTimeEver)
{
    DesignLibrary designs(session);
    designs.installHooks();
    ASSERT_NE(session.managedObjectContext(), nullptr);
    settings.remove(key::isFirstStoreLoadEverDone);  // as before the store set-up's designs
    const size_t shipped = designs.designs().size();
    SetupAssistant assistant(session, designs);

    EXPECT_TRUE(assistant.doTheAssi());
    EXPECT_EQ(assistant.page(), 0);
    settings.set(key::locInvoice, u"Faktura"_qs);
    settings.set(key::prefsName, u"Studio Nord"_qs);
    assistant.setLanguage(3);
    EXPECT_GT(assistant.firstAssiTabAction(), 80);
    const size_t loaded = designs.designs().size();
    EXPECT_EQ(loaded, shipped + 12);
    EXPECT_EQ(assistant.page(), 1);
    EXPECT_EQ(settings.string(key::locInvoice), u"Factura");
    EXPECT_EQ(settings.string(key::prefsName), u"Studio Nord");

    // Choosing the language page again applies the file again, but loads no designs.
    assistant.setLanguage(2);
    assistant.firstAssiTabAction();
    EXPECT_EQ(designs.designs().size(), loaded);
    EXPECT_EQ(settings.string(key::locInvoice), u"Facture");

    prompter.queueAnswer(u"No, I prefer to suffer in silence."_qs);
    EXPECT_FALSE(assistant.closeAssi());
    EXPECT_EQ(prompter.alerts().last().title, u"RTFM");
    EXPECT_TRUE(settings.boolean(key::isAssiDone));
    EXPECT_FALSE(assistant.doTheAssi());

    // Once done, a second run asks first; declining changes nothing.
    settings.set(key::assiIndex, 3);
    prompter.queueAnswer(u"Cancel"_qs);
    EXPECT_FALSE(assistant.openAssi());
    EXPECT_EQ(prompter.alerts().last().title, u"Warning!");
    EXPECT_EQ(assistant.page(), 3);
    prompter.queueAnswer(u"Continue…"_qs);
    EXPECT_TRUE(assistant.openAssi());
    EXPECT_EQ(assistant.page(), 0);
}

TEST_F(StartingValuesTest, ALanguageWithoutAFileAppliesNothing)
{
    DesignLibrary designs(session);
    SetupAssistant assistant(session, designs);
    assistant.setLanguage(7);
    EXPECT_EQ(assistant.firstAssiTabAction(), 0);
    EXPECT_FALSE(settings.contains(key::locInvoice));
}

}  // namespace
