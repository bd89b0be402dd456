#pragma once

#include <QObject>
#include <QTimer>
#include <functional>
#include <optional>
#include <vector>

#include "documents/documentfields.h"
#include "model/value.h"

class QAbstractButton;
class QComboBox;
class QLineEdit;
class QPlainTextEdit;
class QWidget;

namespace tamo {

class AppSession;
class DateField;
class Record;

// Ties widgets to attributes of one record (the shown document). Each change a person makes is
// written as one undo step with a user-facing name when the field is left, recalculates the
// document when the attribute changes its amounts, and is saved at once. While a person types,
// a short pause shows the typed value in the document (a draft: totals and preview follow)
// without a step of its own.
class FieldBinder : public QObject {
    Q_OBJECT

public:
    // How long typing pauses before the document shows what was typed.
    static constexpr int kTypingPause = 150;

    // Whether a field follows the lock of a sent document; status and payment stay open.
    enum class Lock { WhenSent, Never };

    FieldBinder(AppSession& session, std::function<Record*()> record, QObject* parent = nullptr);

    void bindText(QLineEdit* edit, const char* key, const QString& undoName,
                  Lock lock = Lock::WhenSent);
    void bindText(QPlainTextEdit* edit, const char* key, const QString& undoName,
                  Lock lock = Lock::WhenSent);
    // Money in the person's locale.
    void bindAmount(QLineEdit* edit, const char* key, const QString& undoName,
                    Lock lock = Lock::WhenSent);
    // A fraction shown and typed as a percentage.
    void bindPercent(QLineEdit* edit, const char* key, const QString& undoName,
                     Lock lock = Lock::WhenSent);
    void bindDate(DateField* edit, const char* key, const QString& undoName,
                  Lock lock = Lock::WhenSent);
    void bindCheck(QAbstractButton* box, const char* key, const QString& undoName,
                   Lock lock = Lock::WhenSent);
    // An integer attribute; each entry carries its value as item data.
    void bindChoice(QComboBox* combo, const char* key, const QString& undoName,
                    Lock lock = Lock::WhenSent);

    // Shows the record's values and whether they may be changed.
    void refresh();
    // Writes a field whose edit is still in progress.
    void commit();
    // Writes every field that differs from the record, for a panel that closes.
    void commitAll();
    // The record may not be changed apart from status and payment.
    bool isLocked() const;

private:
    struct Binding {
        QWidget* widget;
        const char* key;
        QString undoName;
        Lock lock;
        std::function<void(const Record&)> show;
        std::function<std::optional<Value>(const Record&)> read;  // nothing: not valid
        std::function<void(bool)> setEditable;
    };
    void add(Binding binding);
    void followTyping(QLineEdit* edit);
    void typed(size_t binding);
    void showTyped();
    void write(const Binding& binding);
    void writeTo(const Binding& binding, Record* record);
    bool eventFilter(QObject* watched, QEvent* event) override;

    AppSession& session_;
    std::function<Record*()> record_;
    std::vector<Binding> bindings_;
    FieldDraft draft_;
    QTimer pause_;
    std::optional<size_t> typing_;  // the binding typed in since it was last written
    bool writing_ = false;
    bool showing_ = false;  // fields change because the record is shown, not typed in
};

}  // namespace tamo
