// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "input/mms.h"
#include "base/bounds.h"
#include "input/wspreader.h"

/** An encoded string: a text, or data that begins with the number of its character set. */
static QString textOf(WspReader value)
{
    SmilPart part;
    if (value.kind == WspReader::Data && value.more()) {
        part.type = QLatin1String("text/plain; charset=") + charsetName(value.value().number());
        value.take(value.peek() == 0x7F ? 1 : 0);
    }
    const QString text = part.text(value.all());
    return text.left(text.indexOf(QChar(0))); // all of it, if there is none
}

/** A text that may be quoted, which only its beginning need say. */
static QString unquoted(const WspReader &value)
{
    QString text = textOf(value);
    if (text.startsWith(QLatin1Char('"'))) {
        text.chop(text.size() > 1 && text.endsWith(QLatin1Char('"')) ? 1 : 0);
        text.remove(0, 1);
    }
    return text;
}

static QString typeOf(const WspReader &value)
{
    return value.kind == WspReader::Text ? QString::fromLatin1(value.all()) : mediaType(value.number());
}

/** Reads a content type or a disposition: a value, or data with a value and parameters. Returns the type. */
static QString readParameters(WspReader &in, SmilPart &part, QString &start)
{
    WspReader data = in.value();
    const bool alone = data.kind != WspReader::Data;
    QString type = typeOf(alone ? data : data.value());
    while (!alone && data.more()) {
        const WspReader key = data.value();
        const WspReader said = data.value();
        const bool named = key.is(0x05, "name") || key.is(0x17, "name");
        if (key.is(0x01, "charset")) {
            const QString charset = said.kind == WspReader::Text ? unquoted(said) : charsetName(said.number());
            type += charset.isEmpty() ? charset : QLatin1String("; charset=") + charset;
        } else if (key.is(0x0A, "start") || key.is(0x19, "start")) {
            start = unquoted(said);
        } else if (part.name.isEmpty() && (named || key.is(0x06, "filename") || key.is(0x18, "filename"))) {
            part.name = unquoted(said);
        }
    }
    in.bad = in.bad || data.bad;
    return type;
}

static bool readPartHeaders(WspReader in, SmilPart &part)
{
    QString start;
    part.type = readParameters(in, part, start);
    while (in.more()) {
        const WspReader key = in.value();
        if (key.is(0x2E, "content-disposition") || key.is(0x45, "content-disposition")) {
            readParameters(in, part, start);
            continue;
        }
        const WspReader said = in.value();
        if (key.is(0x40, "content-id")) {
            part.contentId = unquoted(said);
        } else if (key.is(0x0E, "content-location")) {
            part.location = unquoted(said);
        }
    }
    return !in.bad;
}

static QString readParts(WspReader in, MmsMessage &message)
{
    const quint64 count = in.uintvar();
    if (in.bad || count > bounds::parts) {
        return QStringLiteral("does not say how many parts it has, or has more than %1").arg(bounds::parts);
    }
    for (int i = 0; i < int(count); ++i) {
        const quint64 headersLength = in.uintvar();
        const quint64 dataLength = in.uintvar();
        const WspReader headers = in.take(headersLength);
        const WspReader data = in.take(dataLength);
        SmilPart part;
        if (in.bad || !readPartHeaders(headers, part)) {
            return QStringLiteral("is cut off in its parts (number %1 of %2), or has a length there that is wrong")
                .arg(i + 1)
                .arg(count);
        }
        message.parts.append(part);
        message.data.append(data.all());
    }
    return QString();
}

/** Reads a header of the message that is not its content type. */
static void readHeader(const WspReader &key, WspReader said, MmsMessage &message)
{
    const QLatin1String numberingPlan("/TYPE=PLMN");
    if (key.is(0x05, "date") && message.date.isNull() && said.number() <= 0xFFFFFFFF) {
        // The first of several only: this looks up the time zone, and a million of them take ten seconds.
        message.date = QDateTime::fromSecsSinceEpoch(qint64(said.number())).toUTC();
    } else if (key.is(0x09, "from") && said.byte() == 0x80) { // otherwise the network is asked to put it in
        message.from = textOf(said.value()).remove(numberingPlan);
    } else if (key.is(0x16, "subject")) {
        message.subject = textOf(said);
    } else if (key.is(0x17, "to") && message.to.size() < bounds::receivers) {
        message.to.append(textOf(said).remove(numberingPlan));
    }
}

QString decodeMms(const QByteArray &bytes, MmsMessage &message)
{
    message = MmsMessage();
    SmilPart body;
    WspReader in{bytes.constData(), bytes.constData() + bytes.size()};
    while (body.type.isEmpty()) { // the content type is the last header
        const auto place = in.at - bytes.constData();
        const WspReader key = in.value();
        const bool last = key.is(0x04, "content-type");
        if (last) {
            body.type = readParameters(in, body, message.start);
        }
        const WspReader said = last ? in : in.value();
        if (in.bad) {
            return QStringLiteral("is cut off at byte %1, or has a length there that is wrong").arg(place);
        }
        if (key.is(0x0C, "x-mms-message-type") && said.number() != 0 && said.number() != 4) {
            return QStringLiteral("is a notification or a report, which has no parts");
        }
        if (!last) {
            readHeader(key, said, message);
        }
    }
    const bool multipart = body.type.contains(QLatin1String("multipart"), Qt::CaseInsensitive);
    return multipart ? readParts(in, message) : QStringLiteral("has no parts");
}
