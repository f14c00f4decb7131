#include "job/SystemTwins.h"

#include <QByteArray>
#include <QtGlobal>

#include <cstdio>
#include <cstdlib>

#include <io.h>
#include <windows.h>

void Workbench::useParentConsole()
{
    auto const isOpen = [](DWORD stream) {
        HANDLE const handle = GetStdHandle(stream);
        return handle != nullptr && handle != INVALID_HANDLE_VALUE;
    };
    bool const hasOutput = isOpen(STD_OUTPUT_HANDLE);
    bool const hasErrors = isOpen(STD_ERROR_HANDLE);
    if ((hasOutput && hasErrors) || AttachConsole(ATTACH_PARENT_PROCESS) == 0) {
        return;
    }
    if (!hasOutput) {
        std::freopen("CONOUT$", "w", stdout);
    }
    if (!hasErrors) {
        std::freopen("CONOUT$", "w", stderr);
    }
    static UINT const previous = GetConsoleOutputCP();
    SetConsoleOutputCP(CP_UTF8);
    std::atexit([] { SetConsoleOutputCP(previous); }); // the console stays in use
}

void Workbench::findFontsOffscreen()
{
    constexpr char const * folder = "QT_QPA_FONTDIR";
    if (qEnvironmentVariableIsEmpty(folder)) {
        qputenv(folder, qgetenv("WINDIR") + "\\Fonts");
    }
}

bool Workbench::isTerminal(std::FILE * stream)
{
    return _isatty(_fileno(stream)) != 0;
}
