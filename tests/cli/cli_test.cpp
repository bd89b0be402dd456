#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTextStream>
#include <QUrl>

#include "cli/commandline.h"
#include "support/commandrunner.h"
#include "support/testsupport.h"

using namespace tamo;
using namespace tamo::test;

namespace {

using Outcome = CommandOutcome;

class CommandLineTest : public ::testing::Test {
protected:
    TempProfile dir;

    Outcome tamo(const QStringList& words) { return runTamo(dir.path(u"store"_qs), words); }
};

TEST_F(CommandLineTest, GeneratedDocumentsAreListedNewestFirst)
{
    const Outcome generated = tamo({u"generate-sample"_qs, u"--documents"_qs, u"40"_qs,
                                    u"--items-per-document"_qs, u"3"_qs, u"--clients"_qs, u"6"_qs});
    ASSERT_EQ(generated.code, 0) << generated.err.toStdString();
    EXPECT_EQ(generated.out, u"Generated 40 documents with 120 lines and 6 clients.\n");

    const Outcome listed = tamo({u"list"_qs, u"--json"_qs});
    ASSERT_EQ(listed.code, 0) << listed.err.toStdString();
    const QJsonArray documents = QJsonDocument::fromJson(listed.out.toUtf8()).array();
    ASSERT_EQ(documents.size(), 40);
    QString previous = u"9999"_qs;
    for (const QJsonValue& v : documents) {
        const QJsonObject d = v.toObject();
        for (const char* field : {"uniqueID", "kind", "status", "number", "title", "customerName",
                                  "date", "due", "amount"}) {
            EXPECT_TRUE(d.contains(QLatin1String(field))) << field;
        }
        EXPECT_LE(d[u"date"].toString(), previous);
        previous = d[u"date"].toString();
    }

    const Outcome table = tamo({u"list"_qs});
    EXPECT_EQ(table.out.count(u'\n'), 41);  // a heading and a row per document
    EXPECT_TRUE(table.out.startsWith(u"Status"));
}

TEST_F(CommandLineTest, SettingsAreReadAndWrittenInTheirType)
{
    EXPECT_EQ(tamo({u"settings"_qs, u"get"_qs, u"tax1Rate"_qs}).out, u"\n");
    EXPECT_EQ(tamo({u"settings"_qs, u"set"_qs, u"tax1Rate"_qs, u"0.19"_qs}).code, 0);
    EXPECT_EQ(tamo({u"settings"_qs, u"get"_qs, u"tax1Rate"_qs}).out, u"0.19\n");
    EXPECT_TRUE(readFile(dir.path(u"store/Tamo.conf"_qs)).contains(u"tax1Rate=0.19"));
}

TEST_F(CommandLineTest, RatesAreReadAsPercentagesAndAbsurdAmountsAreRefused)
{
    for (const auto& [typed, stored] : {std::pair{u"19"_qs, u"0.19"_qs},
                                        {u"19 %"_qs, u"0.19"_qs},
                                        {u"7,5"_qs, u"0.075"_qs},
                                        {u"0.07"_qs, u"0.07"_qs}}) {
        SCOPED_TRACE(typed.toStdString());
        EXPECT_EQ(tamo({u"settings"_qs, u"set"_qs, u"tax2Rate"_qs, typed}).code, 0);
        EXPECT_EQ(tamo({u"settings"_qs, u"get"_qs, u"tax2Rate"_qs}).out, stored + u'\n');
    }
    for (const QString& typed : {u"-5"_qs, u"150"_qs, u"none"_qs}) {
        const Outcome refused = tamo({u"settings"_qs, u"set"_qs, u"tax2Rate"_qs, typed});
        EXPECT_EQ(refused.code, 1);
        EXPECT_TRUE(refused.err.startsWith(u"tamo: tax2Rate: ")) << refused.err.toStdString();
    }
    EXPECT_EQ(tamo({u"settings"_qs, u"get"_qs, u"tax2Rate"_qs}).out, u"0.07\n");

    ASSERT_EQ(tamo({u"new-invoice"_qs}).code, 0);
    const QString id = QJsonDocument::fromJson(tamo({u"list"_qs, u"--json"_qs}).out.toUtf8())
                           .array()[0][u"uniqueID"]
                           .toString();
    const struct {
        const char16_t* price;
        const char16_t* quantity;
        const char16_t* message;
    } amounts[] = {
        {u"nan", u"1", u"tamo: add-item: “nan” is not a number Tamo can calculate with."},
        {u"inf", u"1", u"tamo: add-item: “inf” is not a number Tamo can calculate with."},
        {u"1e308", u"1", u"tamo: add-item: 1e+308 is too large: Tamo takes amounts of at most"},
        {u"2", u"-1e13", u"tamo: add-item: -1e+13 is too large: Tamo takes amounts of at most"},
        {u"1e9", u"1e6", u"tamo: add-item: The line comes to 1e+15, which is too large"},
    };
    for (const auto& a : amounts) {
        SCOPED_TRACE(QString::fromUtf16(a.price).toStdString());
        const Outcome refused =
            tamo({u"add-item"_qs, id, u"--title"_qs, u"Line"_qs, u"--price"_qs,
                  QString::fromUtf16(a.price), u"--quantity"_qs, QString::fromUtf16(a.quantity)});
        EXPECT_EQ(refused.code, 1);
        EXPECT_TRUE(refused.err.startsWith(QString::fromUtf16(a.message)))
            << refused.err.toStdString();
    }
    EXPECT_EQ(queryText(dir.path(u"store/Tamo.zqdb"_qs), u"SELECT COUNT(*) FROM Item"_qs), u"0");
}

TEST_F(CommandLineTest, ACommandThatCouldNotSaveClaimsNothing)
{
    ASSERT_EQ(tamo({u"list"_qs}).code, 0);
    execSql(dir.path(u"store/Tamo.zqdb"_qs),
            u"CREATE TRIGGER full BEFORE INSERT ON Invoice "
            u"BEGIN SELECT RAISE(ABORT, 'database or disk is full'); END"_qs);
    const Outcome created = tamo({u"new-invoice"_qs});
    EXPECT_EQ(created.code, 1);
    EXPECT_TRUE(created.out.isEmpty()) << created.out.toStdString();
    EXPECT_TRUE(created.err.contains(u"could not be written")) << created.err.toStdString();
    for (const char16_t* sql : {u"INSERT", u"BEGIN", u"COMMIT", u"Unknown error"}) {
        EXPECT_FALSE(created.err.contains(QString::fromUtf16(sql))) << created.err.toStdString();
    }
}

TEST_F(CommandLineTest, MistakesGiveOneClearLineAndAnErrorCode)
{
    struct Case {
        QStringList words;
        int code;
        const char16_t* message;
    };
    const Case cases[] = {
        {{u"frobnicate"_qs}, 2, u"tamo: unknown command \"frobnicate\""},
        {{u"settings"_qs, u"get"_qs, u"noSuchKey"_qs},
         1,
         u"tamo: there is no setting named noSuchKey"},
        {{u"settings"_qs, u"set"_qs, u"invHaveNumber"_qs, u"perhaps"_qs},
         1,
         u"tamo: perhaps is not a valid value for invHaveNumber"},
        {{u"generate-sample"_qs, u"--documents"_qs, u"many"_qs},
         2,
         u"tamo: generate-sample: --documents needs a whole number"},
        {{u"list"_qs, u"--xml"_qs}, 2, u"tamo: list: unknown option --xml"},
        {{u"list"_qs, u"--json=yes"_qs}, 2, u"tamo: list: --json takes no value"},
        {{u"render"_qs, u"1"_qs, u"--pdf"_qs}, 2, u"tamo: render: --pdf needs a value"},
        {{u"set-status"_qs, u"1"_qs, u"7"_qs},
         2,
         u"tamo: set-status: the status is 0, 1, 3 or 4 (overdue follows from the due date), "
         u"not 7"},
        {{u"set-status"_qs, u"1"_qs, u"2"_qs},
         2,
         u"tamo: set-status: the status is 0, 1, 3 or 4 (overdue follows from the due date), "
         u"not 2"},
        {{u"new-invoice"_qs, u"extra"_qs}, 2, u"tamo: usage: tamo new-invoice"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.words.join(u' ').toStdString());
        const Outcome run = tamo(c.words);
        EXPECT_EQ(run.code, c.code);
        EXPECT_EQ(run.err.section(u'\n', 0, 0), QString::fromUtf16(c.message));
    }
}

TEST_F(CommandLineTest, OptionsStandAnywhereAndEveryCommandExplainsItself)
{
    // The global options after the command, a command's options before its operand, "=" values
    // and "--" before an operand that begins with a dash.
    const auto run = [&](const QStringList& words) {
        QString out, err;
        QTextStream o(&out), e(&err);
        const int code = runCommand(parseInvocation(QStringList{u"tamo"_qs} + words), o, e);
        o.flush();
        e.flush();
        return Outcome{code, out, err};
    };
    const QString store = dir.path(u"store"_qs);
    ASSERT_EQ(run({u"new-invoice"_qs, u"--store"_qs, store}).code, 0);
    const QString id = QJsonDocument::fromJson(tamo({u"list"_qs, u"--json"_qs}).out.toUtf8())
                           .array()[0][u"uniqueID"]
                           .toString();
    const Outcome added = run({u"add-item"_qs, u"--tax1"_qs, u"--title=Design"_qs, u"--price"_qs,
                               u"-20"_qs, u"--quantity"_qs, u"3"_qs, id, u"--store"_qs, store});
    EXPECT_EQ(added.code, 0) << added.err.toStdString();
    EXPECT_TRUE(added.out.contains(u"its total is now -60.00")) << added.out.toStdString();
    EXPECT_EQ(run({u"--store="_qs + store, u"settings"_qs, u"set"_qs, u"locSlip"_qs, u"--"_qs,
                   u"--draft--"_qs})
                  .code,
              0);
    EXPECT_EQ(tamo({u"settings"_qs, u"get"_qs, u"locSlip"_qs}).out, u"--draft--\n");

    for (const QStringList& words :
         {QStringList{u"render"_qs, u"--help"_qs}, QStringList{u"help"_qs, u"render"_qs}}) {
        const Outcome help = tamo(words);
        EXPECT_EQ(help.code, 0);
        EXPECT_TRUE(help.out.startsWith(u"usage: tamo render N (--html FILE|- | --pdf FILE)"))
            << help.out.toStdString();
    }
    const Outcome unknown = tamo({u"list"_qs, u"--xml"_qs});
    EXPECT_EQ(unknown.err.section(u'\n', 1, 1), u"usage: tamo list [--json]");
}

TEST_F(CommandLineTest, AStoreThatCannotBeOpenedIsReportedNotReplaced)
{
    QDir().mkpath(dir.path(u"store"_qs));
    QFile file(dir.path(u"store/Tamo.zqdb"_qs));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(QByteArray(4096, 'x'));
    file.close();
    const Outcome run = tamo({u"list"_qs});
    EXPECT_EQ(run.code, 1);
    EXPECT_TRUE(run.err.contains(u"is damaged")) << run.err.toStdString();
    EXPECT_TRUE(run.err.contains(u"It is not a database.")) << run.err.toStdString();
    EXPECT_TRUE(run.err.contains(u"Failed to initialize the store"));
    EXPECT_EQ(QFileInfo(file).size(), 4096);
}

}  // namespace

namespace {

// What the desktop does when a Tamo file is opened from the file manager: the file goes to the
// window (main hands it over, or starts one), which answers as `open` does.
TEST(CommandLineOpenTest, AFileAsTheOnlyArgumentIsForTheWindowAndOpenImportsNothing)
{
    TempProfile dir;
    const QString file = dir.path(u"Acme.invdump"_qs);
    QFile f(file);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write("not imported by a double click");
    f.close();
    const QString url = QUrl::fromLocalFile(file).toString();
    for (const QString& argument : {file, url}) {
        const Invocation inv = parseInvocation({u"tamo"_qs, u"--store"_qs, u"/x"_qs, argument});
        EXPECT_EQ(inv.file, file) << argument.toStdString();
        EXPECT_TRUE(inv.command.isEmpty());
    }
    EXPECT_EQ(parseInvocation({u"tamo"_qs, u"list"_qs}).command, QStringList{u"list"_qs});
    EXPECT_EQ(parseInvocation({u"tamo"_qs, u"tamo://userdefaults"_qs}).url, u"tamo://userdefaults");

    const CommandOutcome run = runTamo(dir.path(u"store"_qs), {u"open"_qs, file});
    EXPECT_EQ(run.code, 0);
    EXPECT_TRUE(run.err.contains(u"please use the 'File Menu' to open documents"));
    EXPECT_EQ(runTamo(dir.path(u"store"_qs), {u"list"_qs}).out.count(u'\n'), 1);  // heading only
}

}  // namespace
