#include <UIAPICommonTest/GoogleTest.h>

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
           "leak:libQt5DBus\n"
           "leak:QPropertyAnimation::QPropertyAnimation\n"; // of a clear button whose field has gone
}

int main(int argc, char ** argv)
{
    return KVCAM::Testing::runGoogleTests(argc, argv);
}
