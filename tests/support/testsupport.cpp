#include "support/testsupport.h"

#include <QFile>
#include <QFileInfo>
#include <limits>

#include "model/sqlite.h"

namespace tamo::test {

TempProfile::TempProfile()
    : profile_(Profile::inDirectory(dir_.filePath(QStringLiteral("profile"))))
{
}

std::unique_ptr<Context> openContext(const QString& path)
{
    auto context = Context::open(path);
    EXPECT_TRUE(context.has_value()) << (context ? "" : context.error().text().toStdString());
    return context ? std::move(*context) : nullptr;
}

void execSql(const QString& path, const QString& sql)
{
    auto db = sql::Database::open(path, true);
    ASSERT_TRUE(db.has_value()) << db.error().text().toStdString();
    auto r = db->exec(sql);
    ASSERT_TRUE(r.has_value()) << r.error().text().toStdString();
}

QString queryText(const QString& path, const QString& sql)
{
    auto db = sql::Database::open(path, false);
    if (!db) {
        return QStringLiteral("<%1>").arg(db.error().text());
    }
    auto s = db->prepare(sql);
    if (!s) {
        return QStringLiteral("<%1>").arg(s.error().text());
    }
    return s->step() ? s->text(0) : QString();
}

QString readFile(const QString& path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? QString::fromUtf8(f.readAll()) : QString();
}

void expectGoldenFile(const QString& path, const QString& actual)
{
    const std::string name = QFileInfo(path).fileName().toStdString();
    if (qEnvironmentVariableIsSet("TAMO_UPDATE_GOLDEN")) {
        QFile out(path);
        ASSERT_TRUE(out.open(QIODevice::WriteOnly | QIODevice::Truncate));
        out.write(actual.toUtf8());
        return;
    }
    const QString expected = readFile(path);
    ASSERT_FALSE(expected.isEmpty()) << "no golden file " << path.toStdString();
    const QStringList want = expected.split(u'\n');
    const QStringList got = actual.split(u'\n');
    for (qsizetype i = 0; i < std::min(want.size(), got.size()); ++i) {
        ASSERT_EQ(got[i], want[i]) << name << " line " << i + 1;
    }
    EXPECT_EQ(got.size(), want.size()) << name;
}

Value sampleValue(AttributeType type, size_t salt)
{
    switch (type) {
    case AttributeType::String:
        return Value(QStringLiteral("Grüße «%1» — 𝄞 line\nnext").arg(salt));
    case AttributeType::Integer:
        return Value(salt % 2 ? std::numeric_limits<qint32>::min()
                              : std::numeric_limits<qint32>::max());
    case AttributeType::Boolean:
        return Value(salt % 2 == 0);
    case AttributeType::Decimal:
        return Value(0.1 + 0.2 + double(salt) * 1e-9);  // not representable in few digits
    case AttributeType::Date:
        return Value(QDateTime::fromMSecsSinceEpoch(1700000000123LL + qint64(salt), Qt::UTC));
    }
    return {};
}

}  // namespace tamo::test

QT_BEGIN_NAMESPACE
void PrintTo(const QString& s, std::ostream* os)
{
    *os << '"' << s.toStdString() << '"';
}
QT_END_NAMESPACE
