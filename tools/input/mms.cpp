// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "mms.h"
#include "bounds.h"
#include "charset.h"
#include "contentid.h"
#include "mediatypes.h"
#include "wsp.h"

/** An encoded string: a text, or data that begins with the number of its character set. */
static QString textOf(Bytes value)
{
    quint64 charset = 0;
    if (value.kind == Bytes::Data && value.more()) {
        charset = value.value().number();
        value.take(value.peek() == 0x7F ? 1 : 0);
    }
    const QString text = decoded(value.all(), charset);
    return text.left(text.indexOf(QChar(0))); // all of it, if there is none
}

static QString typeOf(const Bytes &value)
{
    if (value.kind == Bytes::Text) {
        const QString text = QString::fromLatin1(value.all());
        return text.left(text.indexOf(QLatin1Char(';'))).trimmed().toLower();
    }
    return mediaType(value.number());
}

/** Reads a content type or a disposition: a value, or data with a value and parameters. Returns the value. */
static Bytes readParameters(Bytes &in, MmsPart &part, QString &start)
{
    Bytes data = in.value();
    const bool alone = data.kind != Bytes::Data;
    const Bytes result = alone ? data : data.value();
    while (!alone && data.more()) {
        const Bytes key = data.value();
        const Bytes said = data.value();
        const bool named = key.is(0x05, "name") || key.is(0x17, "name");
        if (key.is(0x0A, "start") || key.is(0x19, "start")) {
            start = bareId(textOf(said));
        } else if (part.name.isEmpty() && (named || key.is(0x06, "filename") || key.is(0x18, "filename"))) {
            part.name = bareId(textOf(said));
        }
    }
    in.bad = in.bad || data.bad;
    return result;
}

static bool readPartHeaders(Bytes in, MmsPart &part)
{
    QString start;
    part.type = typeOf(readParameters(in, part, start));
    while (in.more()) {
        const Bytes key = in.value();
        const bool disposition = key.is(0x2E, "content-disposition") || key.is(0x45, "content-disposition");
        const Bytes said = disposition ? readParameters(in, part, start) : in.value();
        if (key.is(0x40, "content-id")) {
            part.id = bareId(textOf(said));
        } else if (key.is(0x0E, "content-location")) {
            part.location = bareId(textOf(said));
        }
    }
    return !in.bad;
}

static QString readParts(Bytes in, const QString &start, MmsMessage &message)
{
    const quint64 count = in.uintvar();
    if (in.bad || count > bounds::parts) {
        return QStringLiteral("does not say how many parts it has, or has more than %1").arg(bounds::parts);
    }
    bool started = false;
    for (int i = 0; i < int(count); ++i) {
        const quint64 headersLength = in.uintvar();
        const quint64 dataLength = in.uintvar();
        const Bytes headers = in.take(headersLength);
        const Bytes data = in.take(dataLength);
        MmsPart part;
        if (in.bad || !readPartHeaders(headers, part)) {
            return QStringLiteral("is cut off in its parts (number %1 of %2), or has a length there that is wrong")
                .arg(i + 1)
                .arg(count);
        }
        part.data = data.all();
        message.parts.append(part);
        const bool starts = !started && !start.isEmpty() && (part.id == start || part.location == start);
        if (starts || (message.smil < 0 && part.type == QLatin1String("application/smil"))) {
            message.smil = i;
        }
        started = started || starts;
    }
    return QString();
}

QString decodeMms(const QByteArray &bytes, MmsMessage &message)
{
    message = MmsMessage();
    const QLatin1String numberingPlan("/TYPE=PLMN");
    MmsPart body;
    QString start;
    Bytes in{bytes.constData(), bytes.constData() + bytes.size()};
    while (body.type.isEmpty()) { // the content type is the last header
        const auto place = in.at - bytes.constData();
        const Bytes key = in.value();
        const bool last = key.is(0x04, "content-type");
        Bytes said = last ? readParameters(in, body, start) : in.value();
        if (in.bad) {
            return QStringLiteral("is cut off at byte %1, or has a length there that is wrong").arg(place);
        }
        if (last) {
            body.type = typeOf(said);
        } else if (key.is(0x0C, "x-mms-message-type") && said.number() != 0 && said.number() != 4) {
            return QStringLiteral("is a notification or a report, which has no parts");
        } else if (key.is(0x05, "date") && message.date.isNull() && said.number() <= 0xFFFFFFFF) {
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
    const bool multipart = body.type.contains(QLatin1String("multipart"));
    return multipart ? readParts(in, start, message) : QStringLiteral("has no parts");
}
