// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "output.h"
#include "commands.h"
#include "complain.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QSaveFile>
#include <QtCore/QStringList>

#include <sys/stat.h>
#include <unistd.h>

/** Whether both are one regular file, by whatever names; "-" is standard input. */
static bool isSameFile(const QString &input, const struct stat &output)
{
    struct stat status;
    const int failed = input == QLatin1String("-") ? fstat(STDIN_FILENO, &status)
                                                   : stat(QFile::encodeName(input).constData(), &status);
    return !failed && S_ISREG(status.st_mode) && status.st_dev == output.st_dev && status.st_ino == output.st_ino;
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

static bool writeTo(const QString &name, Message &message)
{
    QFile out(name);
    // Opened again, a file would be written from its beginning, over what its descriptor has written already.
    const int given = descriptor(name);
    const bool opened = given >= 0 ? out.open(dup(given), QIODevice::WriteOnly, QFileDevice::AutoCloseHandle)
                                   : out.open(QIODevice::WriteOnly | QIODevice::ExistingOnly);
    if (opened) {
        storyboard(message, out);
        out.flush();
    }
    return out.error() == QFileDevice::NoError || complainOf(name, out.errorString());
}

static bool replace(const QString &name, Message &message)
{
    QSaveFile out(name);
    if (out.open(QIODevice::WriteOnly)) {
        storyboard(message, out);
        if (out.commit()) {
            return true;
        }
    }
    return complainOf(name, out.errorString());
}

bool drawTo(const QString &name, Message &message)
{
    struct stat status;
    if (stat(QFile::encodeName(name).constData(), &status) != 0) {
        return replace(name, message);
    }
    if (isSameFile(message.file, status)) {
        return complainOf(name, QStringLiteral("is the message itself"));
    }
    return S_ISREG(status.st_mode) && descriptor(name) < 0 ? replace(name, message) : writeTo(name, message);
}
