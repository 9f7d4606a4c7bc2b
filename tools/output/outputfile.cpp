// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "output/outputfile.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QSaveFile>

#include <sys/stat.h>
#include <unistd.h>

/** Asks for that of a file; "-" is standard input. */
static bool status(const QString &input, struct stat &status)
{
    return input == QLatin1String("-") ? fstat(STDIN_FILENO, &status) == 0
                                       : stat(QFile::encodeName(input).constData(), &status) == 0;
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
    const bool opened = out.open(QIODevice::WriteOnly | QIODevice::ExistingOnly | QIODevice::Unbuffered);
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
    return isThere && !S_ISREG(status.st_mode) ? writeTo(name, data) : replace(name, data);
}
