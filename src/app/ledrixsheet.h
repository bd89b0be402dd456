#pragma once

#include <QDialog>

class QComboBox;
class QDateTimeEdit;
class QLabel;
class QPushButton;

namespace tamo {

class AppSession;
class LedrixSend;

// The send sheet: the date range, which invoices and which lines, and how many invoices match,
// re-counted after every change. Its controls show and set the settings the export reads; Send
// writes the export file and hands it to the desktop (LedrixSend::closeLedrixSheet).
class LedrixSendSheet : public QDialog {
    Q_OBJECT

public:
    // Opens the sheet for `tag` (0 Ledrix, otherwise Kelvane) on `send`, which prepares its list.
    LedrixSendSheet(AppSession& session, LedrixSend& send, int tag, QWidget* parent = nullptr);

    QDateTimeEdit* beginEdit() const { return begin_; }
    QDateTimeEdit* endEdit() const { return end_; }
    QComboBox* kindChoice() const { return kind_; }
    QComboBox* itemsChoice() const { return items_; }
    QLabel* countLabel() const { return count_; }
    QPushButton* sendButton() const { return sendButton_; }

private:
    void doTheLedrixFilter();
    void showCount();

    AppSession& session_;
    LedrixSend& send_;
    QDateTimeEdit* begin_;
    QDateTimeEdit* end_;
    QComboBox* kind_;
    QComboBox* items_;
    QLabel* count_;
    QPushButton* sendButton_;
};

}  // namespace tamo
