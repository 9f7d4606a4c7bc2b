// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "decodedtext.h"

#include "characters.h"

#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
#include <QtCore/QStringDecoder>
#else
#include <QtCore/QTextCodec>

#include <memory>
#endif

namespace
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
class Decoder
{
public:
    explicit Decoder(const QByteArray &encoding)
        : decoder(encoding.constData())
    {
    }
    bool isValid() const { return decoder.isValid(); }
    QString decode(const char *data, qint64 size) { return decoder(QByteArrayView(data, size)); }

private:
    QStringDecoder decoder;
};
#else
class Decoder
{
public:
    explicit Decoder(const QByteArray &encoding)
    {
        if (const QTextCodec *const codec = QTextCodec::codecForName(encoding)) {
            decoder.reset(codec->makeDecoder());
        }
    }
    bool isValid() const { return bool(decoder); }
    QString decode(const char *data, qint64 size) { return decoder->toUnicode(data, int(size)); }

private:
    std::unique_ptr<QTextDecoder> decoder;
};
#endif

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
    if (!text.startsWith(QLatin1String("<?xml")) || text.size() == at || !isSpace(text.at(at).unicode())) {
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
    *end = complete ? at : -1;
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
    if (!text.startsWith(QLatin1String("<?xml")) || at < 0) {
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

DecodedText::DecodedText(const QByteArray &input)
    : bytes(input)
    , encoding(detectEncoding(input))
{
    const QString beginning = decode(qMin<qint64>(bytes.size(), longestDeclaration));
    const QByteArray declared = declaredEncoding(beginning, &continuation);
    if (!declared.isEmpty() && Decoder(declared).isValid()) {
        encoding = declared;
    } else {
        continuation = qMin<qint64>(continuation, 0);
    }
    decoded = decode(bytes.size());
}

QString DecodedText::decode(qint64 size) const
{
    return Decoder(encoding).decode(bytes.constData(), size);
}

qint64 DecodedText::byteOffset(qint64 index) const
{
    // In blocks first, then byte by byte: there is no other way to tell in any encoding.
    const qint64 block = 4096;
    qint64 offset = 0;
    Decoder blocks(encoding);
    for (qint64 length = 0; offset + block <= bytes.size(); offset += block) {
        length += blocks.decode(bytes.constData() + offset, block).size();
        if (length > index) {
            break;
        }
    }
    Decoder single(encoding);
    for (qint64 length = single.decode(bytes.constData(), offset).size(); offset < bytes.size() && length < index;
         ++offset) {
        length += single.decode(bytes.constData() + offset, 1).size();
    }
    return offset;
}
