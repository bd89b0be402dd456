#pragma once

#include <QDialog>

class QListWidget;

namespace tamo {

class DocumentTemplates;
class Settings;

// The list of document templates: apply one to the current document, save the current document
// as a new one (with the parts the include boxes name), delete one.
class TemplatePopover : public QDialog {
    Q_OBJECT

public:
    TemplatePopover(DocumentTemplates& templates, Settings& settings, QWidget* parent = nullptr);

    QListWidget* list() const { return list_; }
    void selectTemplate();
    void createNewTemplate();
    void cancelTemplatePopover();

private:
    void reload();

    DocumentTemplates& templates_;
    Settings& settings_;
    QListWidget* list_;
};

}  // namespace tamo
