// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "output/outputfile.h"

#include <QtCore/QFileInfo>
#include <QtCore/QSaveFile>

#include <filesystem>
#include <unistd.h>

// What a buffer loses in the end, QSaveFile does not report.
static const QIODevice::OpenMode unbuffered = QIODevice::WriteOnly | QIODevice::Unbuffered;

static bool writeAll(QFileDevice &out, const QByteArray &data)
{
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
    if (!out.open(unbuffered | QIODevice::NewOnly)) {
        return out.errorString();
    }
    const bool isWhole = writeAll(out, data) && (out.close(), out.error() == QFileDevice::NoError);
    const QString problem = isWhole ? QString() : out.errorString();
    if (!isWhole) {
        out.remove();
    }
    return problem;
}

bool isSameFile(const QString &input, const QString &output)
{
    const auto path = [](const QString &name) { return std::filesystem::path(QFile::encodeName(name).toStdString()); };
    const auto read = path(input == QLatin1String("-") ? QStringLiteral("/dev/stdin") : input);
    std::error_code error;
    return std::filesystem::is_regular_file(read, error) && std::filesystem::equivalent(read, path(output), error);
}

QString writeFile(const QString &name, const QByteArray &data)
{
    const QFileInfo there(name);
    if (name.isNull() || (there.exists() && !there.isFile())) {
        QFile out(name);
        const bool isOpen =
            name.isNull() ? out.open(STDOUT_FILENO, unbuffered) : out.open(unbuffered | QIODevice::ExistingOnly);
        return isOpen && writeAll(out, data) ? QString() : out.errorString();
    }
    QSaveFile out(name);
    return out.open(unbuffered) && writeAll(out, data) && out.commit() ? QString() : out.errorString();
}
