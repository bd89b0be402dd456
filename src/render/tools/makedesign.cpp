// Build step: turns the readable sources of one shipped design (invoice.html, item.html,
// style.css, title.txt) into the ".design" keyed archive the application loads.
//
//   tamo-makedesign SOURCE_FOLDER NAME OUTPUT_FILE

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTextStream>
#include <QUuid>

#include "interchange/plistfile.h"
#include "model/context.h"
#include "render/designarchive.h"

using namespace tamo;

namespace {

std::optional<QString> readText(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return std::nullopt;
    }
    return QString::fromUtf8(file.readAll());
}

}  // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    QTextStream err(stderr);
    const QStringList args = app.arguments();
    if (args.size() != 4) {
        err << "usage: tamo-makedesign SOURCE_FOLDER NAME OUTPUT_FILE\n";
        return 2;
    }
    const QDir source(args[1]);
    const QString name = args[2];

    QTemporaryDir scratch;
    auto context = Context::open(scratch.filePath(QStringLiteral("designs.zqdb")));
    if (!context) {
        err << context.error().text() << '\n';
        return 1;
    }
    Record* design = (*context)->insert("Design");
    // The same identity in every build, so that a shipped design is recognisable in any store.
    const QUuid ns(QStringLiteral("6f1c1d0e-3b57-4c8e-9a51-8d2f0f4b7a11"));
    design->setValue("uniqueID",
                     QUuid::createUuidV5(ns, name).toString(QUuid::WithoutBraces).toUpper());
    const std::pair<const char*, const char*> parts[] = {{"title", "title.txt"},
                                                         {"invoice", "invoice.html"},
                                                         {"item", "item.html"},
                                                         {"css", "style.css"}};
    for (const auto& [key, file] : parts) {
        const auto text = readText(source.filePath(QString::fromLatin1(file)));
        if (!text) {
            err << "tamo-makedesign: cannot read " << source.filePath(QString::fromLatin1(file))
                << '\n';
            return 1;
        }
        design->setValue(key, key == std::string_view("title") ? text->trimmed() : *text);
    }
    design->setValue("isDefault", false);

    auto archive = designArchive(*design);
    if (!archive) {
        err << archive.error().text() << '\n';
        return 1;
    }
    if (auto written = writeFileAtomically(args[3], *archive); !written) {
        err << written.error().text() << '\n';
        return 1;
    }
    return 0;
}
