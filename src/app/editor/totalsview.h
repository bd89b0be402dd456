#pragma once

#include <QWidget>

class QLabel;

namespace tamo {

class Record;
class Settings;

// The document's sums as the calculation left them: subtotal, discount, shipping, the three
// taxes and the total.
class TotalsView : public QWidget {
    Q_OBJECT

public:
    enum Row { Subtotal, Discount, Shipping, Tax1, Tax2, Tax3, Total, RowCount };

    explicit TotalsView(QWidget* parent = nullptr);

    void showDocument(const Record& document, const Settings& settings);
    // The amount shown in a row, for tests and accessibility.
    QString amountText(Row row) const;
    bool isRowShown(Row row) const;

private:
    void setRow(Row row, bool shown, const QString& title, double amount);

    QLabel* titles_[RowCount];
    QLabel* amounts_[RowCount];
    QLabel* currency_;
};

}  // namespace tamo
