// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "content.h"
#include "bounds.h"

#include <QtCore/QMimeDatabase>

#include <algorithm>

static PartKind kindOf(const QMimeType &type)
{
    const QString name = type.name();
    if (name == QLatin1String("image/png") || name == QLatin1String("image/jpeg") || name == QLatin1String("image/gif")
        || name == QLatin1String("image/webp")) {
        return PartKind::Picture;
    }
    if (name.startsWith(QLatin1String("image/"))) {
        return PartKind::OtherPicture;
    }
    if (name.startsWith(QLatin1String("audio/"))) {
        return PartKind::Audio;
    }
    if (name.startsWith(QLatin1String("video/"))) {
        return PartKind::Video;
    }
    if (type.inherits(QStringLiteral("application/xml"))) { // is a text too
        return PartKind::Xml;
    }
    // An empty part has a type of its own; it can be nothing but an empty text.
    return type.inherits(QStringLiteral("text/plain")) || name == QLatin1String("application/x-zerosize")
        ? PartKind::Text
        : PartKind::Other;
}

/** Whether nothing in the data is but characters and ends of lines, in UTF-8. */
static bool isPlain(const QByteArray &data)
{
    const auto isControl = [](char c) { return uchar(c) < 0x20 && !QByteArray("\t\n\r").contains(c); };
    return std::none_of(data.cbegin(), data.cend(), isControl)
        && QString::fromUtf8(data.constData(), data.size()).toUtf8() == data;
}

Content recognised(const QByteArray &bytes)
{
    const QByteArray beginning = bytes.left(bounds::recognised);
    const QMimeType type = QMimeDatabase().mimeTypeForData(beginning);
    const PartKind kind = kindOf(type);
    // A text may begin as something else does: "ID3 is what I need".
    const bool isText = kind == PartKind::Text || type.inherits(QStringLiteral("application/xml"));
    if (!isText && isPlain(beginning)) {
        return {QStringLiteral("text/plain"), PartKind::Text};
    }
    return {type.name(), kind};
}
