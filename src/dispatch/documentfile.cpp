// The document file: the current document's record dictionary as an XML property list, or as a
// keyed archive under "tamoDic" that File › Import Tamo Document reads back.

#include <QCoreApplication>
#include <QLoggingCategory>

#include "dispatch/dispatch.h"
#include "interchange/keyedarchive.h"
#include "interchange/recorddictionary.h"

Q_DECLARE_LOGGING_CATEGORY(lcDispatch)

namespace tamo {

namespace {

struct FileFormat {
    const char* title;
    const char* extension;
};

constexpr FileFormat kTamoArchive{QT_TRANSLATE_NOOP("tamo::Dispatch", "Export As Tamo Document"),
                                  "tamo"};
constexpr FileFormat kXmlPropertyList{QT_TRANSLATE_NOOP("tamo::Dispatch", "Export As XML Document"),
                                      "xml"};

Result<QByteArray> documentFileBytes(const Record& document, DocumentFileFormat format)
{
    auto dictionary = toDictionary(document);
    if (!dictionary) {
        return std::unexpected(dictionary.error());
    }
    if (format == DocumentFileFormat::XmlPropertyList) {
        return serializePlist(dictionary->get(), PlistFormat::Xml);
    }
    Plist root(plist_new_dict());
    plist_dict_set_item(root.get(), "tamoDic", dictionary->release());
    return keyedArchive(root.get());
}

}  // namespace

ActionResult Dispatch::exportDocumentFile()
{
    const int setting = documentFormat_.value_or(session_.settings().integer(key::exportFormat));
    if (setting != int(DocumentFileFormat::TamoArchive) &&
        setting != int(DocumentFileFormat::XmlPropertyList)) {
        qCWarning(lcDispatch).noquote()
            << "exportFormat" << setting << "names no document file; nothing was written.";
        return ActionResult::Cancelled;
    }
    const auto format = DocumentFileFormat(setting);
    const FileFormat& file =
        format == DocumentFileFormat::XmlPropertyList ? kXmlPropertyList : kTamoArchive;
    auto bytes = documentFileBytes(*session_.documents().current(), format);
    if (!bytes) {
        return failed(bytes.error());
    }
    FileRequest request;
    request.title = tr(file.title);
    request.extensions = {QString::fromLatin1(file.extension)};
    request.proposedName = jobName().replace(u'/', u'-');
    request.canCreateDirectories = true;
    const auto path = prompter_->chooseFileToSave(request);
    if (!path || path->isEmpty()) {
        return ActionResult::Cancelled;
    }
    if (auto written = writeFileAtomically(*path, *bytes); !written) {
        return failed(written.error());
    }
    qCInfo(lcDispatch).noquote() << "Wrote the document file" << *path;
    return ActionResult::Done;
}

}  // namespace tamo
