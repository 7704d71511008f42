// The system's calls of a save, in one table.
#pragma once

#include <QtGlobal>

#ifdef Q_OS_UNIX

#include <cstdio>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#ifdef Q_OS_LINUX
#include <sys/xattr.h>
#endif

/// Each member is the call of its name. What saves calls no other, so that who puts a member of his own into
/// the table sees what becomes of the file when that call fails, comes short or is the process's last.
struct FileCalls {
    int (*open)(const char*, int, mode_t) = [](const char* path, int flags, mode_t mode) {
        return ::open(path, flags, mode);
    };
    int (*close)(int) = ::close;
    ssize_t (*pread)(int, void*, size_t, off_t) = ::pread;
    ssize_t (*pwrite)(int, const void*, size_t, off_t) = ::pwrite;
    int (*ftruncate)(int, off_t) = ::ftruncate;
    int (*posix_fallocate)(int, off_t, off_t) = ::posix_fallocate;
    int (*fsync)(int) = ::fsync;
    int (*flock)(int, int) = ::flock;
    int (*fstat)(int, struct stat*) = [](int file, struct stat* status) { return ::fstat(file, status); };
    int (*lstat)(const char*, struct stat*) = [](const char* path, struct stat* status) {
        return ::lstat(path, status);
    };
    int (*access)(const char*, int) = ::access;
    ssize_t (*readlink)(const char*, char*, size_t) = ::readlink;
    int (*rename)(const char*, const char*) = ::rename;
    int (*unlink)(const char*) = ::unlink;
    int (*fchown)(int, uid_t, gid_t) = ::fchown;
    int (*fchmod)(int, mode_t) = ::fchmod;
#ifdef Q_OS_LINUX
    int (*renameat2)(int, const char*, int, const char*, unsigned) = ::renameat2;
    ssize_t (*listxattr)(const char*, char*, size_t) = ::listxattr;
    ssize_t (*getxattr)(const char*, const char*, void*, size_t) = ::getxattr;
    int (*fsetxattr)(int, const char*, const void*, size_t, int) = ::fsetxattr;
#endif
};

/// The table in use.
inline FileCalls& Calls() {
    static FileCalls calls;
    return calls;
}

#endif
