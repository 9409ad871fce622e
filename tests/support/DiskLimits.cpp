#include "support/DiskLimits.h"

#include <QProcess>

#ifdef Q_OS_LINUX
#include <sys/resource.h>
#include <unistd.h>

#include <csignal>

namespace {

constexpr uid_t nobody = 65534;

rlimit fileSize() {
    rlimit limit{};
    getrlimit(RLIMIT_FSIZE, &limit);
    return limit;
}

bool setFileSize(rlim_t bytes) {
    const rlimit limit = {bytes, fileSize().rlim_max};
    return setrlimit(RLIMIT_FSIZE, &limit) == 0;
}

} // namespace

FileSizeLimit::FileSizeLimit(qint64 bytes) : before(fileSize().rlim_cur) {
    std::signal(SIGXFSZ, SIG_IGN);
    works = setFileSize(rlim_t(bytes));
}

FileSizeLimit::~FileSizeLimit() {
    setFileSize(before);
}

OrdinaryUser::OrdinaryUser() : isAdministrator(geteuid() == 0) {
    works = !isAdministrator || setresuid(nobody, nobody, 0) == 0;
}

OrdinaryUser::~OrdinaryUser() {
    if (isAdministrator && setresuid(0, 0, 0) != 0)
        qFatal("The administrator's rights don't come back.");
}
#else
FileSizeLimit::FileSizeLimit(qint64) {
}
FileSizeLimit::~FileSizeLimit() = default;
OrdinaryUser::OrdinaryUser() = default;
OrdinaryUser::~OrdinaryUser() = default;
#endif

SmallDisk::SmallDisk(const QString& folder, int kilobytes) : path(folder) {
    works = QProcess::execute("mount", {"-t", "tmpfs", "-o", QString("size=%1k").arg(kilobytes), "none", path}) == 0;
}

SmallDisk::~SmallDisk() {
    if (works)
        QProcess::execute("umount", {"-l", path});
}
