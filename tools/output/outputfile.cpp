// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "output/outputfile.h"

#include <QtCore/QFile>
#include <QtCore/QSaveFile>

#include <sys/stat.h>

static bool writeAll(QFileDevice &out, QIODevice::OpenMode mode, const QByteArray &data)
{
    // What a buffer loses in the end, QSaveFile does not report.
    if (!out.open(mode | QIODevice::WriteOnly | QIODevice::Unbuffered)) {
        return false;
    }
    // A disk that takes a part of the data says why it takes no more when it is given the rest.
    qint64 written = 0;
    for (qint64 more = 1; more > 0 && written < data.size(); written += more) {
        more = out.write(data.constData() + written, data.size() - written);
    }
    return written == data.size();
}

QString createFile(const QString &name, const QByteArray &data)
{
    QFile out(name);
    if (!writeAll(out, QIODevice::NewOnly, data)) {
        const QString problem = out.errorString();
        if (out.isOpen()) {
            out.remove();
        }
        return problem;
    }
    out.close();
    return out.error() == QFileDevice::NoError ? QString() : out.errorString();
}

bool isSameFile(const QString &input, const QString &output)
{
    const QString name = input == QLatin1String("-") ? QStringLiteral("/dev/stdin") : input;
    struct stat read;
    struct stat written;
    return stat(QFile::encodeName(name).constData(), &read) == 0 && S_ISREG(read.st_mode)
        && stat(QFile::encodeName(output).constData(), &written) == 0 && read.st_dev == written.st_dev
        && read.st_ino == written.st_ino;
}

QString writeFile(const QString &name, const QByteArray &data)
{
    struct stat status;
    if (stat(QFile::encodeName(name).constData(), &status) == 0 && !S_ISREG(status.st_mode)) {
        QFile out(name);
        return writeAll(out, QIODevice::ExistingOnly, data) ? QString() : out.errorString();
    }
    QSaveFile out(name);
    return writeAll(out, QIODevice::NotOpen, data) && out.commit() ? QString() : out.errorString();
}
