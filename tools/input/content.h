// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILTOOL_CONTENT_H
#define SMILTOOL_CONTENT_H

#include <QtCore/QString>

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

#endif
