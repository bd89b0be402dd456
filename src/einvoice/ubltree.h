#pragma once

#include <QString>
#include <QStringView>
#include <expected>
#include <utility>
#include <vector>

namespace tamo {

// Where a value of the e-invoice comes from, in the terms of the program: a field of the
// document, a line, a value of the e-invoice details, or a setting.
struct EinvoiceField {
    enum class Kind { None, Document, Line, Details, Setting };
    Kind kind = Kind::None;
    const char* key = nullptr;  // the attribute or settings key
    int number = 0;             // the line's number in the file (Kind::Line)

    static EinvoiceField document(const char* key) { return {Kind::Document, key, 0}; }
    static EinvoiceField line(int number, const char* key) { return {Kind::Line, key, number}; }
    static EinvoiceField details(const char* key) { return {Kind::Details, key, 0}; }
    static EinvoiceField setting(const char* key) { return {Kind::Setting, key, 0}; }
    bool isNone() const { return kind == Kind::None; }
    bool operator==(const EinvoiceField& other) const;
};

// What the standard e-invoice deliberately keeps as it always was, where the rules object to it.
// The writer marks the element, so that a finding on it can say that the structure is the cause.
enum class Kept {
    None,
    DiscountLine,              // the discount as a negative line without a tax category
    UntaxedLine,               // a line without taxes has no tax category
    NegativePrice,             // a credit line keeps its negative price
    SeveralTaxes,              // one tax category per applied tax of a line
    LineTotalWithoutDiscount,  // the sum of the lines leaves the discount line out
    ShippingTwice,             // with a discount, shipping counts twice without tax
    DiscountAddedBack,         // the total with tax adds the discount back
    DiscountOnFirstTax,        // only tax 1's taxable amount loses the discount
    StoredTaxes,               // one subtotal per tax: the stored sums and the document's rate
    StoredTotals,              // the totals are the document's stored sums, as it rounded them
    PositiveTaxesOnly,         // the tax total adds all taxes, subtotals only those above zero
    ZeroRatedWithoutLines,     // an untaxed invoice: one zero-rated subtotal, lines uncategorised
    SupplierCurrency,          // the document currency is the supplier's, the amounts the client's
    TwoDecimalQuantity,        // quantities and prices in the amount format
};

// One element of an e-invoice as written: its prefixed name, attributes, text or children, and
// where its value comes from.
struct UblNode {
    QString name;
    std::vector<std::pair<QString, QString>> attributes;
    QString text;
    std::vector<UblNode> children;
    EinvoiceField source;
    Kept kept = Kept::None;

    // The first child of that name, or null.
    const UblNode* child(QStringView childName) const;
    // The first element along a path of child names separated by "/", or null.
    const UblNode* at(QStringView path) const;
    // Every element at the end of the path.
    std::vector<const UblNode*> all(QStringView path) const;
    // The text of the element at the path; empty when there is none.
    QString textAt(QStringView path) const;
    QString attribute(QStringView attributeName) const;
    bool hasAttribute(QStringView attributeName) const;
};

// The whole file: the root element "Invoice" with the comment that opens it.
struct UblDocument {
    UblNode root;
    QString comment;
};

// Pretty-printed UTF-8 with its declaration. A leaf is always written with an end tag
// ("<cbc:ID></cbc:ID>"), never self-closed.
QString serialise(const UblDocument& document);

// Reads an e-invoice back into the tree (without sources), for checking a file from disk.
std::expected<UblDocument, QString> parseUbl(const QString& xml);

// Builds a tree the way a stream writer writes: open, add leaves, close. Elements take the
// source of the element they are in unless given one.
class UblBuilder {
public:
    explicit UblBuilder(QString rootName);

    void open(const char* name, EinvoiceField source = {}, Kept kept = Kept::None);
    void close();
    UblNode& leaf(const char* name, const QString& text, EinvoiceField source = {},
                  Kept kept = Kept::None);
    // A parent holding one leaf.
    void inside(const char* parent, const char* name, const QString& text,
                EinvoiceField source = {});
    // The element most recently added or opened.
    UblNode& last() { return *last_; }

    UblNode take();

private:
    UblNode& current() { return *stack_.back(); }

    UblNode root_;
    std::vector<UblNode*> stack_;
    UblNode* last_;
};

}  // namespace tamo
