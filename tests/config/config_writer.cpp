#include "Generation.h"

#include "config/GlobalConfigStore.h"

#include <glog/logging.h>

#include <QCoreApplication>
#include <QDir>

#include <cstdio>
#include <cstdlib>
#include <cstring>

#ifdef Q_OS_LINUX
#include <csignal>
#include <sys/resource.h>
#endif

// config_writer DIRECTORY loop FIRST: saves generation after generation until it is killed.
// config_writer DIRECTORY once NUMBER [LIMIT]: saves one; no file may then grow beyond LIMIT bytes, as on a
// full disk.

using namespace KVCAM::UIAPI;

namespace {

bool limitFileSize(char const * limit)
{
#ifdef Q_OS_LINUX
    std::signal(SIGXFSZ, SIG_IGN); // writes fail instead
    rlimit const size{std::strtoul(limit, nullptr, 10), RLIM_INFINITY};
    return setrlimit(RLIMIT_FSIZE, &size) == 0;
#else
    static_cast<void>(limit);
    return false;
#endif
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
    int number = std::atoi(argv[3]);
    if (argc > 4 && !limitFileSize(argv[4])) {
        return 3;
    }
    if (std::strcmp(argv[2], "once") == 0) {
        store.set(&ServerSettings::serverIp, KVCAM::Testing::generation(number));
        return 0;
    }
    std::puts("ready");
    std::fflush(stdout);
    for (;; ++number) {
        store.set(&ServerSettings::serverIp, KVCAM::Testing::generation(number));
    }
}
