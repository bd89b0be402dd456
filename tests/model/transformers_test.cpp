#include "model/transformers.h"
#include "model/context.h"
#include "support/testsupport.h"

using namespace tamo;
using namespace tamo::test;

namespace {

TEST(TransformersTest, StampsAndEditabilityFollowKindAndStatus)
{
    TempProfile dir;
    auto context = openContext(dir.path(QStringLiteral("Tamo.zqdb")));
    struct Case {
        int kind, status;
        const char16_t *list, *table;
        bool editable;
    };
    const Case cases[] = {
        {0, 0, u"Stamp5", u"StampM5", true},  {0, 3, u"Stamp5", u"StampM5", false},
        {1, 0, u"Stamp0", u"StampM0", true},  {1, 1, u"Stamp1", u"StampM1", false},
        {1, 2, u"Stamp2", u"StampM2", false}, {1, 3, u"Stamp3", u"StampM3", false},
        {1, 4, u"Stamp4", u"StampM4", false}, {1, 9, u"Stamp0", u"StampM0", false},
        {1, -1, u"Stamp0", u"StampM0", true},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::Message() << "kind " << c.kind << " status " << c.status);
        Record* d = context->insert("Invoice");
        d->setValue("kind", c.kind);
        d->setValue("status", c.status);
        EXPECT_EQ(stampImageName(d, false), QString::fromUtf16(c.list));
        EXPECT_EQ(stampImageName(d, true), QString::fromUtf16(c.table));
        EXPECT_EQ(invoiceSentToBool(d), c.editable);
    }
    EXPECT_TRUE(stampImageName(nullptr, false).isEmpty());
    EXPECT_FALSE(invoiceSentToBool(nullptr));
}

TEST(TransformersTest, PaymentFieldsShowOnlyForTheirStates)
{
    // status:          0     1     2     3      4
    const bool dateHidden[] = {true, true, true, false, false};
    const bool amountHidden[] = {true, true, true, true, false};
    for (int status = 0; status <= 4; ++status) {
        EXPECT_EQ(intToDateBool(status), dateHidden[status]) << status;
        EXPECT_EQ(intToAmountBool(status), amountHidden[status]) << status;
    }
}

}  // namespace
