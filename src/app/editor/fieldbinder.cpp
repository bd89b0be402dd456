#include "app/editor/fieldbinder.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScopedValueRollback>
#include <QToolTip>

#include "app/editor/datefield.h"
#include "calc/amountinput.h"
#include "calc/numberformat.h"
#include "documents/documentfields.h"
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

// Empty money or percent text means zero; other text must be an amount or a rate Tamo takes. A
// refusal is explained beside the field, which then shows the stored value again.
std::optional<Value> number(QLineEdit* edit,
                            std::expected<double, QString> (*parse)(QStringView text))
{
    const QString text = edit->text();
    if (text.trimmed().isEmpty()) {
        return Value(0.0);
    }
    const auto n = parse(text);
    if (!n) {
        QToolTip::showText(edit->mapToGlobal(QPoint(0, edit->height())), n.error(), edit);
        return std::nullopt;
    }
    return Value(*n);
}

// A field that may not be changed looks it: the background of the window instead of a field's,
// and a date without its arrows.
template <typename W>
void setEditable(W* edit, bool editable)
{
    edit->setReadOnly(!editable);
    QWidget* field = edit;
    if constexpr (std::is_same_v<W, DateField>) {
        field = edit->lineEdit();
    }
    QPalette palette = field->palette();
    const QPalette normal = QApplication::palette(field);
    palette.setColor(QPalette::Base,
                     editable ? normal.color(QPalette::Base) : normal.color(QPalette::Window));
    field->setPalette(palette);
}

}  // namespace

FieldBinder::FieldBinder(AppSession& session, std::function<Record*()> record, QObject* parent)
    : QObject(parent), session_(session), record_(std::move(record)), draft_(session)
{
    // A short pause in typing is enough to show what was typed; the edit itself is written when
    // the field is left.
    pause_.setSingleShot(true);
    pause_.setInterval(kTypingPause);
    connect(&pause_, &QTimer::timeout, this, &FieldBinder::showTyped);
}

void FieldBinder::add(Binding binding)
{
    bindings_.push_back(std::move(binding));
}

void FieldBinder::followTyping(QLineEdit* edit)
{
    const size_t n = bindings_.size() - 1;
    connect(edit, &QLineEdit::textEdited, this, [this, n] { typed(n); });
    connect(edit, &QLineEdit::editingFinished, this, [this, n] { write(bindings_[n]); });
}

void FieldBinder::typed(size_t binding)
{
    if (typing_ && *typing_ != binding) {
        write(bindings_[*typing_]);
    }
    typing_ = binding;
    pause_.start();
}

void FieldBinder::showTyped()
{
    Record* r = record_();
    if (!typing_ || !r || r->isDeleted() || writing_) {
        return;
    }
    const Binding& b = bindings_[*typing_];
    if (b.lock == Lock::WhenSent && isLocked()) {
        return;
    }
    if (const std::optional<Value> value = b.read(*r)) {
        const QScopedValueRollback guard(writing_, true);
        draft_.set(*r, b.key, *value);
    }
}

void FieldBinder::bindText(QLineEdit* edit, const char* key, const QString& undoName, Lock lock)
{
    add({edit, key, undoName, lock,
         [edit, key](const Record& r) { setTextIfChanged(edit, r.string(key)); },
         [edit](const Record&) { return std::optional<Value>(edit->text()); },
         [edit](bool editable) { setEditable(edit, editable); }});
    followTyping(edit);
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
         [edit](bool editable) { setEditable(edit, editable); }});
    // A text block has no end of editing of its own: leaving it ends the edit.
    edit->installEventFilter(this);
    connect(edit, &QPlainTextEdit::textChanged, this, [this, n = bindings_.size() - 1] {
        if (!showing_) {
            typed(n);
        }
    });
}

void FieldBinder::bindAmount(QLineEdit* edit, const char* key, const QString& undoName, Lock lock)
{
    edit->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    add({edit, key, undoName, lock,
         [edit, key](const Record& r) { setTextIfChanged(edit, stringFromNumber(r.decimal(key))); },
         [edit](const Record&) { return number(edit, &amountFromText); },
         [edit](bool editable) { setEditable(edit, editable); }});
    followTyping(edit);
}

void FieldBinder::bindPercent(QLineEdit* edit, const char* key, const QString& undoName, Lock lock)
{
    edit->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    add({edit, key, undoName, lock,
         [edit, key](const Record& r) {
             setTextIfChanged(edit, decimalStringFromNumber(r.decimal(key) * 100));
         },
         [edit](const Record&) { return number(edit, &rateFromText); },
         [edit](bool editable) { setEditable(edit, editable); }});
    followTyping(edit);
}

void FieldBinder::bindDate(DateField* edit, const char* key, const QString& undoName, Lock lock)
{
    add({edit, key, undoName, lock,
         [edit, key](const Record& r) {
             const QDate day = r.date(key).toLocalTime().date();
             if (edit->date() != day) {
                 edit->setDate(day);
             }
         },
         [edit, key](const Record& r) -> std::optional<Value> {
             if (!edit->date().isValid()) {
                 return std::nullopt;
             }
             return Value(withDay(r.date(key), edit->date()));
         },
         [edit](bool editable) { setEditable(edit, editable); }});
    const size_t n = bindings_.size() - 1;
    connect(edit, &DateField::dateChanged, this, [this, n] {
        if (!showing_) {
            typed(n);
        }
    });
    connect(edit, &DateField::editingFinished, this, [this, n] { write(bindings_[n]); });
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
    // Typing that belongs to a document no longer shown is written to that document.
    if (typing_ && draft_.isActive() && draft_.record() != record_()) {
        writeTo(bindings_[*typing_], draft_.record());
    }
    const Record* r = record_();
    if (!r || r->isDeleted()) {
        return;
    }
    const bool locked = isLocked();
    const bool readOnly = session_.isReadOnly();
    const QScopedValueRollback quiet(showing_, true);
    for (size_t i = 0; i < bindings_.size(); ++i) {
        const Binding& b = bindings_[i];
        // The field being typed in keeps the text as typed ("12,5" is not "12.50" yet).
        if (!typing_ || *typing_ != i) {
            b.show(*r);
        }
        b.setEditable(!readOnly && (b.lock == Lock::Never || !locked));
    }
}

void FieldBinder::commit()
{
    if (typing_) {
        write(bindings_[*typing_]);
    }
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
    writeTo(binding, record_());
}

void FieldBinder::writeTo(const Binding& binding, Record* r)
{
    if (writing_ || !r || r->isDeleted() || !session_.context()) {
        return;
    }
    if (typing_ && &bindings_[*typing_] == &binding) {
        typing_.reset();
        pause_.stop();
    }
    const std::optional<Value> value = binding.read(*r);
    if (session_.isReadOnly()) {
        binding.show(*r);  // nothing in a store open for reading only changes
        return;
    }
    {
        const QScopedValueRollback guard(writing_, true);
        if (value) {
            writeDocumentField(session_, *r, binding.key, *value, binding.undoName,
                               binding.lock == Lock::WhenSent, &draft_);
        } else if (draft_.isFor(*r, binding.key)) {
            draft_.revert();
        }
    }
    if (r == record_()) {
        const QScopedValueRollback quiet(showing_, true);
        binding.show(*r);  // a number that could not be read shows the stored one again
    }
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
