// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "output.h"
#include "commands.h"
#include "complain.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QSaveFile>

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

/** Whether the name stands for something that is there and open already, so that nothing may take its place. */
static bool isDescriptor(const QString &name)
{
    const QString path = QFileInfo(name).absoluteFilePath();
    return path.startsWith(QLatin1String("/dev/fd/")) || path.startsWith(QLatin1String("/dev/std"))
        || path.startsWith(QLatin1String("/proc/"));
}

static bool writeTo(const QString &name, Message &message)
{
    QFile out(name);
    // Appending, since what /dev/stdout stands for may be a file that others have written to.
    if (out.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::ExistingOnly)) {
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
    return S_ISREG(status.st_mode) && !isDescriptor(name) ? replace(name, message) : writeTo(name, message);
}
