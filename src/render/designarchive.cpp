#include "render/designarchive.h"

#include <QFile>

#include "interchange/keyedarchive.h"
#include "interchange/recorddictionary.h"
#include "platform/translations.h"

namespace tamo {

namespace {

constexpr char kDesignKey[] = "designDic";

Error notADesign(const QString& reason)
{
    return interchangeError(kWrongContent, tr("The file is not a Tamo design."), reason);
}

QString resourceText(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

}  // namespace

Result<QByteArray> designArchive(const Record& design)
{
    auto dictionary = toDictionary(design);
    if (!dictionary) {
        return std::unexpected(dictionary.error());
    }
    Plist root(plist_new_dict());
    plist_dict_set_item(root.get(), kDesignKey, dictionary->release());
    return keyedArchive(root.get());
}

Result<Plist> designDictionaryFromArchive(const QByteArray& bytes)
{
    auto root = keyedUnarchive(bytes);
    if (!root) {
        return std::unexpected(notADesign(root.error().text()));
    }
    if (plist_get_node_type(root->get()) != PLIST_DICT) {
        return std::unexpected(notADesign(tr("It holds no dictionary.")));
    }
    plist_t design = plist_dict_get_item(root->get(), kDesignKey);
    if (!design || plist_get_node_type(design) != PLIST_DICT) {
        return std::unexpected(notADesign(tr("It holds no “designDic” dictionary.")));
    }
    Plist copy(plist_copy(design));
    plist_dict_set_item(copy.get(), "class", plist_new_string("Design"));
    return copy;
}

QStringList builtInDesignNames()
{
    return {QStringLiteral("Temp001"), QStringLiteral("Temp002"), QStringLiteral("Temp003"),
            QStringLiteral("Temp004"), QStringLiteral("Temp005"), QStringLiteral("Temp006"),
            QStringLiteral("Temp007"), QStringLiteral("Temp008"), QStringLiteral("Temp009"),
            QStringLiteral("Temp11"),  QStringLiteral("Temp12"),  QStringLiteral("Temp13"),
            QStringLiteral("Temp14")};
}

Result<QByteArray> builtInDesignArchive(const QString& name)
{
    QFile file(QStringLiteral(":/designs/%1.design").arg(name));
    if (!file.open(QIODevice::ReadOnly)) {
        return std::unexpected(interchangeError(
            kFileUnreadable, tr("The built-in design “%1” is missing.").arg(name)));
    }
    return file.readAll();
}

DesignSeed newDesignSeed()
{
    return {resourceText(QStringLiteral(":/designs/seed/Invoice.htm")),
            resourceText(QStringLiteral(":/designs/seed/Item.htm")),
            resourceText(QStringLiteral(":/designs/seed/CSS.css"))};
}

}  // namespace tamo
