// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILTOOL_MEDIAKIND_H
#define SMILTOOL_MEDIAKIND_H

#include <smilparser/smilparser.h>

/** What the content of a part is, whatever its name and its type say. */
enum class PartKind {
    Unread,
    Picture, ///< PNG, JPEG, GIF or WebP
    OtherPicture,
    Text,
    Xml, ///< such as SMIL
    Audio,
    Video,
    Other
};

struct Content {
    QString type; ///< such as "image/png"
    PartKind kind = PartKind::Unread;
};

/** What the bytes are, as the system tells it from their beginning. */
Content recognised(const QByteArray &bytes);

/** A kind of media in the timeline. */
struct MediaKind {
    const char *element;
    char16_t sign; ///< in front of its name
    quint32 holds; ///< a bit for each kind of part that it may play; any that is not known to be something else

    bool mayPlay(PartKind kind) const { return holds & 1u << unsigned(kind); }
};

const MediaKind &mediaKind(const SmilRef &ref);

/** That of the element with this name in lower case; null if it is none of media. */
const MediaKind *mediaKind(const QString &element);

#endif
