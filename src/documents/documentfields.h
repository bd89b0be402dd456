#pragma once

#include <QString>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "model/appsession.h"

namespace tamo {

// How a field of a document is typed and shown.
enum class FieldKind {
    Text,
    Date,     // the day; the time of day the document had stays
    Money,    // read leniently, as the window reads it
    Percent,  // typed as a percentage, kept as a fraction
    Flag,
    Choice,  // an integer from a short list
};

// Which part of the window edits the field; shipping and discount are edited in their own
// panels, which do more when they close (the totals, the remembered shipping entries).
enum class FieldPanel { Document, Client, Shipping, Discount, EinvoiceBuyer };

// One field of a document that a person edits, in the window or with `tamo set`.
struct DocumentField {
    const char* key;
    FieldKind kind;
    FieldPanel panel;
    const char* undoName;        // the name of its undo step ("Edit Title")
    bool lockedWhenSent = true;  // status and payment stay open on a sent document
};

// Every field the editor, its panels and the e-invoice details show, in the editor's order.
std::span<const DocumentField> documentFields();
const DocumentField* findDocumentField(std::string_view key);
// The user-visible name of the field's undo step.
QString undoName(const DocumentField& field);

// Reads a typed value for the field ("2026-03-05", "1.234,50", "19", "yes"); nothing when the
// text is no value of its kind. `document` gives the time of day a date keeps.
std::optional<Value> fieldValueFromText(const DocumentField& field, const Record& document,
                                        const QString& text);

// `old` on another day, at the time of day it had (midnight when it had none).
QDateTime withDay(const QDateTime& old, QDate day);

// A value shown in the document while it is still being typed, so that the totals and the
// preview follow the typing: it is no step to undo and is not saved. Writing the field
// (writeDocumentField) or reverting puts the stored value back first.
class FieldDraft {
public:
    explicit FieldDraft(AppSession& session) : session_(session) {}

    bool isActive() const { return record_ != nullptr; }
    bool isFor(const Record& document, std::string_view key) const;
    Record* record() const { return record_; }
    // The value the field had before the typing began.
    const Value& original() const { return original_; }
    // Shows `value` in the field; a draft of another field is reverted first.
    void set(Record& document, std::string_view key, const Value& value);
    void revert();

private:
    void apply(const Value& value);

    AppSession& session_;
    Record* record_ = nullptr;
    std::string key_;
    Value original_;
};

// The outcome of writing one field.
enum class FieldWrite { Written, Unchanged, Locked };

// Writes a field of `document` as the editor does: a locked field of a sent document is left
// alone, an unchanged value leaves no step; otherwise the change is one undo step named after
// the field, recalculates the document when its amounts depend on the field, and is saved. A
// draft of the field is reverted within the same step, so that undoing returns to the value the
// field had before the typing began.
FieldWrite writeDocumentField(AppSession& session, Record& document, std::string_view key,
                              const Value& value, const QString& undoName, bool lockedWhenSent,
                              FieldDraft* draft = nullptr);

}  // namespace tamo
