#pragma once

#include <gtest/gtest.h>
#include <QTemporaryDir>
#include <memory>

#include "model/appsession.h"
#include "model/context.h"
#include "platform/profile.h"
#include "platform/scriptedprompter.h"

namespace tamo::test {

// A profile in a fresh temporary folder, removed after the test.
class TempProfile {
public:
    TempProfile();
    const Profile& profile() const { return profile_; }
    QString path(const QString& name) const { return dir_.filePath(name); }
    QString storePath() const { return profile_.supportFolder + QStringLiteral("/Tamo.zqdb"); }

private:
    QTemporaryDir dir_;
    Profile profile_;
};

// A session on a temporary profile with scripted answers and a fixed time.
class SessionTest : public ::testing::Test {
protected:
    TempProfile dir;
    Settings settings{dir.profile().settingsFile};
    FixedClock clock{QDateTime(QDate(2026, 3, 1), QTime(9, 0), Qt::UTC)};
    ScriptedPrompter prompter;
    AppSession session{dir.profile(), settings, clock, prompter};
};

// Opens a store file, failing the test when it cannot.
std::unique_ptr<Context> openContext(const QString& path);

// Runs SQL on a store file through a separate connection, as another program would.
void execSql(const QString& path, const QString& sql);
QString queryText(const QString& path, const QString& sql);

QString readFile(const QString& path);

// Compares `actual` with the golden file at `path`, line by line; with TAMO_UPDATE_GOLDEN=1 in
// the environment the file is written instead (then read it through before committing it).
void expectGoldenFile(const QString& path, const QString& actual);

// A value per attribute type that a faulty column mapping or file format would not reproduce
// exactly.
Value sampleValue(AttributeType type, size_t salt);

}  // namespace tamo::test

// Lets GoogleTest print Qt strings in failure messages.
QT_BEGIN_NAMESPACE
void PrintTo(const QString& s, std::ostream* os);
QT_END_NAMESPACE
