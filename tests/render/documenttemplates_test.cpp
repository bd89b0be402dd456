#include "render/documenttemplates.h"
#include "render/renderfixture.h"

using namespace tamo;
using namespace tamo::test;

namespace {

class TemplatesTest : public RenderTest {
protected:
    DocumentTemplates templates{session};
};

TEST_F(TemplatesTest, ANewTemplateTakesWhatTheSettingsInclude)
{
    EXPECT_FALSE(templates.showTemplatePopover().has_value());  // no current document
    Record* source = document();
    source->setValue("isShippingEnabled", true);
    source->setValue("shippingAmount", 9.5);
    source->setValue("notes", u"private"_qs);
    line(source, u"Design"_qs, 2, 100, u"1"_qs);
    line(source, u"Print"_qs, 1, 40, u"2"_qs);
    select(source);
    settings.set(key::templateIncludeClient, true);
    settings.set(key::templateIncludeItems, true);

    Record* t = templates.createNewTemplate(u"Monthly retainer"_qs);
    ASSERT_NE(t, nullptr);
    EXPECT_FALSE(context.hasChanges());
    EXPECT_EQ(t->string("notes"), u"Monthly retainer");
    EXPECT_EQ(t->string("customerName"), u"Ada Client");
    EXPECT_EQ(t->string("address"), source->string("address"));
    EXPECT_EQ(t->string("conditions"), source->string("conditions"));  // always taken
    EXPECT_EQ(t->string("currency"), u"EUR");
    EXPECT_TRUE(t->value("title").isNull());              // title not included
    EXPECT_TRUE(t->value("isShippingEnabled").isNull());  // shipping not included
    const auto lines = t->toMany("items");
    ASSERT_EQ(lines.size(), 2u);
    for (const Record* l : lines) {
        EXPECT_EQ(l->toOne("invoice"), nullptr);
        EXPECT_NE(l->uniqueID(), source->toMany("items")[0]->uniqueID());
    }
    EXPECT_EQ(source->toMany("items").size(), 2u);  // the document keeps its own
    ASSERT_TRUE(templates.showTemplatePopover().has_value());
    EXPECT_EQ(templates.showTemplatePopover()->size(), 1u);
}

TEST_F(TemplatesTest, ApplyingATemplateFillsTheDocumentAndReplacesItsLines)
{
    Record* source = document();
    source->setValue("customerName", u"Template Client"_qs);
    line(source, u"From template"_qs, 3, 50, u"1"_qs);
    select(source);
    settings.set(key::templateIncludeClient, true);
    settings.set(key::templateIncludeItems, true);
    settings.set(key::templateIncludeTitle, true);
    settings.set(key::beforeTaxesBool, true);
    Record* t = templates.createNewTemplate(u"T"_qs);

    Record* target = context.insert("Invoice");
    target->setValue("kind", 1);
    target->setValue("notes", u"keep me"_qs);
    line(target, u"Old line"_qs, 1, 1, {});
    select(target);
    ASSERT_TRUE(templates.selectTemplate(*t));
    EXPECT_EQ(target->string("customerName"), u"Template Client");
    EXPECT_EQ(target->string("title"), u"Invoice");
    EXPECT_EQ(target->string("notes"), u"keep me");
    const auto lines = target->toMany("items");
    ASSERT_EQ(lines.size(), 1u);
    EXPECT_EQ(lines[0]->string("title"), u"From template");
    EXPECT_NE(lines[0]->uniqueID(), t->toMany("items")[0]->uniqueID());
    EXPECT_EQ(t->toMany("items").size(), 1u);     // the template keeps its own
    EXPECT_GT(target->decimal("amount"), 150.0);  // recalculated
    EXPECT_FALSE(context.hasChanges());

    // One step to undo.
    session.undo();
    EXPECT_EQ(target->toMany("items").size(), 1u);
    EXPECT_EQ(target->toMany("items")[0]->string("title"), u"Old line");
}

TEST_F(TemplatesTest, ASentDocumentRefusesTemplates)
{
    Record* source = document();
    select(source);
    Record* t = templates.createNewTemplate(u"T"_qs);
    Record* sent = document();
    sent->setValue("status", 1);
    sent->setValue("conditions", u"as sent"_qs);
    select(sent);
    EXPECT_FALSE(templates.selectTemplate(*t));
    ASSERT_EQ(prompter.alerts().size(), 1);
    EXPECT_EQ(prompter.alerts()[0].title, u"Error!");
    EXPECT_TRUE(prompter.alerts()[0].text.startsWith(
        u"The selected invoice is marked as already sent. If you really need to make changes"));
    EXPECT_EQ(sent->string("conditions"), u"as sent");
}

}  // namespace
