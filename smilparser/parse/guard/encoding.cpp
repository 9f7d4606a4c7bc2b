// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "guard.h"

#include "smilparser/model/charset.h"

#include <QtCore/QString>
#include <QtCore/QStringList>

/** By a byte order mark or, without one, "<" in that encoding. */
static QByteArray detectEncoding(const QByteArray &bytes)
{
    // Those of four bytes first: they begin with those of two.
    static const QByteArray signatures[][2] = {
        {QByteArrayLiteral("\xff\xfe\0\0"), QByteArrayLiteral("UTF-32LE")},
        {QByteArrayLiteral("\0\0\xfe\xff"), QByteArrayLiteral("UTF-32BE")},
        {QByteArrayLiteral("<\0\0\0"), QByteArrayLiteral("UTF-32LE")},
        {QByteArrayLiteral("\0\0\0<"), QByteArrayLiteral("UTF-32BE")},
        {QByteArrayLiteral("\xff\xfe"), QByteArrayLiteral("UTF-16LE")},
        {QByteArrayLiteral("\xfe\xff"), QByteArrayLiteral("UTF-16BE")},
        {QByteArrayLiteral("<\0"), QByteArrayLiteral("UTF-16LE")},
        {QByteArrayLiteral("\0<"), QByteArrayLiteral("UTF-16BE")},
    };
    for (const auto &signature : signatures) {
        if (bytes.startsWith(signature[0])) {
            return signature[1];
        }
    }
    return QByteArrayLiteral("UTF-8");
}

static bool isUtf8(const QByteArray &encoding)
{
    return qstricmp(encoding.constData(), "UTF-8") == 0;
}

/** Not "<?xml-stylesheet" and its like, though Qt 5 would take an encoding from those too. */
static bool isDeclaration(const QString &text)
{
    return text.startsWith(QLatin1String("<?xml")) && text.size() > 5 && QStringLiteral(" \t\r\n").contains(text.at(5));
}

/** The encoding that an XML declaration states, or @p detected when it states none; null when it cannot be told. */
static QByteArray declaredEncoding(const QString &declaration, const QByteArray &detected)
{
    const QStringList parts = declaration.split(QLatin1String("encoding"));
    if (declaration.isEmpty() || parts.size() > 2) {
        return QByteArray();
    }
    if (parts.size() == 1) {
        return detected;
    }
    const QString value = parts.at(1).trimmed().mid(1).trimmed(); // behind the "="
    const QString quote = value.left(1);
    const bool quoted = quote == QLatin1String("'") || quote == QLatin1String("\"");
    return quoted ? value.section(quote, 1, 1).toUtf8() : QByteArray();
}

/** Puts U+FFFD in the place of a second byte order mark, which is an error, but Qt 6 would drop it. */
static void replaceSecondMark(QString &text)
{
    if (text.startsWith(QChar(QChar::ByteOrderMark))) {
        text[0] = QChar::ReplacementCharacter;
    }
}

std::optional<QByteArray> decode(const QByteArray &bytes, bool knownUtf8)
{
    QByteArray encoding = detectEncoding(bytes);
    const bool utf8 = isUtf8(encoding);
    // Behind a mark, too, Qt 5 would take an encoding from an instruction. Qt 6 would only refuse what is refused here.
    if (utf8 && !bytes.startsWith("<?xml") && !bytes.startsWith("\xef\xbb\xbf<?xml")) {
        return std::nullopt;
    }
    const QString beginning = decodeText(encoding, bytes.left(maxDeclaration), Malformed::Stop);
    const bool declares = isDeclaration(beginning);
    if (declares) {
        encoding = declaredEncoding(beginning.left(beginning.indexOf(QLatin1Char('>')) + 1), encoding);
    }
    if (utf8 && declares && isUtf8(encoding)) {
        return std::nullopt;
    }
    QString text = decodeText(knownUtf8 ? QByteArrayLiteral("UTF-8") : encoding, bytes, Malformed::Stop);
    replaceUnpairedSurrogates(text);
    replaceSecondMark(text);
    return text.toUtf8();
}
