// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "input/files.h"
#include "base/bounds.h"

#include <QtCore/QDirIterator>
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

Folder::Folder(const QString &path, QString &problem)
    : m_path(path)
    , m_left(bounds::folder)
{
    if (!QFileInfo(path).isDir() || !QFileInfo(path).isReadable()) {
        problem = QStringLiteral("is not a folder that can be read");
        return;
    }
    QStringList names;
    QDirIterator entries(path, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    for (int i = 0; entries.hasNext(); ++i) {
        if (i == bounds::files) {
            problem = QStringLiteral("has more than %1 files").arg(bounds::files);
            return;
        }
        entries.next();
        const QFileInfo entry = entries.fileInfo();
        if (!entry.isSymLink() && entry.isFile()) {
            names.append(entry.fileName());
        }
    }
    names.sort(); // a folder is in no order
    m_files = names;
}

QString Folder::read(const QString &name, QByteArray &data)
{
    // Since the folder was listed, the file may have become a link, or something that waits for a writer.
    QFile file;
    if (!openPlainFile(m_path + QLatin1Char('/') + name, Links::Refused, file).isEmpty()) {
        return QStringLiteral("cannot be read");
    }
    const qint64 size = file.size();
    if (size > bounds::file) {
        return QStringLiteral("is larger than %1 MiB").arg(bounds::file / bounds::mebibyte);
    }
    if (size > m_left) {
        return QStringLiteral("would be more than %1 MiB with the files before it")
            .arg(bounds::folder / bounds::mebibyte);
    }
    data = file.read(size);
    m_left -= size;
    return file.error() == QFileDevice::NoError ? QString() : file.errorString();
}

QString nameIn(const QString &folder, const QString &file)
{
    const QFileInfo found(QFileInfo(file).canonicalFilePath());
    return found.path() == QFileInfo(folder).canonicalFilePath() ? found.fileName() : QString();
}
