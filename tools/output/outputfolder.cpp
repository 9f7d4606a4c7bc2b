// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "outputfolder.h"
#include "safename.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QRandomGenerator>

#include <cerrno>
#include <cstring>

#include <fcntl.h>
#include <linux/fs.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

static QString systemsProblem()
{
    return QString::fromLocal8Bit(std::strerror(errno));
}

/** Whether all of the data could be written, and is known to be. Closes the file. */
static bool writeAndClose(int descriptor, const QByteArray &data)
{
    const char *at = data.constData();
    const char *const end = at + data.size();
    while (at != end) {
        const ssize_t written = ::write(descriptor, at, size_t(end - at));
        if (written < 0 && errno != EINTR) {
            const int problem = errno;
            ::close(descriptor);
            errno = problem;
            return false;
        }
        at += written < 0 ? 0 : written;
    }
    return ::close(descriptor) == 0;
}

/** Gives the file another name, if nothing has it. */
static bool rename(int folder, const char *from, const char *to)
{
    if (::linkat(folder, from, folder, to, 0) == 0) {
        ::unlinkat(folder, from, 0);
        return true;
    }
    // Cards of phones are of file systems that know no links.
    return (errno == EPERM || errno == EOPNOTSUPP)
        && ::syscall(SYS_renameat2, folder, from, folder, to, RENAME_NOREPLACE) == 0;
}

static bool hasContent(int folder, const char *name, const QByteArray &data)
{
    // Never waits for a writer, should the file have become a pipe by now.
    const int descriptor = ::openat(folder, name, O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    QFile file;
    return descriptor >= 0 && file.open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle)
        && file.read(data.size() + 1) == data;
}

OutputFolder::OutputFolder(const QString &path, QString &problem)
{
    const bool isMade = QDir().mkpath(path);
    m_descriptor = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (m_descriptor < 0) {
        problem = isMade ? systemsProblem() : QStringLiteral("is no folder, and none can be made there");
    }
}

OutputFolder::~OutputFolder()
{
    if (m_descriptor >= 0) {
        ::close(m_descriptor);
    }
}

QString OutputFolder::write(const QString &name, const QByteArray &data) const
{
    if (name.isEmpty() || safeName(name) != name) {
        return QStringLiteral("is no safe name for a file");
    }
    const QByteArray path = name.toUtf8();
    struct stat status;
    if (::fstatat(m_descriptor, path.constData(), &status, AT_SYMLINK_NOFOLLOW) == 0) {
        const bool isSame = S_ISREG(status.st_mode) && status.st_size == data.size()
            && hasContent(m_descriptor, path.constData(), data);
        return isSame ? QString() : QStringLiteral("is there already, and something else");
    }
    // Whoever looks for the file finds all of it. No safe name begins with a dot.
    const QByteArray unfinished = ".smiltool-" + QByteArray::number(QRandomGenerator::system()->generate64(), 16);
    const int descriptor =
        ::openat(m_descriptor, unfinished.constData(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0666);
    if (descriptor < 0) {
        return systemsProblem();
    }
    QString problem;
    if (!writeAndClose(descriptor, data) || !rename(m_descriptor, unfinished.constData(), path.constData())) {
        problem = systemsProblem();
        ::unlinkat(m_descriptor, unfinished.constData(), 0);
    }
    return problem;
}
