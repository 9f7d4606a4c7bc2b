// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "message.h"
#include "bounds.h"
#include "escaping.h"

#include <QtCore/QFile>

#include <algorithm>
#include <cstdio>

/** Reads up to @p size bytes in all. */
static void readUpTo(QFile &file, qint64 size, QByteArray &bytes)
{
    // A pipe gives what is there so far, and nothing at its end only.
    QByteArray more;
    do {
        more = file.read(size - bytes.size());
        bytes += more;
    } while (!more.isEmpty());
}

static QString readFile(const QString &name, QByteArray &bytes)
{
    QFile file(name);
    const bool opened =
        name == QLatin1String("-") ? file.open(stdin, QIODevice::ReadOnly) : file.open(QIODevice::ReadOnly);
    qint64 largest = bounds::presentation;
    if (opened) {
        readUpTo(file, largest + 1, bytes);
        if (isMms(bytes)) {
            largest = bounds::message;
            readUpTo(file, largest + 1, bytes);
        }
    }
    if (!opened || file.error() != QFileDevice::NoError) {
        return file.errorString();
    }
    return bytes.size() <= largest ? QString() : QStringLiteral("larger than %1 MiB").arg(largest / bounds::mebibyte);
}

static QString takeApart(const QByteArray &bytes, Message &message)
{
    const QString problem = decodeMms(bytes, message.mms);
    if (!problem.isEmpty()) {
        return problem;
    }
    message.parts = Parts(message.mms);
    if (message.mms.smil < 0) {
        return QStringLiteral("has no SMIL part");
    }
    message.bytes = message.mms.parts.at(message.mms.smil).data;
    return message.bytes.size() <= bounds::presentation ? QString()
                                                        : QStringLiteral("the SMIL part is larger than 1 MiB");
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
    switch (outcome) {
    case SmilParser::NoSmil:
        return QStringLiteral("Fail to find SMIL document! The root element is %1, not \"smil\".")
            .arg(quoted(dom.documentElement().tagName().left(bounds::quotation)));
    case SmilParser::NoHead:
        return QStringLiteral("Fail to find SMIL head!");
    default:
        return QStringLiteral("Fail to find SMIL body!");
    }
}

static Problem parse(SmilParser::ReadOptions options, Message &message)
{
    SmilParser parser(message.bytes);
    SmilParser::Outcome outcome;
    Problem problem{message.file, QString()};
    message.document = parser.parse(options, &outcome, &problem.text, &problem.line, &problem.column);
    message.dom = parser.dom();
    if (outcome == SmilParser::Complete) {
        return Problem();
    }
    if (outcome != SmilParser::NotWellFormed) {
        problem.text = missingElement(outcome, message.dom);
    } else if (!looksLikeXml(message.bytes)) {
        problem.text.prepend(QLatin1String("this is no XML: "));
    }
    return problem;
}

QString Problem::toString() const
{
    const QString place = line != 0 ? QStringLiteral(":%1:%2").arg(line).arg(column) : QString();
    return of + place + QLatin1String(": ") + text;
}

Problem readBytes(const QByteArray &bytes, const QString &file, const QString &folder, SmilParser::ReadOptions options,
                  Message &message)
{
    message.file = file;
    message.bytes = bytes;
    if (isMms(bytes)) {
        const QString problem = takeApart(bytes, message);
        if (!problem.isEmpty()) {
            return {file, problem};
        }
    } else if (!folder.isEmpty()) {
        QString problem;
        message.parts = Parts(Folder(folder, problem), file);
        if (!problem.isEmpty()) {
            return {folder, problem};
        }
    }
    return parse(options, message);
}

Problem readMessage(const QString &file, const QString &folder, SmilParser::ReadOptions options, Message &message)
{
    QByteArray bytes;
    const QString problem = readFile(file, bytes);
    return problem.isEmpty() ? readBytes(bytes, file, folder, options, message) : Problem{file, problem};
}
