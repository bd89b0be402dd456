#pragma once

#include <QObject>
#include <functional>
#include <optional>
#include <vector>

#include "model/value.h"

class QAbstractButton;
class QComboBox;
class QDateEdit;
class QLineEdit;
class QPlainTextEdit;
class QWidget;

namespace tamo {

class AppSession;
class Record;

// Ties widgets to attributes of one record (the shown document). Each change a person makes is
// written as one undo step with a user-facing name, recalculates the document when the
// attribute changes its amounts, and is saved at once.
class FieldBinder : public QObject {
    Q_OBJECT

public:
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
    void bindDate(QDateEdit* edit, const char* key, const QString& undoName,
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
    void write(const Binding& binding);
    bool eventFilter(QObject* watched, QEvent* event) override;

    AppSession& session_;
    std::function<Record*()> record_;
    std::vector<Binding> bindings_;
    bool writing_ = false;
};

}  // namespace tamo
