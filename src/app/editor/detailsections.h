#pragma once

#include <QWidget>

class QFormLayout;
class QLabel;
class QLineEdit;

namespace tamo {

class DateField;
class DocumentLifecycle;
class FieldBinder;
class Record;

// Number, title and dates of the document, its status with the payment, and the delivery.
class DocumentSection : public QWidget {
    Q_OBJECT

public:
    DocumentSection(FieldBinder& binder, DocumentLifecycle& lifecycle, QWidget* parent = nullptr);

    // Shows the fields that apply to the document's kind and status.
    void showDocument(const Record& document);
    QLineEdit* dispatchNumberField() const { return dispatchNumber_; }
    QLineEdit* paidAmountField() const { return paidAmount_; }
    DateField* paymentDateField() const { return paid_; }

private:
    QFormLayout* form_;  // the whole form; its payment rows come and go
    QLabel* dueLabel_;
    QLineEdit* paidAmount_;
    DateField* paid_;
    QLineEdit* dispatchNumber_;
};

// The boilerplate texts of the document and the private notes.
class TextsSection : public QWidget {
    Q_OBJECT

public:
    explicit TextsSection(FieldBinder& binder, QWidget* parent = nullptr);
};

}  // namespace tamo
