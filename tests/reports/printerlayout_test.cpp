#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>

#include "pdf/pdfrenderer.h"
#include "reports/printerdocument.h"
#include "support/testsupport.h"

using namespace tamo;
using namespace tamo::test;

namespace {

QString goldenPath(const QString& name)
{
    return QStringLiteral(TAMO_TEST_DATA "/reports/") + name;
}

// Every page with its views in the order they were added: frame, background and text.
QString dump(const PrinterDocument& document)
{
    QString out;
    const auto number = [](qreal v) { return QString::number(v, 'f', 1); };
    for (size_t k = 0; k < document.pages().size(); ++k) {
        out += QStringLiteral("page %1\n").arg(k + 1);
        for (const auto& view : document.pages()[k]->view().subviews()) {
            const QRectF f = view->frame();
            out += QStringLiteral("  %1,%2 %3x%4%5 |%6|\n")
                       .arg(number(f.x()), number(f.y()), number(f.width()), number(f.height()))
                       .arg(view->backgroundColor() ? u" "_qs + view->backgroundColor()->name()
                                                    : QString())
                       .arg(view->text().replace(u'\n', u'/'));
        }
    }
    return out;
}

// Blocks whose height depends on nothing but the font: one line each, in a font every machine
// running the tests has.
PrinterItem line(const QString& text, qreal top = 0, qreal bottom = 0)
{
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(10);
    PrinterItem item;
    item.attributedString = StyledText::fromPlainText(text, font);
    item.leftMargin = 40;
    item.rightMargin = 40;
    item.topMargin = top;
    item.bottomMargin = bottom;
    item.verticalInset = 3;
    return item;
}

std::unique_ptr<PrinterDocument> numberedBook(std::vector<PrinterItem> items)
{
    auto book = std::make_unique<PrinterDocument>(std::move(items));
    PrinterDocument& document = *book;
    document.pageSize = QSizeF(300, 200);
    document.topMargin = 20;
    document.bottomMargin = 30;
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(6);
    document.footerView = std::make_unique<PrinterTextView>(
        QRectF(40, 0, 584, 20),
        StyledText::fromPlainText(u"<pageNumber/> / <pageCount/>"_qs, font));
    return book;
}

TEST(PrinterLayout, ItemsFlowOverPagesThatAreNumberedInTheirFooters)
{
    std::vector<PrinterItem> items;
    for (int i = 1; i <= 17; ++i) {
        items.push_back(line(QStringLiteral("Row %1").arg(i), i == 1 ? 0 : 2, i % 2 ? 0 : -2));
        if (i % 2 == 0) {
            items.back().backgroundColor = QColor(250, 250, 250);
        }
    }
    const auto book = numberedBook(std::move(items));
    PrinterDocument& document = *book;
    document.layout();
    ASSERT_EQ(document.pages().size(), 3u);
    expectGoldenFile(goldenPath(u"three_pages.txt"_qs), dump(document));
    for (size_t k = 0; k < 3; ++k) {
        EXPECT_EQ(document.pages()[k]->footerView()->text(), QStringLiteral("%1 / 3").arg(k + 1));
    }
}

TEST(PrinterLayout, PageBreaksAndItemsTallerThanThePage)
{
    std::vector<PrinterItem> items;
    items.push_back(line(u"Break at the head"_qs));
    items.back().pageBreakBefore = true;  // yields a page with nothing on it
    items.push_back(line(u"After the break"_qs));
    items.push_back(line(u"Too tall"_qs, 0, 400));  // never fits: alone, cut at the margin
    items.push_back(line(u"Next"_qs));
    items.push_back(line(u"New page"_qs));
    items.back().pageBreakBefore = true;
    const auto book = numberedBook(std::move(items));
    PrinterDocument& document = *book;
    document.layout();
    expectGoldenFile(goldenPath(u"breaks_and_tall_item.txt"_qs), dump(document));
    EXPECT_FALSE(document.printerItems()[0].pageBreakBefore);  // cleared on the way
    ASSERT_EQ(document.pages().size(), 5u);
    EXPECT_EQ(document.pages()[0]->view().subviews().size(), 1u);  // the footer alone
    const auto& tallPage = document.pages()[2]->view().subviews();
    ASSERT_EQ(tallPage.size(), 2u);  // the footer and the tall item
    EXPECT_EQ(tallPage[1]->frame().bottom(), 200 - 30);
}

TEST(PrinterLayout, LayoutRunsOnceAndEveryPdfIsAFreshCopyOfTheSamePages)
{
    const auto book = numberedBook({line(u"One"_qs), line(u"Two"_qs)});
    PrinterDocument& document = *book;
    EXPECT_FALSE(document.layouted());
    document.substituteVariables({{u"unused"_qs, u"x"_qs}});
    ASSERT_TRUE(document.layouted());
    const PrinterPage* first = document.pages().front().get();
    const QByteArray a = document.PDFDocument();
    const QByteArray b = document.PDFDocument();
    EXPECT_EQ(document.pages().size(), 1u);
    EXPECT_EQ(document.pages().front().get(), first);
    EXPECT_TRUE(a.startsWith("%PDF"));
    EXPECT_TRUE(b.startsWith("%PDF"));
    EXPECT_EQ(pdfPageCount(a), 1);
}

TEST(PrinterTextView, TagsAreReplacedWithoutRegardToCaseAndNeverByThemselves)
{
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(6);
    struct Case {
        const char* text;
        PrinterVariables variables;
        const char* expected;
    };
    const Case cases[] = {
        {"<pageNumber/> / <pageCount/>",
         {{u"pageCount"_qs, u"3"_qs}, {u"pageNumber"_qs, u"2"_qs}},
         "2 / 3"},
        {"<PAGENUMBER/> and <pagenumber/>", {{u"pageNumber"_qs, u"7"_qs}}, "7 and 7"},
        {"a <pageNumber/> b <pageNumber/>",
         {{u"pageNumber"_qs, u"x<PageNumber/>"_qs}},
         "a Error: Recursion b <pageNumber/>"},
        // Once no "<" is left, later variables are not looked at.
        {"<a/>", {{u"a"_qs, u"done"_qs}, {u"b"_qs, u"<a/>"_qs}}, "done"},
        {"<a/> <b/>", {{u"a"_qs, PrinterValue{}}, {u"b"_qs, u"B"_qs}}, "<a/> B"},
        {"no tags", {{u"pageNumber"_qs, u"1"_qs}}, "no tags"},
    };
    for (const Case& c : cases) {
        PrinterTextView view(QRectF(0, 0, 200, 20),
                             StyledText::fromPlainText(QString::fromUtf8(c.text), font));
        view.substituteVariables(c.variables);
        EXPECT_EQ(view.text(), QString::fromUtf8(c.expected)) << c.text;
    }
}

TEST(PrinterTextView, ValuesTakeTheStyleOfTheirTag)
{
    PrinterTextView view(QRectF(0, 0, 300, 40),
                         StyledText::fromHtml(u"<span style=\"font-family: 'DejaVu Serif'; "
                                              u"font-size: 9px; color: #ff0000;\">&lt;name/&gt;"
                                              u"</span> rest"_qs));
    // A styled value keeps its own size and weight, in the tag's family and colour.
    view.replaceText(u"<NAME/>"_qs, StyledText::fromHtml(u"<b style=\"font-size: 14px;\">Bold</b>"
                                                         u" &amp; <i>Co</i>"_qs));
    ASSERT_EQ(view.text(), u"Bold & Co rest"_qs);
    const auto formatAt = [](const PrinterTextView& v, int position) {
        QTextCursor cursor(const_cast<QTextDocument*>(v.document()));
        cursor.setPosition(position + 1);
        return cursor.charFormat();
    };
    const QTextCharFormat bold = formatAt(view, 0);
    EXPECT_EQ(bold.fontFamilies().toStringList(), QStringList{u"DejaVu Serif"_qs});
    EXPECT_TRUE(bold.font().bold());
    EXPECT_EQ(bold.font().pixelSize(), 14);
    EXPECT_EQ(bold.foreground().color(), QColor(255, 0, 0));
    EXPECT_TRUE(formatAt(view, 7).font().italic());

    // A plain value is written in the tag's own style.
    PrinterTextView plain(
        QRectF(0, 0, 300, 40),
        StyledText::fromHtml(u"x <b style=\"font-size: 9px;\">&lt;n/&gt;</b>"_qs));
    plain.replaceText(u"<n/>"_qs, u"12"_qs);
    EXPECT_EQ(plain.text(), u"x 12"_qs);
    EXPECT_TRUE(formatAt(plain, 2).font().bold());
    EXPECT_EQ(formatAt(plain, 3).font().pixelSize(), 9);
}

TEST(StyledText, ReplacingTheFontChangesOnlyTheFamily)
{
    const StyledText source = StyledText::fromHtml(
        u"<span style=\"font-family: 'DejaVu Serif'; font-size: 17px;\">Big</span> "
        u"<b style=\"font-size: 7px;\">bold</b> <i>slanted</i> €"_qs);
    const StyledText moved =
        attributedStringByReplacingFont(source, QFont(u"DejaVu Sans Mono"_qs, 40));
    auto document = makeLayoutDocument();
    moved.build(*document);
    EXPECT_EQ(document->toPlainText(), u"Big bold slanted €"_qs);  // outside Latin-1, kept
    struct Run {
        QString text;
        int pixelSize;
        bool bold;
        bool italic;
    };
    std::vector<Run> runs;
    for (QTextBlock b = document->begin(); b.isValid(); b = b.next()) {
        for (auto it = b.begin(); !it.atEnd(); ++it) {
            const QTextCharFormat f = it.fragment().charFormat();
            EXPECT_EQ(f.fontFamilies().toStringList(), QStringList{u"DejaVu Sans Mono"_qs});
            runs.push_back({it.fragment().text().trimmed(), f.font().pixelSize(), f.font().bold(),
                            f.font().italic()});
        }
    }
    const auto run = [&](const QString& text) {
        for (const Run& r : runs) {
            if (r.text == text) {
                return r;
            }
        }
        return Run{};
    };
    EXPECT_EQ(run(u"Big"_qs).pixelSize, 17);
    EXPECT_TRUE(run(u"bold"_qs).bold);
    EXPECT_EQ(run(u"bold"_qs).pixelSize, 7);
    EXPECT_TRUE(run(u"slanted"_qs).italic);
    EXPECT_EQ(latin1Html(u"5 € and 𝄞"_qs), u"5 &#8364; and &#119070;"_qs);
}

}  // namespace
