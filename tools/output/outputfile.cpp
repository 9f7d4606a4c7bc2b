// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "outputfile.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QSaveFile>
#include <QtCore/QStringList>

#include <sys/stat.h>
#include <unistd.h>

/** Asks for that of a file; "-" is standard input. */
static bool status(const QString &input, struct stat &status)
{
    return input == QLatin1String("-") ? fstat(STDIN_FILENO, &status) == 0
                                       : stat(QFile::encodeName(input).constData(), &status) == 0;
}

/** The descriptor that the name stands for, such as that of /dev/stdout; -1 when it is a file's name. */
static int descriptor(const QString &name)
{
    const QString path = QFileInfo(name).absoluteFilePath();
    static const QStringList standard{QStringLiteral("/dev/stdin"), QStringLiteral("/dev/stdout"),
                                      QStringLiteral("/dev/stderr")};
    for (const QLatin1String folder : {QLatin1String("/dev/fd/"), QLatin1String("/proc/self/fd/")}) {
        bool isNumber = false;
        const int number = path.mid(folder.size()).toInt(&isNumber);
        if (isNumber && path.startsWith(folder)) {
            return number;
        }
    }
    return int(standard.indexOf(path));
}

static QString writeTo(const QString &name, const Write &write)
{
    QFile out(name);
    // Opened again, a file would be written from its beginning, over what its descriptor has written already.
    const int given = descriptor(name);
    const bool opened = given >= 0 ? out.open(dup(given), QIODevice::WriteOnly, QFileDevice::AutoCloseHandle)
                                   : out.open(QIODevice::WriteOnly | QIODevice::ExistingOnly);
    const bool written = opened && write(out) && out.flush() && out.error() == QFileDevice::NoError;
    return written ? QString() : out.errorString();
}

static QString replace(const QString &name, const Write &write)
{
    QSaveFile out(name);
    const bool written = out.open(QIODevice::WriteOnly) && write(out) && out.commit();
    return written ? QString() : out.errorString();
}

bool isSameFile(const QString &input, const QString &output)
{
    struct stat read;
    struct stat written;
    return status(input, read) && stat(QFile::encodeName(output).constData(), &written) == 0 && S_ISREG(read.st_mode)
        && read.st_dev == written.st_dev && read.st_ino == written.st_ino;
}

QString writeFile(const QString &name, const Write &write)
{
    struct stat status;
    const bool isThere = stat(QFile::encodeName(name).constData(), &status) == 0;
    return isThere && (!S_ISREG(status.st_mode) || descriptor(name) >= 0) ? writeTo(name, write) : replace(name, write);
}
