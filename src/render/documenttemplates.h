#pragma once

#include <QObject>
#include <optional>
#include <span>
#include <vector>

#include "model/appsession.h"

namespace tamo {

// What a new template can take over from its document, each part chosen by its setting; the
// label is English, for QCoreApplication::translate("DocumentTemplates", label).
struct TemplatePart {
    const SettingKey* include;
    const char* label;
};
std::span<const TemplatePart> templateParts();

// Document templates: saved sets of document fields (client, title, lines, shipping, discount,
// texts) from which the current document is filled. What a new template takes over follows the
// `templateInclude...` settings.
class DocumentTemplates : public QObject {
    Q_OBJECT

public:
    explicit DocumentTemplates(AppSession& session) : session_(session) {}

    std::vector<Record*> templates() const;
    // The list of templates to show, or nothing without a current document.
    std::optional<std::vector<Record*>> showTemplatePopover() const;
    // Whether the list stays open after a template was applied (`alwaysShowRecentTemplates`).
    bool keepsPopoverOpen() const;
    // A template from the current document; nothing without one.
    Record* createNewTemplate(const QString& notes);
    // Copies the template into the current document, its lines as new lines in place of the
    // document's (when the template has lines). Refused, with the reason shown, when the
    // document has been sent.
    bool selectTemplate(const Record& documentTemplate);
    void cancelTemplatePopover() {}
    bool deleteTemplate(Record* documentTemplate);

signals:
    void templatesChanged();

private:
    AppSession& session_;
};

}  // namespace tamo
