#pragma once

#include <QDateTime>
#include <QString>
#include <optional>

namespace tamo {

// Which moment of a day a text without a time stands for.
enum class DayPart { Start, End };

// Reads a date the way people and other programs write it: ISO 8601 ("2024-03-05",
// "2024-03-05T14:30:00+01:00"), the numeric forms "05.03.2024", "3/5/2024" (month first unless
// the first number cannot be a month), "2024/3/5", and written months in English, German, French
// or Spanish ("5 March 2024", "March 5, 2024", "5. März 2024", "5 mars 2024"). Two-digit years
// are of this century. A text without a time gives the start or the end of its day in local time.
// Nothing for anything else.
std::optional<QDateTime> dateFromString(const QString& text, DayPart part = DayPart::Start);

}  // namespace tamo
