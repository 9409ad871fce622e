#pragma once

#include <QProcess>
#include <QString>
#include <QtGlobal>

#ifdef Q_OS_UNIX
#include <sys/resource.h>
#include <unistd.h>

#include <csignal>
#endif

/// While it lives no file of this process grows beyond `bytes`: the system refuses the rest, as a full disk does.
class FileSizeLimit {
public:
#ifdef Q_OS_UNIX
    explicit FileSizeLimit(qint64 bytes) {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &before);
        const rlimit limit = {rlim_t(bytes), before.rlim_max};
        works = setrlimit(RLIMIT_FSIZE, &limit) == 0;
    }
    ~FileSizeLimit() {
        setrlimit(RLIMIT_FSIZE, &before);
    }
#else
    explicit FileSizeLimit(qint64) {
    }
#endif
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;

    bool works = false;

private:
#ifdef Q_OS_UNIX
    rlimit before{};
#endif
};

/// An administrator's process is an ordinary user's while it lives: permissions stop it.
class OrdinaryUser {
public:
#ifdef Q_OS_LINUX
    OrdinaryUser() : isAdministrator(geteuid() == 0) {
        works = !isAdministrator || setresuid(nobody, nobody, 0) == 0;
    }
    ~OrdinaryUser() {
        if (isAdministrator && setresuid(0, 0, 0) != 0)
            qFatal("The administrator's rights don't come back.");
    }
#else
    OrdinaryUser() {
    }
#endif
    OrdinaryUser(const OrdinaryUser&) = delete;
    OrdinaryUser& operator=(const OrdinaryUser&) = delete;

    bool works = false;

private:
#ifdef Q_OS_LINUX
    static constexpr uid_t nobody = 65534;
    bool isAdministrator;
#endif
};

/// A small disk at the folder `path`, where this process may mount one.
class SmallDisk {
public:
    SmallDisk(const QString& folder, int kilobytes) : path(folder) {
        works =
            QProcess::execute("mount", {"-t", "tmpfs", "-o", QString("size=%1k").arg(kilobytes), "none", path}) == 0;
    }
    ~SmallDisk() {
        if (works)
            QProcess::execute("umount", {"-l", path});
    }
    SmallDisk(const SmallDisk&) = delete;
    SmallDisk& operator=(const SmallDisk&) = delete;

    bool works = false;

private:
    QString path;
};
