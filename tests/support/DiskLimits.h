#pragma once

#include <QProcess>
#include <QString>
#include <QtGlobal>

#ifdef Q_OS_LINUX
#include <sys/resource.h>
#include <unistd.h>

#include <csignal>
#endif

/// A limit while it lives, where this process may set one here.
class Limit {
public:
    Limit() = default;
    Limit(const Limit&) = delete;
    Limit& operator=(const Limit&) = delete;

    bool works = false;
};

/// No file of this process grows beyond `bytes`: the system refuses the rest, as a full disk does.
class FileSizeLimit : public Limit {
#ifdef Q_OS_LINUX
public:
    explicit FileSizeLimit(qint64 bytes) {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &before);
        const rlimit limit = {rlim_t(bytes), before.rlim_max};
        works = setrlimit(RLIMIT_FSIZE, &limit) == 0;
    }
    ~FileSizeLimit() {
        setrlimit(RLIMIT_FSIZE, &before);
    }

private:
    rlimit before{};
#else
public:
    explicit FileSizeLimit(qint64) {
    }
#endif
};

/// An administrator's process is an ordinary user's: permissions stop it.
class OrdinaryUser : public Limit {
#ifdef Q_OS_LINUX
public:
    OrdinaryUser() {
        works = !isAdministrator || setresuid(nobody, nobody, 0) == 0;
    }
    ~OrdinaryUser() {
        if (isAdministrator && setresuid(0, 0, 0) != 0)
            qFatal("The administrator's rights don't come back.");
    }

private:
    static constexpr uid_t nobody = 65534;
    const bool isAdministrator = geteuid() == 0;
#endif
};

/// A small disk at the folder `path`.
class SmallDisk : public Limit {
public:
    SmallDisk(const QString& folder, int kilobytes) : path(folder) {
        works =
            QProcess::execute("mount", {"-t", "tmpfs", "-o", QString("size=%1k").arg(kilobytes), "none", path}) == 0;
    }
    ~SmallDisk() {
        if (works)
            QProcess::execute("umount", {"-l", path});
    }

private:
    QString path;
};
