#pragma once

#include <QWidget>
#include <optional>

#include "documents/lineitems.h"

class QCheckBox;
class QLineEdit;

namespace tamo {

class Settings;

// The fields a line is made of, shared by the item popover and the edit sheet. Quantity and price
// are read in the person's locale.
class LineFieldsForm : public QWidget {
    Q_OBJECT

public:
    explicit LineFieldsForm(QWidget* parent = nullptr);

    // Names and shows the tax boxes after the preferences.
    void showTaxes(const Settings& settings);
    // With `keepTaxes` the tax boxes stay as the person left them.
    void setFields(const LineFields& fields, bool keepTaxes = false);
    // Nothing when quantity or price is no number; the field in question is then marked.
    std::optional<LineFields> fields();
    QLineEdit* titleField() const { return title_; }
    QLineEdit* quantityField() const { return quantity_; }

signals:
    // Return was pressed in one of the fields.
    void submitted();

private:
    QLineEdit* title_;
    QLineEdit* subtitle_;
    QLineEdit* quantity_;
    QLineEdit* unit_;
    QLineEdit* price_;
    QLineEdit* sku_;
    QLineEdit* note_;
    QCheckBox* taxes_[3];
};

}  // namespace tamo
