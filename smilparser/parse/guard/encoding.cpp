// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "encoding.h"

#include "characters.h"

#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
#include <QtCore/QStringDecoder>
#else
#include <QtCore/QTextCodec>
#endif

namespace
{
struct Signature {
    QByteArray bytes;
    QByteArray encoding;
};
}

/** A byte order mark or, without one, "<" in that encoding. Both versions of Qt know these. */
static QByteArray detectEncoding(const QByteArray &bytes)
{
    // Those of four bytes first: they begin with those of two.
    static const Signature signatures[] = {
        {QByteArrayLiteral("\xff\xfe\0\0"), QByteArrayLiteral("UTF-32LE")},
        {QByteArrayLiteral("\0\0\xfe\xff"), QByteArrayLiteral("UTF-32BE")},
        {QByteArrayLiteral("<\0\0\0"),      QByteArrayLiteral("UTF-32LE")},
        {QByteArrayLiteral("\0\0\0<"),      QByteArrayLiteral("UTF-32BE")},
        {QByteArrayLiteral("\xff\xfe"),     QByteArrayLiteral("UTF-16LE")},
        {QByteArrayLiteral("\xfe\xff"),     QByteArrayLiteral("UTF-16BE")},
        {QByteArrayLiteral("<\0"),          QByteArrayLiteral("UTF-16LE")},
        {QByteArrayLiteral("\0<"),          QByteArrayLiteral("UTF-16BE")},
    };
    for (const Signature &signature : signatures) {
        if (bytes.startsWith(signature.bytes)) {
            return signature.encoding;
        }
    }
    return QByteArrayLiteral("UTF-8");
}

#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
/**
 * The last "encoding" of the XML declaration, with character references expanded; empty when there is none. The reader
 * decodes its input anew and goes on there where it is, at @p end.
 */
static QByteArray declaredEncoding(const QString &text, qint64 *end)
{
    QString encoding;
    qint64 at = 5;
    if (text.size() == at || !isSpace(text.at(at).unicode())) {
        return QByteArray();
    }
    while (at < text.size() && text.at(at) != u'>') {
        if (isQuote(text.at(at).unicode())) {
            const QStringView name = QStringView(text).first(at).trimmed().chopped(1).trimmed();
            const qint64 value = at + 1;
            at = text.indexOf(text.at(at), value);
            if (at < 0) {
                break;
            }
            if (name.endsWith(u"encoding")) {
                encoding = expandCharacters(text.mid(value, at - value));
            }
        }
        ++at;
    }
    const bool complete = at >= 0 && at < text.size();
    *end = complete ? at + 1 : -1;
    return complete ? encoding.toUtf8() : QByteArray();
}
#else
/**
 * What stands between the first two quotation marks, of whichever kind, after the first "encoding" in whatever begins
 * with "<?xml"; empty when there is none. The reader decodes its input anew and starts over.
 */
static QByteArray declaredEncoding(const QString &text, qint64 *)
{
    const int end = text.indexOf(QLatin1Char('>'));
    int at = text.indexOf(QLatin1String("encoding"));
    if (at < 0) {
        return QByteArray();
    }
    while (at < end && !isQuote(text.at(at).unicode())) {
        ++at;
    }
    const int value = ++at;
    while (at < end && !isQuote(text.at(at).unicode())) {
        ++at;
    }
    return text.mid(value, qMax(0, at - value)).toLatin1();
}
#endif

#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
static bool isKnown(const QByteArray &encoding)
{
    return QStringDecoder(encoding.constData()).isValid();
}

static QString decodeFrom(const QByteArray &encoding, const QByteArray &bytes)
{
    return QStringDecoder(encoding.constData())(bytes);
}
#else
static bool isKnown(const QByteArray &encoding)
{
    return QTextCodec::codecForName(encoding);
}

static QString decodeFrom(const QByteArray &encoding, const QByteArray &bytes)
{
    return QTextCodec::codecForName(encoding)->toUnicode(bytes);
}
#endif

Encoding::Encoding(const QByteArray &input)
    : bytes(input)
    , name(detectEncoding(input))
{
    if (isUtf8() && !bytes.startsWith("<?xml") && !bytes.startsWith("\xef\xbb\xbf<?xml")) {
        return;
    }
    const QString beginning = decode(qMin<qint64>(bytes.size(), longestDeclaration));
    if (!beginning.startsWith(QLatin1String("<?xml"))) {
        return;
    }
    const QByteArray declared = declaredEncoding(beginning, &continuation);
    if (isKnown(declared)) {
        name = declared; // as it is: Qt 5 knows some names in one letter case only
    } else {
        continuation = qMin<qint64>(continuation, 0);
    }
}

qint64 Encoding::byteOffset(qint64 index) const
{
    // The fewest that decode to so much: what ends before that place decodes to less, what ends behind it to more.
    qint64 few = 0;
    qint64 enough = bytes.size();
    while (few < enough) {
        const qint64 middle = few + (enough - few) / 2;
        if (decode(middle).size() < index) {
            few = middle + 1;
        } else {
            enough = middle;
        }
    }
    return enough;
}

QString Encoding::decode(qint64 size) const
{
    return decodeFrom(name, QByteArray::fromRawData(bytes.constData(), int(size)));
}
