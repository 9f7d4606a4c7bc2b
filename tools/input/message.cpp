// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "input/message.h"
#include "base/bounds.h"
#include "base/escaping.h"
#include "input/content.h"

#include <QtCore/QFile>
#include <QtCore/QMimeDatabase>

#include <algorithm>
#include <cstdio>

MessageParts::MessageParts(const QList<SmilPart> &headers)
    : m_areKnown(true)
    , m_headers(headers)
    , m_parts(headers.size())
{
    // What identifies one part goes before what another is merely called.
    for (QString SmilPart::*const name : {&SmilPart::contentId, &SmilPart::location, &SmilPart::name}) {
        for (int i = 0; i < size(); ++i) {
            const QString &said = headers.at(i).*name;
            m_names.add(i, said);
            m_parts[i].name = said.isEmpty() ? m_parts.at(i).name : said;
        }
    }
}

/** Nothing is read yet: the folder may hold much that the message does not name. */
static QList<SmilPart> headersOf(const Folder &folder, const QString &smil)
{
    const QMimeDatabase types;
    const QString smilName = nameIn(folder.path(), smil);
    QList<SmilPart> headers;
    for (const QString &name : folder.files()) {
        SmilPart part;
        part.name = name;
        part.type = name == smilName ? QStringLiteral("application/smil")
                                     : types.mimeTypeForFile(name, QMimeDatabase::MatchExtension).name();
        headers.append(part);
    }
    return headers;
}

MessageParts::MessageParts(const Folder &folder, const QString &smil)
    : MessageParts(headersOf(folder, smil))
{
    m_folder = folder;
}

MessageParts::MessageParts(const MmsMessage &message)
    : MessageParts(message.parts)
{
    for (int i = 0; i < size(); ++i) {
        m_parts[i].data = message.data.at(i);
    }
}

const MessageParts::Part &MessageParts::read(int index)
{
    Part &part = m_parts[index];
    if (part.type.isNull() && part.problem.isEmpty()) {
        part.problem = m_folder.path().isNull() ? QString() : m_folder.read(part.name, part.data);
        part.type = part.problem.isEmpty() ? recognisedType(part.data) : QString();
    }
    return part;
}

QString MessageParts::beginning(int part, int most) const
{
    // No broken character at the end: what is not all UTF-8 would be taken for Latin-1.
    const QByteArray &data = at(part).data;
    auto size = qMin<qsizetype>(data.size(), 4 * qsizetype(most));
    while (size > 0 && size < data.size() && (uchar(data.at(size)) & 0xc0) == 0x80) {
        --size;
    }
    return m_headers.at(part).text(data.left(size)).left(most);
}

QStringList MessageParts::problems(const QString &file) const
{
    const QString place = m_folder.path().isNull() ? file : m_folder.path();
    QStringList lines;
    for (const Part &part : m_parts) {
        if (!part.problem.isEmpty()) {
            lines.append(QStringLiteral("%1/%2: %3").arg(place, part.name, part.problem));
        }
    }
    return lines;
}

static QString readFile(const QString &name, QByteArray &bytes)
{
    QFile file(name);
    if (!(name == QLatin1String("-") ? file.open(stdin, QIODevice::ReadOnly) : file.open(QIODevice::ReadOnly))) {
        return file.errorString();
    }
    // A pipe gives what is there so far, and nothing at its end only.
    QByteArray more;
    qint64 largest = 0;
    do {
        largest = isMms(bytes) ? bounds::message : bounds::presentation;
        more = file.read(largest + 1 - bytes.size());
        bytes += more;
    } while (!more.isEmpty());
    return file.error() != QFileDevice::NoError ? file.errorString()
        : bytes.size() > largest                ? QStringLiteral("larger than %1 MiB").arg(largest / bounds::mebibyte)
                                                : QString();
}

/** The part that is the SMIL: the one to start with, or else the first; -1 for none. */
static int findSmil(const MmsMessage &mms, const MessageParts &parts)
{
    const int start = parts.find(mms.start);
    if (start >= 0 && mms.parts.at(start).isSmil()) {
        return start;
    }
    const auto first =
        std::find_if(mms.parts.cbegin(), mms.parts.cend(), [](const SmilPart &part) { return part.isSmil(); });
    return first == mms.parts.cend() ? -1 : int(first - mms.parts.cbegin());
}

static QString takeApart(const QByteArray &bytes, Message &message)
{
    const QString problem = decodeMms(bytes, message.mms);
    if (!problem.isEmpty()) {
        return problem;
    }
    message.parts = MessageParts(message.mms);
    const QByteArray smil = message.mms.data.value(findSmil(message.mms, message.parts));
    if (smil.size() > bounds::presentation) {
        return QStringLiteral("the SMIL part is larger than 1 MiB");
    }
    message.smil = smil;
    return QString();
}

/** Whether the input begins as XML does in any encoding: with "<", behind nothing but a byte order mark and blanks. */
static bool looksLikeXml(const QByteArray &bytes)
{
    const QByteArray before = QByteArrayLiteral("\0\t\n\r \xef\xbb\xbf\xfe\xff");
    const auto first = std::find_if(bytes.cbegin(), bytes.cend(), [&before](char c) { return !before.contains(c); });
    return first == bytes.cend() || *first == '<';
}

static QString missingElement(SmilParser::Outcome outcome, const QDomDocument &dom)
{
    const QString root = quoted(dom.documentElement().tagName().left(bounds::quotation));
    return outcome == SmilParser::NoHead ? QStringLiteral("Fail to find SMIL head!")
        : outcome == SmilParser::NoBody
        ? QStringLiteral("Fail to find SMIL body!")
        : QStringLiteral("Fail to find SMIL document! The root element is %1, not \"smil\".").arg(root);
}

static void parse(SmilParser::ReadOptions options, Message &message)
{
    SmilParser parser(message.smil);
    Problem problem{message.file, QString()};
    message.document = parser.parse(options, &message.outcome, &problem.text, &problem.line, &problem.column);
    message.dom = parser.dom();
    if (message.outcome == SmilParser::Complete) {
        return;
    }
    if (message.outcome != SmilParser::NotWellFormed) {
        problem.text = missingElement(message.outcome, message.dom);
    } else if (!looksLikeXml(message.smil)) {
        problem.text.prepend(QLatin1String("this is no XML: "));
    }
    message.problem = problem;
}

QString Problem::toString() const
{
    const QString place = line != 0 ? QStringLiteral(":%1:%2").arg(line).arg(column) : QString();
    return of + place + QLatin1String(": ") + text;
}

SmilSlideshow Message::slideshow() const
{
    QList<SmilPart> headers = parts.headers();
    if (mms.parts.isEmpty()) {
        // A folder may hold more than the message. What is SMIL is on no slide, unless it is named.
        for (SmilPart &part : headers) {
            part.type = QStringLiteral("application/smil");
        }
    }
    return SmilSlideshow(smil, headers, SmilParser::ClockDurations);
}

Message readBytes(const QByteArray &bytes, const QString &file, const QString &folder, SmilParser::ReadOptions options)
{
    Message message;
    message.file = file;
    QString problem;
    if (isMms(bytes)) {
        problem = takeApart(bytes, message);
        message.problem = {problem.isEmpty() ? QString() : file, problem};
    } else {
        message.smil = bytes;
        const Folder files = folder.isEmpty() ? Folder() : Folder(folder, problem);
        if (!problem.isEmpty()) {
            message.problem = {folder, problem};
        } else if (!folder.isEmpty()) {
            message.parts = MessageParts(files, file);
        }
    }
    if (message.problem.isNone() && !(isMms(bytes) && message.smil.isEmpty())) {
        parse(options, message);
    }
    return message;
}

Message readMessage(const QString &file, const QString &folder, SmilParser::ReadOptions options)
{
    QByteArray bytes;
    Message message;
    const QString problem = readFile(file, bytes);
    if (problem.isEmpty()) {
        return readBytes(bytes, file, folder, options);
    }
    message.file = file;
    message.problem = {file, problem};
    return message;
}

QList<SmilSlide> firstSlides(const SmilSlideshow &show)
{
    QList<SmilSlide> slides;
    qsizetype cues = 0;
    for (int i = 0; i < qMin(show.count(), bounds::frames) && cues < bounds::cues; ++i) {
        SmilSlide slide = show.slide(i);
        cues += slide.cues.size();
        slide.cues = slide.cues.mid(0, bounds::media);
        slides.append(slide);
    }
    return slides;
}
