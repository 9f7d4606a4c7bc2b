// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "parts.h"

#include <QtCore/QDirIterator>
#include <QtCore/QFile>
#include <QtCore/QMimeDatabase>

#include <algorithm>

#include <fcntl.h>
#include <sys/stat.h>

#include <utility>

static const qint64 mebibyte = 1024 * 1024;
static const qint64 largestFile = 8 * mebibyte;
// A folder of a message has a few files. These keep a folder of something else from taking all memory.
static const qint64 largestFolder = 64 * mebibyte;
static const int mostEntries = 10000;

static Parts::Kind kindOf(const QMimeType &type)
{
    const QString name = type.name();
    if (name == QLatin1String("image/png") || name == QLatin1String("image/jpeg") || name == QLatin1String("image/gif")
        || name == QLatin1String("image/webp")) {
        return Parts::Picture;
    }
    if (name.startsWith(QLatin1String("image/"))) {
        return Parts::OtherPicture;
    }
    if (name.startsWith(QLatin1String("audio/"))) {
        return Parts::Audio;
    }
    if (name.startsWith(QLatin1String("video/"))) {
        return Parts::Video;
    }
    if (type.inherits(QStringLiteral("application/xml"))) { // is a text too
        return Parts::Xml;
    }
    // An empty part has a type of its own; it can be nothing but an empty text.
    return type.inherits(QStringLiteral("text/plain")) || name == QLatin1String("application/x-zerosize")
        ? Parts::Text
        : Parts::Other;
}

/** Whether nothing in the data is but characters and ends of lines, in UTF-8. */
static bool isPlain(const QByteArray &data)
{
    const auto isControl = [](char c) { return uchar(c) < 0x20 && !QByteArray("\t\n\r").contains(c); };
    return std::none_of(data.cbegin(), data.cend(), isControl)
        && QString::fromUtf8(data.constData(), data.size()).toUtf8() == data;
}

static void recognise(Parts::Part &part)
{
    // What tells types apart is at the beginning.
    const QByteArray data = part.data.left(16 * 1024);
    const QMimeType type = QMimeDatabase().mimeTypeForData(data);
    part.type = type.name();
    part.kind = kindOf(type);
    // A text may begin as something else does: "ID3 is what I need".
    const bool isText = part.kind == Parts::Text || type.inherits(QStringLiteral("application/xml"));
    if (!isText && isPlain(data)) {
        part.type = QStringLiteral("text/plain");
        part.kind = Parts::Text;
    }
}

void Parts::add(const QString &name, const QByteArray &data)
{
    Part part;
    part.name = name;
    part.data = data;
    m_parts.append(part);
}

/** The first part of a name keeps it. */
void Parts::call(int part, const QString &name)
{
    if (!name.isEmpty()) {
        m_names.insert(name, m_names.value(name, part));
        const QString folded = name.toCaseFolded();
        m_foldedNames.insert(folded, m_foldedNames.value(folded, part));
    }
}

Parts Parts::ofFolder(const QString &folder, const QString &smil, QString &problem)
{
    if (!QFileInfo(folder).isDir() || !QFileInfo(folder).isReadable()) {
        problem = QStringLiteral("is not a folder that can be read");
        return Parts();
    }
    QStringList names;
    QDirIterator entries(folder, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    for (int i = 0; entries.hasNext(); ++i) {
        if (i == mostEntries) {
            problem = QStringLiteral("has more than %1 files").arg(mostEntries);
            return Parts();
        }
        entries.next();
        const QFileInfo entry = entries.fileInfo();
        if (!entry.isSymLink() && entry.isFile()) {
            names.append(entry.fileName());
        }
    }
    names.sort(); // a folder is in no order
    Parts parts;
    parts.m_folder = folder;
    parts.m_left = largestFolder;
    for (const QString &name : std::as_const(names)) {
        parts.call(parts.size(), name);
        parts.add(name);
    }
    const QFileInfo presentation(QFileInfo(smil).canonicalFilePath());
    if (presentation.path() == QFileInfo(folder).canonicalFilePath()) {
        parts.m_smil = parts.m_names.value(presentation.fileName(), -1);
    }
    return parts;
}

Parts Parts::ofMessage(const MmsMessage &message)
{
    Parts parts;
    parts.m_smil = message.smil;
    for (const MmsPart &part : message.parts) {
        const QString &place = part.location.isEmpty() ? part.id : part.location;
        parts.add(part.name.isEmpty() ? place : part.name, part.data);
    }
    // What identifies one part goes before what another is merely called.
    for (QString MmsPart::*const name : {&MmsPart::id, &MmsPart::location, &MmsPart::name}) {
        for (int i = 0; i < parts.size(); ++i) {
            parts.call(i, message.parts.at(i).*name);
        }
    }
    return parts;
}

int Parts::find(const QString &src) const
{
    const QString bare = bareId(src);
    const QByteArray bytes = QByteArray::fromPercentEncoding(bare.toUtf8());
    const QString decodedName = QString::fromUtf8(bytes.constData(), bytes.size());
    for (const QString &name : {src, bare, decodedName}) {
        const auto found = m_names.constFind(name);
        if (found != m_names.constEnd()) {
            return *found;
        }
    }
    return m_foldedNames.value(decodedName.toCaseFolded(), -1);
}

const Parts::Part &Parts::read(int index)
{
    Part &part = m_parts[index];
    if (part.kind == Unread && part.problem.isEmpty()) {
        if (!m_folder.isNull()) {
            part.problem = readFile(part);
        }
        if (part.problem.isEmpty()) {
            recognise(part);
        }
    }
    return part;
}

QString Parts::readFile(Part &part)
{
    // Since the folder was listed, the file may have become a link, or something that waits for a writer.
    const QByteArray path = QFile::encodeName(m_folder + QLatin1Char('/') + part.name);
    const int descriptor = ::open(path.constData(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    QFile file;
    struct stat status;
    if (descriptor < 0 || !file.open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle)
        || ::fstat(descriptor, &status) != 0 || !S_ISREG(status.st_mode)) {
        return QStringLiteral("cannot be read");
    }
    if (status.st_size > largestFile) {
        return QStringLiteral("is larger than %1 MiB").arg(largestFile / mebibyte);
    }
    if (status.st_size > m_left) {
        return QStringLiteral("would be more than %1 MiB with the files before it").arg(largestFolder / mebibyte);
    }
    part.data = file.read(status.st_size);
    m_left -= status.st_size;
    return file.error() == QFileDevice::NoError ? QString() : file.errorString();
}

QString bareId(const QString &id)
{
    QString bare = id;
    for (const QLatin1String start : {QLatin1String("\""), QLatin1String("cid:"), QLatin1String("<")}) {
        bare.remove(0, bare.startsWith(start, Qt::CaseInsensitive) ? int(start.size()) : 0);
    }
    for (const char end : {'"', '>'}) {
        bare.chop(bare.endsWith(QLatin1Char(end)) ? 1 : 0);
    }
    return bare;
}
