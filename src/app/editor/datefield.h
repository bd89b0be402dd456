#pragma once

#include <QDate>
#include <QWidget>

class QLineEdit;
class QToolButton;

namespace tamo {

// A date a person types as in any date field ("5.3.2026", "05.03.26", "2026-03-05", "5 March
// 2026", in the order their locale writes dates) or picks from a calendar. Text that is no date
// shows the last date again when the field is left.
class DateField : public QWidget {
    Q_OBJECT

public:
    explicit DateField(QWidget* parent = nullptr);

    QDate date() const { return date_; }
    void setDate(QDate date);
    void setReadOnly(bool readOnly);
    bool isReadOnly() const;
    QLineEdit* lineEdit() const { return edit_; }

    // The date in `text`, read in `locale`'s order of day, month and year; two-digit years are
    // of this century. Invalid when the text is no date.
    static QDate dateFromText(const QString& text, const QLocale& locale = QLocale());

signals:
    // A whole date was typed or picked.
    void dateChanged(QDate date);
    // The field was left or Return pressed.
    void editingFinished();

private:
    void typed(const QString& text);
    void finish();
    void pick();

    QLineEdit* edit_;
    QToolButton* calendar_;
    QDate date_;
};

}  // namespace tamo
