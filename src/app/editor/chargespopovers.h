#pragma once

#include <vector>

#include "app/popover.h"

class QCheckBox;
class QLineEdit;
class QTreeWidget;

namespace tamo {

class AppSession;
class FieldBinder;
class LineItems;
class Record;

// The document's shipping line, edited in place, and the remembered shipping lines to take one
// from. Closing recalculates and remembers the entry.
class ShippingPopover : public PagedPopover {
    Q_OBJECT

public:
    ShippingPopover(AppSession& session, LineItems& lines, QWidget* parent = nullptr);
    bool open(QWidget* anchor);
    QTreeWidget* rememberedList() const { return remembered_; }
    void takeRemembered();

private:
    void finish();

    AppSession& session_;
    LineItems& lines_;
    FieldBinder* binder_;
    QTreeWidget* remembered_;
    QCheckBox* taxes_[3];
    std::vector<Record*> entries_;
    bool taken_ = false;  // a remembered line was taken: that already finished the edit
};

// The document's discount, edited in place: a fixed amount or a percentage of the net sum.
class DiscountPopover : public Popover {
    Q_OBJECT

public:
    DiscountPopover(AppSession& session, LineItems& lines, QWidget* parent = nullptr);
    bool open(QWidget* anchor);

private:
    void showKind();
    void finish();

    AppSession& session_;
    LineItems& lines_;
    FieldBinder* binder_;
    QLineEdit* amount_;
    QLineEdit* percent_;
};

}  // namespace tamo
