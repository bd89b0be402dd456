#pragma once

#include <QDialog>
#include <vector>

#include "app/popover.h"

class QLineEdit;
class QPushButton;
class QTreeWidget;

namespace tamo {

class AppSession;
class LineFieldsForm;
class LineItems;
class Record;

// Adds a line: a page to enter it and a page to take it from the item catalog.
class ItemPopover : public PagedPopover {
    Q_OBJECT

public:
    ItemPopover(AppSession& session, LineItems& lines, QWidget* parent = nullptr);

    // Opens below `anchor` unless the document may not take lines (the reason has been shown).
    bool open(QWidget* anchor);
    LineFieldsForm* form() const { return form_; }
    QTreeWidget* catalogList() const { return catalog_; }
    void addLine();
    void takeCatalogEntry();

signals:
    void lineAdded(tamo::Record* line);

private:
    void fillCatalog();

    AppSession& session_;
    LineItems& lines_;
    LineFieldsForm* form_;
    QLineEdit* catalogSearch_;
    QTreeWidget* catalog_;
    std::vector<Record*> entries_;
    bool taxesSet_ = false;
};

// Edits one line's fields.
class EditItemSheet : public QDialog {
    Q_OBJECT

public:
    EditItemSheet(const AppSession& session, QWidget* parent = nullptr);
    LineFieldsForm* form() const { return form_; }
    void accept() override;

private:
    LineFieldsForm* form_;
};

}  // namespace tamo
