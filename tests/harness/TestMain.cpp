#include <glog/logging.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QLocale>
#include <QTemporaryDir>

// Leaks of the platform, not ours. Compiled in rather than passed in the environment, since the build
// also runs the executables, to list their cases. Without a LeakSanitizer nothing calls it.
// Visible, so that the sanitizer's own library finds it.
#if defined(__GNUC__)
#define UIAPI_VISIBLE __attribute__((visibility("default")))
#else
#define UIAPI_VISIBLE
#endif
extern "C" UIAPI_VISIBLE char const * __lsan_default_suppressions(); // NOLINT(bugprone-reserved-identifier)
char const * __lsan_default_suppressions()                           // NOLINT(bugprone-reserved-identifier)
{
    return "leak:libqoffscreen.so\n"
           "leak:libfontconfig\n"
           "leak:libQt5DBus\n";
}

// Each case is isolated: the working directory, relative to which several files are read, is a fresh
// temporary one before the first call into the library, and the real home directory is hidden.
int main(int argc, char ** argv)
{
    QTemporaryDir world;
    if (!world.isValid() || !QDir::setCurrent(world.path())) {
        return 2;
    }
    qputenv("HOME", world.path().toUtf8());
    qputenv("XDG_CONFIG_HOME", world.path().toUtf8());
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    google::InitGoogleLogging("tests");
    for (auto const severity : {google::GLOG_INFO, google::GLOG_WARNING, google::GLOG_ERROR}) {
        google::SetLogDestination(severity, ""); // no log files; the captures see every line
    }
    google::SetStderrLogging(google::GLOG_FATAL);

    QApplication application(argc, argv);
    QLocale::setDefault(QLocale::c());
    ::testing::InitGoogleTest(&argc, argv);
    int const result = RUN_ALL_TESTS();
    QDir::setCurrent(QDir::rootPath()); // so that the temporary directory can be removed
    return result;
}
