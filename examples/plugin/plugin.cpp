// The function that the host's plug-in manager calls.

#include "demo.h"

#include <cstdio>
#include <cstring>

#if defined(_WIN32)
#define EXAMPLE_EXPORT __declspec(dllexport)
#else
#define EXAMPLE_EXPORT __attribute__((visibility("default")))
#endif

/// `data` is the view, as passed by the host.
extern "C" EXAMPLE_EXPORT void examplePluginCommand(void * data, int command, char const * key)
{
    std::printf("plug-in: command %d, \"%s\"\n", command, key);
    auto * const view = static_cast<QWidget *>(data);
    if (std::strcmp(key, "demo") == 0) {
        runDemo(view);
    } else {
        runDialog(view);
    }
}
