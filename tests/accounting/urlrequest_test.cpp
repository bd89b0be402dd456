#include <gtest/gtest.h>

#include "accounting/ledrix.h"
#include "accounting/ledriximport.h"
#include "accounting/urlrequest.h"
#include "support/testsupport.h"

namespace tamo::test {
namespace {

TEST(UrlRequestTest, ReadsTheHostsTamoAnswers)
{
    const struct {
        QString url;
        QString host, key, value, kind, id;
    } cases[] = {
        {u"tamo://ledriximport?key=2024-03-01&value=2024-03-31&kind=paid&id=A-1"_qs,
         u"ledriximport"_qs, u"2024-03-01"_qs, u"2024-03-31"_qs, u"paid"_qs, u"A-1"_qs},
        {u"TAMO://LedrixImport/?id=&kind=kind&value=5%20March%202024&key=1.3.2024"_qs,
         u"ledriximport"_qs, u"1.3.2024"_qs, u"5 March 2024"_qs, u"kind"_qs, u""_qs},
        {u"tamo://action?key=a&kind=b"_qs, u"action"_qs, u"a"_qs, {}, u"b"_qs, {}},
        {u"tamo://preferences"_qs, u"preferences"_qs, {}, {}, {}, {}},
        {u"tamo://userdefaults?key=x&value=%26%3D"_qs,
         u"userdefaults"_qs,
         u"x"_qs,
         u"&="_qs,
         {},
         {}},
    };
    for (const auto& c : cases) {
        const auto request = parseTamoUrl(c.url);
        ASSERT_TRUE(request) << c.url.toStdString() << ": " << request.error().text().toStdString();
        EXPECT_EQ(request->host, c.host);
        EXPECT_EQ(request->key, c.key) << c.url.toStdString();
        EXPECT_EQ(request->value, c.value) << c.url.toStdString();
        EXPECT_EQ(request->kind, c.kind) << c.url.toStdString();
        EXPECT_EQ(request->id, c.id) << c.url.toStdString();
    }
}

TEST(UrlRequestTest, RefusesWhatItCannotAnswer)
{
    const QString query = u"?key=2024-03-01&value=2024-03-31&kind=paid&id=1"_qs;
    const std::pair<QString, int> cases[] = {
        {u""_qs, kMalformedRequest},
        {u"tamo:"_qs, kUnknownRequest},
        {u"http://ledriximport"_qs + query, kMalformedRequest},
        {u"ledrix://action?key=importTamo"_qs, kMalformedRequest},
        {u"tamo://ledrix import"_qs + query, kMalformedRequest},
        {u"tamo://export"_qs + query, kUnknownRequest},
        {u"tamo://ledrix%69mport"_qs + query, kMalformedRequest},
        {u"tamo://ledriximport/..%2F..%2Fetc"_qs + query, kMalformedRequest},
        {u"tamo://ledriximport/../../tmp"_qs + query, kMalformedRequest},
        {u"tamo://ledriximport?key=2024-03-01&value=2024-03-31&kind=paid"_qs, kIncompleteRequest},
        {u"tamo://ledriximport?value=2024-03-31&kind=paid&id=1"_qs, kIncompleteRequest},
        {u"tamo://ledriximport"_qs, kIncompleteRequest},
        {u"tamo://ledriximport"_qs + query + u"&pad="_qs + QString(100 * 1024, u'x'),
         kMalformedRequest},
    };
    for (const auto& [url, code] : cases) {
        const auto request = parseTamoUrl(url);
        ASSERT_FALSE(request) << url.left(80).toStdString();
        EXPECT_EQ(request.error().code, code) << url.left(80).toStdString();
        EXPECT_LT(request.error().text().size(), 300) << "the message quotes at most a little";
    }
}

TEST(UrlRequestTest, TheCallbackEscapesThePathAndTheIdentifier)
{
    EXPECT_EQ(LedrixImport::callbackUrl(u"/home/jö/Tamo Data/LedrixImport.plist"_qs, u"A-1"_qs),
              u"ledrix://action?key=importTamo&value=/home/j%C3%B6/Tamo%20Data/"
              u"LedrixImport.plist&kind=A-1"_qs);
    EXPECT_EQ(LedrixImport::callbackUrl(u"/a&b=c/L.plist"_qs, u"x&y=z"_qs),
              u"ledrix://action?key=importTamo&value=/a%26b%3Dc/L.plist&kind=x%26y%3Dz"_qs);
}

}  // namespace
}  // namespace tamo::test
