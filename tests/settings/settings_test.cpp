#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>
#include <QFile>
#include <QTemporaryDir>

#include "platform/filewriting.h"
#include "settings/settings.h"
#include "support/scratchfs.h"
#include "support/testsupport.h"

using namespace tamo;

namespace {

class SettingsTest : public ::testing::Test {
protected:
    QTemporaryDir dir;
    QString file = dir.filePath(QStringLiteral("Tamo.conf"));
    Settings settings{file};
};

TEST_F(SettingsTest, AbsentKeysReadAsEmptyFalseOrZero)
{
    EXPECT_FALSE(settings.contains(key::prefsName));
    EXPECT_TRUE(settings.string(key::prefsName).isEmpty());
    EXPECT_FALSE(settings.boolean(key::invHaveNumber));
    EXPECT_EQ(settings.integer(key::invCount), 0);
    EXPECT_EQ(settings.real(key::tax1Rate), 0.0);
    EXPECT_FALSE(settings.date(key::reportDateL).isValid());
}

TEST_F(SettingsTest, ValuesReachTheFileAtOnceAndReadBackExactly)
{
    settings.set(key::tax1Rate, 0.19);
    settings.set(key::prefsName, QStringLiteral("Anna Schmidt, Grafikdesign"));
    settings.set(key::reportDateL, QDateTime(QDate(2026, 1, 1), QTime(0, 0), Qt::UTC));
    Settings other(file);  // another reader, as another process would be
    EXPECT_EQ(other.real(key::tax1Rate), 0.19);
    EXPECT_EQ(other.string(key::prefsName), u"Anna Schmidt, Grafikdesign");
    EXPECT_EQ(other.date(key::reportDateL), QDateTime(QDate(2026, 1, 1), QTime(0, 0), Qt::UTC));
}

// Commands set a few keys on every run; a value the file already holds is not written again,
// whether this process wrote it or reads it as text that another run wrote.
TEST_F(SettingsTest, AValueTheFileAlreadyHoldsIsNotWrittenAgain)
{
    const QString earlier = dir.filePath(u"Earlier.conf"_qs);
    ASSERT_TRUE(writeFileAtomically(earlier,
                                    "[General]\nisTerminatedFine=true\nselectedDesign=3\n"
                                    "currentPrintJobTitle=Invoice RE-7\n")
                    .has_value());
    Settings fromText(earlier);
    // A write replaces the file: a second name given to it before stays with the old one.
    const auto rewrittenBy = [](Settings& s, const SettingKey& key, const QVariant& value) {
        const QByteArray name = QFile::encodeName(s.fileName()), probe = name + ".probe";
        ::unlink(probe.constData());
        EXPECT_EQ(::link(name.constData(), probe.constData()), 0);
        EXPECT_TRUE(s.set(key, value));
        struct stat st {};
        return ::stat(name.constData(), &st) != 0 || st.st_nlink != 2;
    };
    const struct {
        const SettingKey* key;
        QVariant value, other;
    } cases[] = {
        {&key::isTerminatedFine, true, false},
        {&key::selectedDesign, 3, 4},
        {&key::currentPrintJobTitle, u"Invoice RE-7"_qs, u"Invoice RE-8"_qs},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.key->name);
        settings.set(*c.key, c.value);
        EXPECT_FALSE(rewrittenBy(settings, *c.key, c.value));
        EXPECT_TRUE(rewrittenBy(settings, *c.key, c.other));
        EXPECT_FALSE(rewrittenBy(fromText, *c.key, c.value)) << "read as text";
        EXPECT_TRUE(rewrittenBy(fromText, *c.key, c.other)) << "read as text";
    }
}

TEST_F(SettingsTest, OneTimeUpdatesWriteTheirValuesOnce)
{
    applyOneTimeUpdates(settings);
    EXPECT_EQ(settings.integer(key::itemSortOrder), 1);
    EXPECT_TRUE(settings.boolean(key::beforeTaxesBool));
    EXPECT_TRUE(settings.boolean(key::prefsSupplierTaxSchemeBool));
    EXPECT_TRUE(settings.boolean(key::prefsEvoiceDefaultCurrencyCodeBool));
    EXPECT_TRUE(settings.boolean(key::prefsSupplierCountryCodeBool));
    EXPECT_EQ(settings.string(key::prefsSupplierTaxScheme), u"VAT");
    EXPECT_EQ(settings.string(key::prefsSupplierCurrency), u"EUR");

    // The user's later choices survive the next start.
    settings.set(key::itemSortOrder, 3);
    settings.set(key::beforeTaxesBool, false);
    settings.set(key::prefsSupplierCurrency, QStringLiteral("CHF"));
    applyOneTimeUpdates(settings);
    EXPECT_EQ(settings.integer(key::itemSortOrder), 3);
    EXPECT_FALSE(settings.boolean(key::beforeTaxesBool));
    EXPECT_EQ(settings.string(key::prefsSupplierCurrency), u"CHF");
}

TEST_F(SettingsTest, FlagsSetByHandKeepTheUpdatesFromRunning)
{
    for (const SettingKey& flag : {key::update_1_3, key::update_2_1, key::update_E_Tamo_0_4}) {
        settings.set(flag, true);
    }
    applyOneTimeUpdates(settings);
    EXPECT_FALSE(settings.contains(key::itemSortOrder));
    EXPECT_FALSE(settings.contains(key::beforeTaxesBool));
    EXPECT_FALSE(settings.contains(key::prefsSupplierCurrency));
}

TEST(SettingKeysTest, TextIsReadInTheKeysType)
{
    struct Case {
        const char* key;
        const char16_t* text;
        QVariant expected;  // invalid: refused
    };
    const Case cases[] = {
        {"invHaveNumber", u"true", true},
        {"invHaveNumber", u"0", false},
        {"invHaveNumber", u"maybe", {}},
        {"tax1Rate", u"0.07", 0.07},
        {"tax1Rate", u"7%", {}},
        {"itemSortOrder", u"2", 2},
        {"invDefaultDueDate", u"3", 3},
        {"invCount", u"12.5", 12.5},
        {"prefsName", u"12", QStringLiteral("12")},
        {"reportDateL", u"2026-02-01T00:00:00Z",
         QDateTime(QDate(2026, 2, 1), QTime(0, 0), Qt::UTC)},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.key);
        const SettingKey* key = findSettingKey(c.key);
        ASSERT_NE(key, nullptr);
        const auto value = Settings::fromText(*key, QString::fromUtf16(c.text));
        EXPECT_EQ(value.has_value(), c.expected.isValid());
        if (value && c.expected.isValid()) {
            EXPECT_EQ(*value, c.expected);
        }
    }
    EXPECT_EQ(findSettingKey("noSuchSetting"), nullptr);
    EXPECT_NE(findSettingKey("update_E-Tamo_0.4"), nullptr);
}

TEST(SettingKeysTest, NamesAreUnique)
{
    QSet<QString> names;
    for (const SettingKey& k : allSettingKeys()) {
        EXPECT_FALSE(names.contains(QString::fromLatin1(k.name))) << k.name;
        names.insert(QString::fromLatin1(k.name));
    }
}

TEST(SettingsWriteTest, AWriteThatFailsIsReportedOnceWithTheFileAndTheCause)
{
    tamo::test::ScratchFileSystem disk(256 << 10);
    if (!disk.available()) {
        GTEST_SKIP() << disk.reason().toStdString();
    }
    const QString file = disk.filePath(QStringLiteral("Tamo.conf"));
    Settings settings(file);
    std::vector<Error> reported;
    settings.setWriteFailureHandler([&](const Error& e) { reported.push_back(e); });
    ASSERT_TRUE(settings.set(key::prefsName, QStringLiteral("Anna")));

    disk.fill();
    EXPECT_FALSE(settings.set(key::prefsSlogan, QString(8192, u's')));
    ASSERT_TRUE(settings.writeError().has_value());
    EXPECT_EQ(
        settings.writeError()->text(),
        QStringLiteral("Your settings could not be saved to “%1”. The disk is full.").arg(file));
    EXPECT_FALSE(settings.set(key::prefsContact, QString(8192, u'c')));
    EXPECT_EQ(reported.size(), 1u);                             // said once, not at every write
    EXPECT_EQ(settings.string(key::prefsSlogan).size(), 8192);  // kept for this run

    disk.drain();
    EXPECT_TRUE(settings.set(key::prefsContact, QStringLiteral("again")));
    EXPECT_FALSE(settings.writeError().has_value());
    EXPECT_EQ(Settings(file).string(key::prefsContact), u"again");
    EXPECT_TRUE(tamo::test::readFile(file).contains(u"prefsSlogan=sss"));

    ASSERT_TRUE(disk.remountReadOnly());
    EXPECT_FALSE(settings.set(key::prefsName, QStringLiteral("Bert")));
    EXPECT_EQ(settings.writeError()->reason, u"The file system is read-only.");
    EXPECT_EQ(reported.size(), 2u);
}

}  // namespace
