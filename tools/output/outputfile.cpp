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

/** A disk that takes a part of the data says why it takes no more when it is given the rest. */
static bool writeAll(QFileDevice &out, const QByteArray &data)
{
    qint64 written = 0;
    for (qint64 more = 1; more > 0 && written < data.size(); written += more) {
        more = out.write(data.constData() + written, data.size() - written);
    }
    return written == data.size();
}

static QString writeTo(const QString &name, const QByteArray &data)
{
    QFile out(name);
    // Opened again, a file would be written from its beginning, over what its descriptor has written already.
    const int given = descriptor(name);
    const QIODevice::OpenMode mode = QIODevice::WriteOnly | QIODevice::Unbuffered;
    const bool opened = given >= 0 ? out.open(dup(given), mode, QFileDevice::AutoCloseHandle)
                                   : out.open(mode | QIODevice::ExistingOnly);
    return opened && writeAll(out, data) ? QString() : out.errorString();
}

static QString replace(const QString &name, const QByteArray &data)
{
    QSaveFile out(name);
    // What a buffer loses in the end, commit() does not report.
    const bool opened = out.open(QIODevice::WriteOnly | QIODevice::Unbuffered);
    return opened && writeAll(out, data) && out.commit() ? QString() : out.errorString();
}

QString createFile(const QString &name, const QByteArray &data)
{
    QFile out(name);
    if (!out.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered)) {
        return out.errorString();
    }
    QString problem = writeAll(out, data) ? QString() : out.errorString();
    out.close();
    if (problem.isEmpty() && out.error() != QFileDevice::NoError) {
        problem = out.errorString();
    }
    if (!problem.isEmpty()) {
        out.remove();
    }
    return problem;
}

bool isSameFile(const QString &input, const QString &output)
{
    struct stat read;
    struct stat written;
    return status(input, read) && stat(QFile::encodeName(output).constData(), &written) == 0 && S_ISREG(read.st_mode)
        && read.st_dev == written.st_dev && read.st_ino == written.st_ino;
}

QString writeFile(const QString &name, const QByteArray &data)
{
    struct stat status;
    const bool isThere = stat(QFile::encodeName(name).constData(), &status) == 0;
    return isThere && (!S_ISREG(status.st_mode) || descriptor(name) >= 0) ? writeTo(name, data) : replace(name, data);
}
