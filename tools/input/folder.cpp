// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "folder.h"
#include "bounds.h"

#include <QtCore/QDirIterator>
#include <QtCore/QFile>

#include <fcntl.h>
#include <sys/stat.h>

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
    const QByteArray path = QFile::encodeName(m_path + QLatin1Char('/') + name);
    const int descriptor = ::open(path.constData(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    QFile file;
    struct stat status;
    if (descriptor < 0 || !file.open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle)
        || ::fstat(descriptor, &status) != 0 || !S_ISREG(status.st_mode)) {
        return QStringLiteral("cannot be read");
    }
    if (status.st_size > bounds::file) {
        return QStringLiteral("is larger than %1 MiB").arg(bounds::file / bounds::mebibyte);
    }
    if (status.st_size > m_left) {
        return QStringLiteral("would be more than %1 MiB with the files before it")
            .arg(bounds::folder / bounds::mebibyte);
    }
    data = file.read(status.st_size);
    m_left -= status.st_size;
    return file.error() == QFileDevice::NoError ? QString() : file.errorString();
}

QString nameIn(const QString &folder, const QString &file)
{
    const QFileInfo found(QFileInfo(file).canonicalFilePath());
    return found.path() == QFileInfo(folder).canonicalFilePath() ? found.fileName() : QString();
}
