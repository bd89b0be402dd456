#pragma once

#include <QWidget>

class QPushButton;
class QTableView;
class QToolButton;

namespace tamo {

class AppSession;
class DiscountPopover;
class ItemPopover;
class LineItems;
class LineTableModel;
class Record;
class ShippingPopover;
class TotalsView;

// The document's lines with their buttons, the shipping and discount entries and the sums.
class LinesSection : public QWidget {
    Q_OBJECT

public:
    LinesSection(AppSession& session, LineItems& lines, QWidget* parent = nullptr);

    void showDocument(Record* document);
    void refresh();

    void addLine();
    void editLine();
    void removeLine();
    void editShipping();
    void editDiscount();

    QTableView* table() const { return table_; }
    ItemPopover* itemPopover() const { return itemPopover_; }
    TotalsView* totals() const { return totals_; }

private:
    Record* selectedLine() const;
    void selectLine(const Record* line);
    QToolButton* sortButton();

    AppSession& session_;
    LineItems& lines_;
    Record* document_ = nullptr;
    LineTableModel* model_;
    QTableView* table_;
    TotalsView* totals_;
    QPushButton* add_;
    QPushButton* edit_;
    QPushButton* remove_;
    QPushButton* shipping_;
    QPushButton* discount_;
    ItemPopover* itemPopover_;
    ShippingPopover* shippingPopover_;
    DiscountPopover* discountPopover_;
};

}  // namespace tamo
