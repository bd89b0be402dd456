#pragma once

#include "calc/totals.h"
#include "support/testsupport.h"

namespace tamo {
inline void PrintTo(const Value& value, std::ostream* os)
{
    *os << (value.isNull() ? std::string("null") : value.toString().toStdString());
}
}  // namespace tamo

namespace tamo::test {

// Records are written and checked as "key=value key=value", each value read as the attribute's
// type ("null" for none).
inline Value parse(const Record& record, const QString& key, const QString& text)
{
    if (text == u"null") {
        return {};
    }
    const int index = record.entity().attributeIndex(key.toStdString());
    switch (record.entity().attributes().at(size_t(index)).type) {
    case AttributeType::Decimal:
        return text.toDouble();
    case AttributeType::Integer:
        return text.toInt();
    case AttributeType::Boolean:
        return text == u"true";
    case AttributeType::Date:
        return QDateTime::fromString(text, Qt::ISODate);
    case AttributeType::String:
        break;
    }
    return text;
}

template <typename F>
void forEachAssignment(const Record& record, const char16_t* assignments, F f)
{
    for (const QString& a : QString::fromUtf16(assignments).split(u' ', Qt::SkipEmptyParts)) {
        const QString key = a.section(u'=', 0, 0);
        f(key.toStdString(), parse(record, key, a.section(u'=', 1)));
    }
}

inline Record* set(Record* r, const char16_t* assignments)
{
    forEachAssignment(*r, assignments,
                      [r](const std::string& k, const Value& v) { r->setValue(k, v); });
    return r;
}

// Every listed value exactly, to the last bit.
inline void expectValues(const Record* r, const char16_t* expected)
{
    forEachAssignment(*r, expected, [r](const std::string& k, const Value& v) {
        EXPECT_EQ(r->value(k), v) << k;
    });
}

// A session on a real store in a temporary folder.
class CalcTest : public SessionTest {
protected:
    Context& context = *session.managedObjectContext();
    Totals totals{session};

    Record* document(const char16_t* assignments = u"")
    {
        return set(context.insert("Invoice"), assignments);
    }
    Record* line(Record* document, const char16_t* assignments)
    {
        Record* item = set(context.insert("Item"), assignments);
        item->setToOne("invoice", document);
        return item;
    }
};

}  // namespace tamo::test
