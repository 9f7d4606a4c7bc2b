// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "message.h"
#include "complain.h"
#include "text.h"

#include <QtCore/QFile>

#include <algorithm>
#include <cstdio>

// A presentation takes a few kilobytes, and networks carry messages of less than a megabyte. What is larger than this
// is none, and may have no end.
static const int mebibyte = 1024 * 1024;
static const int largestPresentation = mebibyte;
static const int largestMessage = 8 * mebibyte;

static QString problemOf(const QString &file, const QString &problem)
{
    return file + QLatin1String(": ") + problem;
}

/** Reads up to @p size bytes in all. */
static void readUpTo(QFile &file, int size, QByteArray &bytes)
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
    int largest = largestPresentation;
    if (opened) {
        readUpTo(file, largest + 1, bytes);
        if (isMms(bytes)) {
            largest = largestMessage;
            readUpTo(file, largest + 1, bytes);
        }
    }
    if (!opened || file.error() != QFileDevice::NoError) {
        return problemOf(name, file.errorString());
    }
    return bytes.size() <= largest ? QString()
                                   : problemOf(name, QStringLiteral("larger than %1 MiB").arg(largest / mebibyte));
}

/** Finds the SMIL part and its companions in what was read. */
static QString findParts(const QString &folder, Message &message)
{
    QString problem;
    if (isMms(message.bytes)) {
        problem = decodeMms(message.bytes, message.mms);
        if (!problem.isEmpty()) {
            return problemOf(message.file, problem);
        }
        message.parts = Parts::ofMessage(message.mms);
        message.bytes = message.mms.parts.at(message.mms.smil).data;
        if (message.bytes.size() > largestPresentation) {
            return problemOf(message.file, QStringLiteral("the SMIL part is larger than 1 MiB"));
        }
    } else if (!folder.isEmpty()) {
        message.parts = Parts::ofFolder(folder, message.file, problem);
    }
    message.hasParts = message.mms.smil >= 0 || !folder.isEmpty();
    return problem.isEmpty() ? QString() : problemOf(folder, problem);
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
            .arg(quoted(dom.documentElement().tagName().left(40)));
    case SmilParser::NoHead:
        return QStringLiteral("Fail to find SMIL head!");
    default:
        return QStringLiteral("Fail to find SMIL body!");
    }
}

static QString parse(SmilParser::ReadOptions options, Message &message)
{
    SmilParser parser(message.bytes);
    SmilParser::Outcome outcome;
    QString error;
    int line = 0;
    int column = 0;
    message.document = parser.parse(options, &outcome, &error, &line, &column);
    message.dom = parser.dom();
    if (outcome == SmilParser::NotWellFormed) {
        const QString what = looksLikeXml(message.bytes) ? QString() : QStringLiteral("this is no XML: ");
        return problemOf(QStringLiteral("%1:%2:%3").arg(message.file).arg(line).arg(column), what + error);
    }
    return outcome == SmilParser::Complete ? QString() : problemOf(message.file, missingElement(outcome, message.dom));
}

QString readBytes(const QByteArray &bytes, const QString &folder, SmilParser::ReadOptions options, Message &message)
{
    message.bytes = bytes;
    const QString problem = findParts(folder, message);
    return problem.isEmpty() ? parse(options, message) : problem;
}

QString readMessage(const QString &file, const QString &folder, SmilParser::ReadOptions options, Message &message)
{
    message.file = file;
    QByteArray bytes;
    const QString problem = readFile(file, bytes);
    return problem.isEmpty() ? readBytes(bytes, folder, options, message) : problem;
}

bool complainOfParts(const Message &message, const QString &folder)
{
    bool none = true;
    for (int i = 0; i < message.parts.size(); ++i) {
        const Parts::Part &part = message.parts.at(i);
        none = none && part.problem.isEmpty();
        if (!part.problem.isEmpty()) {
            complainOf(folder + QLatin1Char('/') + part.name, part.problem);
        }
    }
    return none;
}
