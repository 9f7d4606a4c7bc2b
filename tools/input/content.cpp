// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "input/content.h"
#include "base/bounds.h"

#include <QtCore/QMimeDatabase>

#include <algorithm>

/** Whether nothing in the data is but characters and ends of lines, in UTF-8. */
static bool isPlain(const QByteArray &data)
{
    const auto isControl = [](char c) { return uchar(c) < 0x20 && !QByteArray("\t\n\r").contains(c); };
    return std::none_of(data.cbegin(), data.cend(), isControl)
        && QString::fromUtf8(data.constData(), data.size()).toUtf8() == data;
}

QString recognisedType(const QByteArray &bytes)
{
    const QByteArray beginning = bytes.left(bounds::recognised);
    const QMimeType type = QMimeDatabase().mimeTypeForData(beginning);
    // A text may begin as something else does: "ID3 is what I need".
    const bool isText = type.inherits(QStringLiteral("text/plain")) || isPlain(beginning);
    return isText && !type.inherits(QStringLiteral("application/xml")) ? QStringLiteral("text/plain") : type.name();
}

QString elementName(int kind)
{
    static const char *const names[] = {"text", "img", "audio", "video", "ref"};
    return QLatin1String(names[kind]);
}
