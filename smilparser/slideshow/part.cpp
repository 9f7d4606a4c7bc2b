// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "smilparser/model/charset.h"

#include <smilparser/smilslideshow.h>

class SmilPartData : public QSharedData
{
};

SmilPart::SmilPart() = default;
SmilPart::SmilPart(const SmilPart &other) = default;
SmilPart::SmilPart(SmilPart &&other) noexcept = default;
SmilPart &SmilPart::operator=(const SmilPart &other) = default;
SmilPart &SmilPart::operator=(SmilPart &&other) noexcept = default;
SmilPart::~SmilPart() = default;

/** The type alone, as it is compared. */
static QString mediaType(const QString &contentType)
{
    return contentType.section(u';', 0, 0).trimmed().toLower();
}

/** The parameter "charset" of a content type, in lower case; null when it is not stated. */
static QByteArray charsetOf(const QString &contentType)
{
    bool quoted = false;
    auto begin = contentType.begin();
    for (auto at = begin;; ++at) {
        if (at == contentType.end() || (*at == u';' && !quoted)) {
            const QString parameter(begin, int(at - begin));
            if (parameter.section(u'=', 0, 0).trimmed().toLower() == QLatin1String("charset")) {
                return parameter.section(u'=', 1).remove(u'"').trimmed().toLower().toUtf8();
            }
            if (at == contentType.end()) {
                return QByteArray();
            }
            begin = at + 1;
        } else if (*at == u'"') {
            quoted = !quoted;
        }
    }
}

/** The charset that counts: phones state those of ASCII and UTF-8 whatever the bytes are. */
static QByteArray charsetToUse(const QByteArray &stated)
{
    for (const char *const vague : {"us-ascii", "ascii", "ansi_x3.4-1968", "utf-8"}) {
        if (stated == vague) {
            return QByteArray();
        }
    }
    const bool bigEndian = stated == "utf-16" || stated == "iso-10646-ucs-2"; // as there is no byte order mark
    return bigEndian ? QByteArrayLiteral("utf-16be") : stated;
}

static QString decoded(const QByteArray &charset, const QByteArray &data)
{
    QString text = decodeText(charset, data, Malformed::Replace);
    replaceUnpairedSurrogates(text);
    return text;
}

bool SmilPart::isSmil() const
{
    const QString media = mediaType(type);
    return media == QLatin1String("application/smil") || media == QLatin1String("application/x-smil")
        || media == QLatin1String("application/smil+xml");
}

SmilRef::Type SmilPart::kind() const
{
    const QString media = mediaType(type);
    if (media.startsWith(QLatin1String("image/"))) {
        return SmilRef::Img;
    }
    if (media.startsWith(QLatin1String("audio/"))) {
        return SmilRef::Audio;
    }
    if (media.startsWith(QLatin1String("video/"))) {
        return SmilRef::Video;
    }
    return media == QLatin1String("text/plain") ? SmilRef::Text : SmilRef::Ref;
}

QString SmilPart::text(const QByteArray &data) const
{
    static const QByteArray marks[][2] = {
        {QByteArrayLiteral("\xef\xbb\xbf"), QByteArrayLiteral("utf-8")},
        {QByteArrayLiteral("\xfe\xff"), QByteArrayLiteral("utf-16be")},
        {QByteArrayLiteral("\xff\xfe"), QByteArrayLiteral("utf-16le")},
    };
    for (const auto &mark : marks) {
        if (data.startsWith(mark[0])) {
            return decoded(mark[1], data.mid(mark[0].size()));
        }
    }
    const QByteArray charset = charsetToUse(charsetOf(type));
    QString text = charset.isEmpty() ? QString() : decoded(charset, data);
    if (text.isEmpty()) {
        // With their size: without it, Qt 5 ends the text at the first U+0000.
        text = QString::fromUtf8(data.constData(), data.size());
        if (text.toUtf8() != data) {
            text = QString::fromLatin1(data.constData(), data.size());
        }
    }
    return text;
}

bool SmilPart::operator==(const SmilPart &other) const
{
    return contentId == other.contentId && location == other.location && name == other.name && type == other.type;
}

bool SmilPart::operator!=(const SmilPart &other) const
{
    return !(*this == other);
}
