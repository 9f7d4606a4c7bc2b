// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "part.h"

#include <QtCore/QFileInfo>
#include <QtCore/QLibraryInfo>
#include <QtCore/QMimeDatabase>
#include <QtCore/QRegularExpression>
#include <QtCore/QVersionNumber>
#include <QtGui/QImageReader>

#include <algorithm>

/** By a name if one says it, or else by the content of the file. */
static QString findType(const SmilPart &headers, const QUrl &source, const QString &file, bool isText)
{
    const QMimeDatabase types;
    const auto found = types.mimeTypesForFileName(headers.name.isEmpty() ? headers.location : headers.name);
    return !found.isEmpty()                         ? found.first().name()
        : source.scheme() == QLatin1String("image") ? QStringLiteral("image/*")
        : isText                                    ? QStringLiteral("text/plain")
        : file.isEmpty()                            ? QString()
                                                    : types.mimeTypeForFile(file, QMimeDatabase::MatchContent).name();
}

Part::Part(const QVariantMap &fields)
    : m_source(fields.value(QStringLiteral("source")).toUrl())
    , m_text(fields.value(QStringLiteral("text")).toString())
{
    headers.contentId = fields.value(QStringLiteral("contentId")).toString();
    headers.location = fields.value(QStringLiteral("location")).toString();
    headers.name = fields.value(QStringLiteral("name")).toString();
    headers.type = fields.value(QStringLiteral("type")).toString().trimmed();
    const QString media = headers.type.section(u';', 0, 0).trimmed();
    if (media.isEmpty() || media == QLatin1String("*/*")) {
        headers.type.replace(0, media.size(), findType(headers, m_source, file(), hasText()));
    }
}

/** The source as a path to a regular file or a resource; empty for all else. */
QString Part::file() const
{
    const QString path = m_source.isLocalFile()     ? m_source.toLocalFile()
        : m_source.scheme() == QLatin1String("qrc") ? QLatin1Char(':') + m_source.path()
                                                    : QString();
    return QFileInfo(path).isFile() ? path : QString();
}

QString Part::name(const QString &otherwise) const
{
    QString name = otherwise;
    for (const QString &said : {headers.contentId, headers.location, headers.name}) {
        name = said.isEmpty() ? name : said;
    }
    return shortened(name, 100).simplified();
}

QByteArray Part::content(int limit) const
{
    QFile opened(file());
    const bool isOpen = !hasText() && !opened.fileName().isEmpty() && opened.open(QIODevice::ReadOnly);
    return isOpen ? opened.read(limit) : m_text.toUtf8().left(limit);
}

QString Part::text() const
{
    const int limit = 128 * 1024; // in any charset more than is shown
    if (headers.kind() != SmilRef::Text || hasText()) {
        return headers.kind() == SmilRef::Text ? shortened(m_text, limit) : QString();
    }
    QByteArray data = content(limit + 1);
    if (data.size() > limit) { // ends within a character, perhaps, and would be no UTF-8 then
        for (int i = 0; i < 3 && (data.back() & 0xc0) == 0x80; ++i) {
            data.chop(1);
        }
        data.chop(1);
    }
    return headers.text(data);
}

/** Whether it is of a format that names no other files, as SVG may, and takes at most @p limit bytes. */
bool Part::isPicture(int limit) const
{
    static const QByteArrayList formats{"bmp", "gif", "jpeg", "jpg", "png", "wbmp", "webp"};
    const QString path = file();
    QImageReader reader(path);
    const QSize size = !path.isEmpty() && formats.contains(reader.format()) ? reader.size() : QSize();
    // For "a.png", Qt Quick would open "a@2x.png" where pixels are small.
    const auto dot = path.indexOf(QRegularExpression(QStringLiteral("(\\.9)?(\\.[^.]*)?$")));
    for (int n = 2; n <= 9 && m_source.isLocalFile(); ++n) {
        if (QFile::exists(path.left(dot) + QStringLiteral("@%1x").arg(n) + path.mid(dot))) {
            return false;
        }
    }
    return !size.isEmpty() && size.width() <= limit / 4 / size.height();
}

bool Part::moves() const
{
    return isPicture(4 * 1024 * 1024) && QImageReader(file()).format() == "gif";
}

/** Whether it lists what the player would fetch then. Most kinds are "audio", and may hide behind the tag of a song. */
static bool isPlaylist(const QString &path)
{
    QFile file(path);
    const QByteArray tag = file.open(QIODevice::ReadOnly) ? file.peek(10) : QByteArray();
    if (tag.size() == 10 && tag.startsWith("ID3")) {
        const auto digit = [&](int i, int shift) { return (tag.at(i) & 0x7f) << shift; };
        file.seek(10 + digit(6, 21) + digit(7, 14) + digit(8, 7) + digit(9, 0));
    }
    const QMimeType type = QMimeDatabase().mimeTypeForData(&file);
    const QStringList lists{QStringLiteral("text/plain"), QStringLiteral("application/xml"),
                            QStringLiteral("audio/x-scpls"), QStringLiteral("audio/x-ms-asx")};
    const auto isThat = [&](const QString &list) { return type.inherits(list); };
    return std::any_of(lists.begin(), lists.end(), isThat)
        || (file.pos() > 0 && (file.peek(3) == "ID3" || (tag.at(5) & 0x10)));
}

bool Part::isPlayable(int as) const
{
    const QString path = m_source.isLocalFile() ? file() : QString();
    const QVersionNumber qt = QLibraryInfo::version();
    const bool films = qt.majorVersion() == 5 || qt >= QVersionNumber(6, 5); // Qt 6.4 corrupts memory with them
    if (path.isEmpty() || !(as == SmilRef::Audio || (films && as == SmilRef::Video))) {
        return false;
    }
    const QString type = QMimeDatabase().mimeTypeForFile(path, QMimeDatabase::MatchContent).name();
    return (type.startsWith(QLatin1String("audio/")) || type == QLatin1String("application/ogg")
            || (films && type.startsWith(QLatin1String("video/"))))
        && !isPlaylist(path);
}

QUrl Part::source(int as) const
{
    const bool mayBe = as == SmilRef::Img ? m_source.scheme() == QLatin1String("image") || isPicture(128 * 1024 * 1024)
                                          : isPlayable(as);
    return mayBe ? m_source : QUrl();
}

QString shortened(const QString &text, int length)
{
    return text.size() > length ? text.left(text.at(length).isLowSurrogate() ? length - 1 : length) : text;
}
