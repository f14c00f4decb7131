#include "Generation.h"

#include "config/AutoMatrixStore.h"
#include "config/Diagnostics.h"
#include "config/GlobalConfigStore.h"
#include "config/SettingsFile.h"
#include "support/MessagePresenter.h"

#include <glog/logging.h>

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <cstdio>
#include <cstdlib>
#include <cstring>

#ifdef Q_OS_LINUX
#include <csignal>
#include <grp.h>
#include <sys/resource.h>
#include <unistd.h>
#endif

// config_writer DIRECTORY loop FIRST: saves generation after generation until it is killed.
// config_writer DIRECTORY once|template NUMBER [limit BYTES | user ID]: saves one, of the settings or of a
// template, and prints the messages. With a limit no file can grow beyond BYTES, as on a full disk; with a
// user the process has only that user's rights.

using namespace KVCAM::UIAPI;

namespace {

bool restrictProcess(char const * what, char const * value)
{
#ifdef Q_OS_LINUX
    if (std::strcmp(what, "user") == 0) {
        auto const id = static_cast<uid_t>(std::strtoul(value, nullptr, 10));
        return setgroups(0, nullptr) == 0 && setgid(id) == 0 && setuid(id) == 0;
    }
    std::signal(SIGXFSZ, SIG_IGN); // writes fail instead
    rlimit const size{std::strtoul(value, nullptr, 10), RLIM_INFINITY};
    return setrlimit(RLIMIT_FSIZE, &size) == 0;
#else
    static_cast<void>(what);
    static_cast<void>(value);
    return false;
#endif
}

void saveOne(GlobalConfigStore & store, char const * what, std::string const & text)
{
    Ext::setMessagePresenter([](Ext::Message const & message) {
        std::printf("box: %s\n", qPrintable(message.text));
        return Ext::MessageAnswer::Ok;
    });
    if (std::strcmp(what, "once") == 0) {
        store.set(&ServerSettings::serverIp, text);
        std::printf("last: %s\n", qPrintable(Ext::lastSettingsSave().reason));
    } else {
        AutoMatrixTmp tmpl;
        tmpl.name = text;
        AutoMatrixStore().saveAutoMatrixtoJson("mine", tmpl);
    }
    for (Ext::Diagnostic const & finding : Ext::diagnostics()) {
        if (finding.kind == Ext::DiagnosticKind::SaveFailed) {
            std::printf("%s: %s\n", qPrintable(QFileInfo(finding.file).fileName()), qPrintable(finding.text));
        }
    }
}

} // namespace

int main(int argc, char ** argv)
{
    if (argc < 4 || !QDir::setCurrent(QString::fromLocal8Bit(argv[1]))) {
        return 2;
    }
    FLAGS_logtostderr = true;
    google::InitGoogleLogging(argv[0]);
    GlobalConfigStore store;
    store.getGlobalConfig();
    int number = static_cast<int>(std::strtol(argv[3], nullptr, 10));
    if (argc > 5 && !restrictProcess(argv[4], argv[5])) {
        return 3;
    }
    if (std::strcmp(argv[2], "loop") != 0) {
        saveOne(store, argv[2], KVCAM::Testing::generation(number));
        return 0;
    }
    std::puts("ready");
    std::fflush(stdout);
    for (;; ++number) {
        store.set(&ServerSettings::serverIp, KVCAM::Testing::generation(number));
    }
}
