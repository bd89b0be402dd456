#pragma once

#include <QDateTime>

#include "settings/settings.h"

namespace tamo {

class Context;
class Record;

// An invoice with a client, `lines` lines under all three taxes, a percent discount and
// shipping, with its amounts worked out: what the design preview shows, and what the pictures
// of the shipped designs and the benchmarks are made from.
Record* insertSampleDocument(Context& context, const QDateTime& date, int lines = 6);

// English document labels, sender texts and switches for a settings file that has none, so
// that a preview made from a fresh profile shows every part of a design.
void applySampleSettings(Settings& settings);

}  // namespace tamo
