// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "input/plainfile.h"

#include <QtCore/QFile>

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

QString openPlainFile(const QString &name, Links links, QFile &file)
{
    const int flags = O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC | (links == Links::Refused ? O_NOFOLLOW : 0);
    const int descriptor = ::open(QFile::encodeName(name).constData(), flags);
    struct stat status;
    if (descriptor < 0) {
        return QString::fromLocal8Bit(std::strerror(errno));
    }
    if (::fstat(descriptor, &status) != 0 || !S_ISREG(status.st_mode)) {
        ::close(descriptor);
        return QStringLiteral("is no plain file");
    }
    return file.open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle) ? QString() : file.errorString();
}
