#pragma once

#include <QDialog>

#include "documents/lifecycle.h"

class QDateTimeEdit;
class QLineEdit;
class QPlainTextEdit;

namespace tamo {

// The texts of a reminder or a delivery slip. They serve only the rendering of that variant;
// nothing is written to the document.
class VariantTextsSheet : public QDialog {
    Q_OBJECT

public:
    VariantTextsSheet(const QString& windowTitle, const SheetTexts& texts,
                      QWidget* parent = nullptr);
    SheetTexts texts() const;

private:
    QLineEdit* title_;
    QPlainTextEdit* conditions_;
    QPlainTextEdit* miscellaneous_;
    QPlainTextEdit* footer_;
};

// The due-date notification to schedule, as prepared from the document and edited here.
class NotificationSheet : public QDialog {
    Q_OBJECT

public:
    explicit NotificationSheet(const NotificationRequest& request, QWidget* parent = nullptr);
    NotificationRequest request() const;

private:
    QLineEdit* title_;
    QLineEdit* subtitle_;
    QPlainTextEdit* text_;
    QDateTimeEdit* delivery_;
};

}  // namespace tamo
