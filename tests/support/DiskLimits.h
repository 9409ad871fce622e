#pragma once

#include <QString>
#include <QtGlobal>

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
public:
    explicit FileSizeLimit(qint64 bytes);
    ~FileSizeLimit();

private:
    quint64 before = 0;
};

/// An administrator's process is an ordinary user's: permissions stop it.
class OrdinaryUser : public Limit {
public:
    OrdinaryUser();
    ~OrdinaryUser();

private:
    bool isAdministrator = false;
};

/// A small disk at the folder `path`.
class SmallDisk : public Limit {
public:
    SmallDisk(const QString& folder, int kilobytes);
    ~SmallDisk();

private:
    QString path;
};
