#include <QDir>
#include <QFile>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "render/invoicehtml.h"
#include "setup/startingvalues.h"
#include "support/commandrunner.h"
#include "support/testsupport.h"

using namespace tamo;
using namespace tamo::test;

namespace {

using Outcome = CommandOutcome;

class SetupCommandsTest : public ::testing::Test {
protected:
    TempProfile dir;
    QString store = dir.path(u"store"_qs);
    Profile profile = Profile::inDirectory(store);

    Outcome tamo(const QStringList& words)
    {
        const Outcome run = runTamo(store, words);
        return run;
    }
    QJsonArray documents()
    {
        return QJsonDocument::fromJson(tamo({u"list"_qs, u"--json"_qs}).out.toUtf8()).array();
    }
};

TEST_F(SetupCommandsTest, AGermanSetupGivesANumberedRechnungWithEveryLabelOfEveryDesignFilled)
{
    const Outcome setup = tamo({u"setup"_qs, u"--language"_qs, u"de"_qs});
    ASSERT_EQ(setup.code, 0) << setup.err.toStdString();
    EXPECT_TRUE(setup.out.startsWith(u"Applied ")) << setup.out.toStdString();
    ASSERT_EQ(tamo({u"new-invoice"_qs}).code, 0);
    const QJsonObject invoice = documents()[0].toObject();
    EXPECT_EQ(invoice[u"title"].toString(), u"Rechnung");
    EXPECT_EQ(invoice[u"currency"].toString(), u"EUR");
    EXPECT_EQ(invoice[u"number"].toString(),
              QStringLiteral("RE-%1-1").arg(QDate::currentDate().year()));
    const Outcome added = tamo({u"add-item"_qs, invoice[u"uniqueID"].toString(), u"--title"_qs,
                                u"Beratung"_qs, u"--price"_qs, u"95"_qs, u"--quantity"_qs, u"8"_qs,
                                u"--unit"_qs, u"Std."_qs, u"--sku"_qs, u"B-1"_qs, u"--tax1"_qs});
    ASSERT_EQ(added.code, 0) << added.err.toStdString();

    // The same settings with each label naming itself show which labels a design prints.
    Settings settings(profile.settingsFile);
    Settings named(dir.path(u"named.conf"_qs));
    std::vector<SettingValue> values;
    for (const SettingKey& k : allSettingKeys()) {
        const std::string_view name = k.name;
        if (name.starts_with("loc") || (name.starts_with("tax") && name.ends_with("Title"))) {
            values.push_back({&k, QStringLiteral("{%1}").arg(QLatin1StringView(k.name))});
        } else if (settings.contains(k)) {
            values.push_back({&k, settings.value(k)});
        }
    }
    named.set(values);

    auto context = openContext(profile.supportFolder + u"/Tamo.zqdb"_qs);
    Record* document = context->fetch("Invoice").at(0);
    const std::vector<Record*> designs = context->fetch("Design");
    ASSERT_EQ(designs.size(), 13u);
    for (const Record* design : designs) {
        SCOPED_TRACE(design->string("title").toStdString());
        PageInput input{DesignParts::of(design), document, document->toMany("items"), u"EUR"_qs,
                        RenderMode::Document,    {},       profile.dataFolder};
        const QString page = fillPage(input, settings);
        EXPECT_FALSE(page.contains(u"%LOC") || page.contains(u"%TAX")) << "a slot left unfilled";
        const QString probe = fillPage(input, named);
        int filled = 0;
        for (const SettingValue& v : values) {
            if (probe.contains(QStringLiteral("{%1}").arg(QLatin1StringView(v.key->name)))) {
                ++filled;
                EXPECT_FALSE(settings.string(*v.key).trimmed().isEmpty()) << v.key->name;
            }
        }
        EXPECT_GT(filled, 8);
    }
}

TEST_F(SetupCommandsTest, SetupAsksBeforeOverwritingWhatTheAssistantSetUp)
{
    ASSERT_EQ(tamo({u"settings"_qs, u"set"_qs, u"isAssiDone"_qs, u"true"_qs}).code, 0);
    ASSERT_EQ(tamo({u"settings"_qs, u"set"_qs, u"locInvoice"_qs, u"Bill"_qs}).code, 0);
    const Outcome declined = tamo({u"setup"_qs, u"--language"_qs, u"fr"_qs});
    EXPECT_EQ(declined.code, 1);
    EXPECT_TRUE(declined.err.contains(u"Warning!")) << declined.err.toStdString();
    EXPECT_EQ(tamo({u"settings"_qs, u"get"_qs, u"locInvoice"_qs}).out, u"Bill\n");

    EXPECT_EQ(tamo({u"--yes"_qs, u"setup"_qs, u"--language"_qs, u"fr"_qs}).code, 0);
    EXPECT_EQ(tamo({u"settings"_qs, u"get"_qs, u"locInvoice"_qs}).out, u"Facture\n");
    EXPECT_EQ(tamo({u"settings"_qs, u"get"_qs, u"languageDefaults"_qs}).out, u"2\n");

    const Outcome unknown = tamo({u"setup"_qs, u"--language"_qs, u"it"_qs});
    EXPECT_EQ(unknown.code, 2);
    EXPECT_EQ(unknown.err.section(u'\n', 0, 0),
              u"tamo: setup: there are no starting values for \"it\"");
}

TEST_F(SetupCommandsTest, SettingsListShowsEveryKeyOrWhatWasChanged)
{
    ASSERT_EQ(tamo({u"setup"_qs, u"--language"_qs, u"en"_qs}).code, 0);
    const Outcome all = tamo({u"settings"_qs, u"list"_qs});
    EXPECT_EQ(all.out.count(u'\n'), qsizetype(allSettingKeys().size()));
    EXPECT_TRUE(all.out.contains(u"locInvoice\tInvoice\n"));
    EXPECT_TRUE(all.out.contains(u"tempEmailBody\tHello,\\n\\nplease find")) << "one line each";

    EXPECT_EQ(tamo({u"settings"_qs, u"list"_qs, u"--changed"_qs}).out, QString());
    ASSERT_EQ(tamo({u"settings"_qs, u"set"_qs, u"locInvoice"_qs, u"Bill"_qs}).code, 0);
    ASSERT_EQ(tamo({u"settings"_qs, u"set"_qs, u"prefsName"_qs, u"Studio Nord"_qs}).code, 0);
    EXPECT_EQ(tamo({u"settings"_qs, u"list"_qs, u"--changed"_qs}).out,
              u"prefsName\tStudio Nord\nlocInvoice\tBill\n");
}

TEST_F(SetupCommandsTest, TheLogoIsSetFromAnImageFileAndRenderedAsPng)
{
    QImage image(40, 20, QImage::Format_RGB32);
    image.fill(Qt::darkCyan);
    const QString bmp = dir.path(u"logo.bmp"_qs);
    ASSERT_TRUE(image.save(bmp, "BMP"));
    const QString text = dir.path(u"logo.txt"_qs);
    QFile notImage(text);
    ASSERT_TRUE(notImage.open(QIODevice::WriteOnly));
    notImage.write("no image at all");
    notImage.close();

    // Text is refused where image data belongs.
    const Outcome asText = tamo({u"settings"_qs, u"set"_qs, u"prefsLogo"_qs, bmp});
    EXPECT_EQ(asText.code, 2);
    EXPECT_TRUE(asText.err.contains(u"prefsLogo holds an image")) << asText.err.toStdString();

    const Outcome set = tamo({u"settings"_qs, u"set"_qs, u"prefsLogo"_qs, u"--file"_qs, bmp});
    ASSERT_EQ(set.code, 0) << set.err.toStdString();
    EXPECT_TRUE(tamo({u"settings"_qs, u"get"_qs, u"prefsLogo"_qs})
                    .out.startsWith(u"(PNG image, 40 × 20 pixels"));

    const Outcome refused = tamo({u"settings"_qs, u"set"_qs, u"prefsLogo"_qs, u"--file"_qs, text});
    EXPECT_EQ(refused.code, 1);
    EXPECT_TRUE(refused.err.contains(u"“logo.txt” cannot be used as the logo."));

    // The logo file beside the pages holds PNG bytes, which the page renderer shows.
    Settings settings(profile.settingsFile);
    const QString markup = logoMarkup(settings, profile.dataFolder);
    EXPECT_TRUE(markup.startsWith(u"<img src=\"file://")) << markup.toStdString();
    QFile logo(profile.dataFolder + u"/Logo.png"_qs);
    ASSERT_TRUE(logo.open(QIODevice::ReadOnly));
    EXPECT_TRUE(logo.readAll().startsWith("\x89PNG\r\n\x1a\n"));

    EXPECT_EQ(tamo({u"settings"_qs, u"set"_qs, u"prefsLogo"_qs, u""_qs}).code, 0);
    EXPECT_TRUE(logoMarkup(settings, profile.dataFolder).contains(u"Please provide a 'Logo"));
}

TEST_F(SetupCommandsTest, MovingTheStoreKeepsEveryDocumentAndLeavesTheOldFolder)
{
    ASSERT_EQ(tamo({u"generate-sample"_qs, u"--documents"_qs, u"20"_qs}).code, 0);
    const QString target = dir.path(u"Sync/Tamo"_qs);
    const QString backup = dir.path(u"before-move.tamo2db"_qs);

    const Outcome declined = tamo({u"move-store"_qs, target, u"--backup"_qs, backup});
    EXPECT_EQ(declined.code, 1);
    EXPECT_EQ(tamo({u"settings"_qs, u"get"_qs, u"useCustomPath"_qs}).out, u"\n");
    EXPECT_FALSE(QFile::exists(target + u"/Tamo.zqdb"_qs));

    const Outcome moved = tamo({u"--yes"_qs, u"move-store"_qs, target, u"--backup"_qs, backup});
    ASSERT_EQ(moved.code, 0) << moved.err.toStdString();
    EXPECT_TRUE(moved.out.contains(target)) << moved.out.toStdString();
    EXPECT_TRUE(QFile::exists(backup));
    EXPECT_EQ(openContext(target + u"/Tamo.zqdb"_qs)->count("Invoice"), 20);
    // The old folder keeps its copy; from now on the store is the moved one.
    const QString old = profile.supportFolder + u"/Tamo.zqdb"_qs;
    EXPECT_EQ(openContext(old)->count("Invoice"), 20);
    ASSERT_EQ(tamo({u"new-invoice"_qs}).code, 0);
    EXPECT_EQ(documents().size(), 21);
    EXPECT_EQ(openContext(old)->count("Invoice"), 20);

    // Back to the default folder, whose old store is replaced; the backup goes to Documents.
    const Outcome back = tamo({u"--yes"_qs, u"move-store"_qs, u"--default"_qs});
    ASSERT_EQ(back.code, 0) << back.err.toStdString();
    EXPECT_EQ(openContext(old)->count("Invoice"), 21);
    EXPECT_EQ(QDir(profile.documentsFolder).entryList({u"*.tamo2db"_qs}).size(), 1);
    EXPECT_EQ(tamo({u"move-store"_qs, u"--default"_qs}).out.left(24), u"The store is already in ");
}

}  // namespace
