// Linked into every test program: it runs headless and keeps whatever it writes inside the build
// folder, however it is started (by CTest, by hand, or while CTest lists its cases).
#include <QByteArray>
#include <QtGlobal>

namespace {

void setDefault(const char* name, const QByteArray& value)
{
    if (qEnvironmentVariableIsEmpty(name)) {
        qputenv(name, value);
    }
}

const bool prepared = [] {
    setDefault("QT_QPA_PLATFORM", "offscreen");
    // The web engine refuses to start its sandbox as root, as tests in CI run.
    setDefault("QTWEBENGINE_CHROMIUM_FLAGS", "--no-sandbox");
    // Tests read Tamo's English texts, whatever language the desktop running them speaks.
    qputenv("LC_ALL", "C.UTF-8");
    qunsetenv("LANGUAGE");
    const QByteArray home(TAMO_TEST_HOME);
    qputenv("HOME", home);
    qputenv("XDG_DATA_HOME", home + "/data");
    qputenv("XDG_CONFIG_HOME", home + "/config");
    qputenv("XDG_CACHE_HOME", home + "/cache");
    return true;
}();

}  // namespace
