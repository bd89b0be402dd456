#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include "interchange/plistfile.h"
#include "model/context.h"

namespace tamo {

// A ".design" file: a keyed archive whose root dictionary holds the design's record dictionary
// under "designDic".
Result<QByteArray> designArchive(const Record& design);
// The record dictionary of a design file, with "class" set to "Design" whatever the file said.
// A file that is no keyed archive, or has no design in it, gives a message saying so.
Result<Plist> designDictionaryFromArchive(const QByteArray& bytes);

// The names of the designs the application ships, in the order they are offered.
QStringList builtInDesignNames();
// The archive of a shipped design from the application's resources.
Result<QByteArray> builtInDesignArchive(const QString& name);

// The page, row and style-sheet texts that seed a new design.
struct DesignSeed {
    QString invoice;
    QString item;
    QString css;
};
DesignSeed newDesignSeed();

}  // namespace tamo
