#include "app/editor/fieldbinder.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDateEdit>
#include <QEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScopedValueRollback>

#include "calc/numberformat.h"
#include "calc/totals.h"
#include "model/appsession.h"
#include "model/transformers.h"

namespace tamo {

namespace {

void setTextIfChanged(QLineEdit* edit, const QString& text)
{
    if (edit->text() != text) {
        edit->setText(text);
        edit->setCursorPosition(0);
    }
}

// Empty money or percent text means zero; other text must be a number.
std::optional<Value> number(const QString& text, std::optional<double> (*parse)(QStringView text))
{
    if (text.trimmed().isEmpty()) {
        return Value(0.0);
    }
    const std::optional<double> n = parse(text);
    return n ? std::optional<Value>(*n) : std::nullopt;
}

}  // namespace

FieldBinder::FieldBinder(AppSession& session, std::function<Record*()> record, QObject* parent)
    : QObject(parent), session_(session), record_(std::move(record))
{
}

void FieldBinder::add(Binding binding)
{
    bindings_.push_back(std::move(binding));
}

void FieldBinder::bindText(QLineEdit* edit, const char* key, const QString& undoName, Lock lock)
{
    add({edit, key, undoName, lock,
         [edit, key](const Record& r) { setTextIfChanged(edit, r.string(key)); },
         [edit](const Record&) { return std::optional<Value>(edit->text()); },
         [edit](bool editable) { edit->setReadOnly(!editable); }});
    connect(edit, &QLineEdit::editingFinished, this,
            [this, n = bindings_.size() - 1] { write(bindings_[n]); });
}

void FieldBinder::bindText(QPlainTextEdit* edit, const char* key, const QString& undoName,
                           Lock lock)
{
    add({edit, key, undoName, lock,
         [edit, key](const Record& r) {
             if (edit->toPlainText() != r.string(key)) {
                 edit->setPlainText(r.string(key));
             }
         },
         [edit](const Record&) { return std::optional<Value>(edit->toPlainText()); },
         [edit](bool editable) { edit->setReadOnly(!editable); }});
    // A text block has no end of editing of its own: leaving it ends the edit.
    edit->installEventFilter(this);
}

void FieldBinder::bindAmount(QLineEdit* edit, const char* key, const QString& undoName, Lock lock)
{
    edit->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    add({edit, key, undoName, lock,
         [edit, key](const Record& r) { setTextIfChanged(edit, stringFromNumber(r.decimal(key))); },
         [edit](const Record&) { return number(edit->text(), &decimalNumberFromString); },
         [edit](bool editable) { edit->setReadOnly(!editable); }});
    connect(edit, &QLineEdit::editingFinished, this,
            [this, n = bindings_.size() - 1] { write(bindings_[n]); });
}

void FieldBinder::bindPercent(QLineEdit* edit, const char* key, const QString& undoName, Lock lock)
{
    edit->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    add({edit, key, undoName, lock,
         [edit, key](const Record& r) {
             setTextIfChanged(edit, decimalStringFromNumber(r.decimal(key) * 100));
         },
         [edit](const Record&) { return number(edit->text(), &percentDecimalNumberFromString); },
         [edit](bool editable) { edit->setReadOnly(!editable); }});
    connect(edit, &QLineEdit::editingFinished, this,
            [this, n = bindings_.size() - 1] { write(bindings_[n]); });
}

void FieldBinder::bindDate(QDateEdit* edit, const char* key, const QString& undoName, Lock lock)
{
    add({edit, key, undoName, lock,
         [edit, key](const Record& r) {
             const QDate day = r.date(key).toLocalTime().date();
             if (edit->date() != day) {
                 edit->setDate(day);
             }
         },
         [edit, key](const Record& r) {
             // The day changes; the time of day the record had stays.
             const QDateTime old = r.date(key).toLocalTime();
             const QTime time = old.isValid() ? old.time() : QTime(0, 0);
             return std::optional<Value>(QDateTime(edit->date(), time));
         },
         [edit](bool editable) { edit->setReadOnly(!editable); }});
    connect(edit, &QDateEdit::editingFinished, this,
            [this, n = bindings_.size() - 1] { write(bindings_[n]); });
}

void FieldBinder::bindCheck(QAbstractButton* box, const char* key, const QString& undoName,
                            Lock lock)
{
    add({box, key, undoName, lock, [box, key](const Record& r) { box->setChecked(r.boolean(key)); },
         [box](const Record&) { return std::optional<Value>(box->isChecked()); },
         [box](bool editable) { box->setEnabled(editable); }});
    connect(box, &QAbstractButton::clicked, this,
            [this, n = bindings_.size() - 1] { write(bindings_[n]); });
}

void FieldBinder::bindChoice(QComboBox* combo, const char* key, const QString& undoName, Lock lock)
{
    add({combo, key, undoName, lock,
         [combo, key](const Record& r) { combo->setCurrentIndex(combo->findData(r.integer(key))); },
         [combo](const Record&) -> std::optional<Value> {
             if (combo->currentIndex() < 0) {
                 return std::nullopt;
             }
             return Value(combo->currentData().toInt());
         },
         [combo](bool editable) { combo->setEnabled(editable); }});
    connect(combo, &QComboBox::activated, this,
            [this, n = bindings_.size() - 1] { write(bindings_[n]); });
}

bool FieldBinder::isLocked() const
{
    const Record* r = record_();
    return r && !invoiceSentToBool(r);
}

void FieldBinder::refresh()
{
    const Record* r = record_();
    if (!r || r->isDeleted()) {
        return;
    }
    const bool locked = isLocked();
    for (const Binding& b : bindings_) {
        b.show(*r);
        b.setEditable(b.lock == Lock::Never || !locked);
    }
}

void FieldBinder::commit()
{
    const QWidget* focus = QApplication::focusWidget();
    for (const Binding& b : bindings_) {
        if (focus && (b.widget == focus || b.widget->isAncestorOf(focus))) {
            write(b);
        }
    }
}

void FieldBinder::commitAll()
{
    for (const Binding& b : bindings_) {
        write(b);
    }
}

void FieldBinder::write(const Binding& binding)
{
    Record* r = record_();
    Context* context = session_.context();
    if (writing_ || !r || r->isDeleted() || !context) {
        return;
    }
    const std::optional<Value> value = binding.read(*r);
    const bool unchanged =
        value && (r->value(binding.key) == *value ||
                  (value->isString() && r->string(binding.key) == value->toString()));
    if (!value || unchanged || (binding.lock == Lock::WhenSent && isLocked())) {
        binding.show(*r);  // a number that could not be read shows the stored one again
        return;
    }
    const QScopedValueRollback guard(writing_, true);
    {
        UndoGroup group(*context, binding.undoName);
        r->setValue(binding.key, *value);
        if (affectsTotals(*r, binding.key)) {
            Totals(session_).calculateInvoice(*r);  // undone together with the edit
        }
    }
    session_.saveContext();
    binding.show(*r);
}

bool FieldBinder::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::FocusOut) {
        for (const Binding& b : bindings_) {
            if (b.widget == watched) {
                write(b);
            }
        }
    }
    return QObject::eventFilter(watched, event);
}

}  // namespace tamo
