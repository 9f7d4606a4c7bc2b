// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "message.h"
#include "complain.h"
#include "text.h"

#include <QtCore/QFile>
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
#include <QtCore/QStringConverter>
#endif

#include <algorithm>
#include <cstdio>

// A presentation takes a few kilobytes, and networks carry messages of less than a megabyte. What is larger than this
// is none, and may have no end.
static const int mebibyte = 1024 * 1024;
static const int largestPresentation = mebibyte;
static const int largestMessage = 8 * mebibyte;

static QString lastWarning;

static void handleMessage(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    if (type == QtDebugMsg) {
        complain(text.trimmed());
    } else {
        lastWarning = text;
    }
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

static bool readFile(const QString &name, QByteArray &bytes)
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
        return complainOf(name, file.errorString());
    }
    return bytes.size() <= largest || complainOf(name, QStringLiteral("larger than %1 MiB").arg(largest / mebibyte));
}

/** Finds the SMIL part and its companions in what was read. */
static bool findParts(const QString &folder, Message &message)
{
    QString problem;
    if (isMms(message.bytes)) {
        problem = decodeMms(message.bytes, message.mms);
        if (!problem.isEmpty()) {
            return complainOf(message.file, problem);
        }
        message.parts = Parts::ofMessage(message.mms);
        message.bytes = message.mms.parts.at(message.mms.smil).data;
        if (message.bytes.size() > largestPresentation) {
            return complainOf(message.file, QStringLiteral("the SMIL part is larger than 1 MiB"));
        }
    } else if (!folder.isEmpty()) {
        message.parts = Parts::ofFolder(folder, message.file, problem);
    }
    message.hasParts = message.mms.smil >= 0 || !folder.isEmpty();
    return problem.isEmpty() || complainOf(folder, problem);
}

#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
/** The library reads U+FFFD for a surrogate without the other half; some versions of Qt crash on it. */
static void replaceUnpaired(QString &text)
{
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text.at(i).isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate()) {
            ++i;
        } else if (text.at(i).isSurrogate()) {
            text[i] = QChar::ReplacementCharacter;
        }
    }
}
#endif

QDomDocument readDom(const QByteArray &bytes)
{
    QDomDocument dom;
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    const auto encoding = QStringConverter::encodingForData(bytes, u'<');
    if (encoding && *encoding != QStringConverter::Utf8) {
        QString text = QStringDecoder(*encoding)(bytes);
        replaceUnpaired(text);
        dom.setContent(text);
        return dom;
    }
#endif
    dom.setContent(bytes);
    return dom;
}

/** Whether the input begins as XML does in any encoding: with "<", behind nothing but a byte order mark and blanks. */
static bool looksLikeXml(const QByteArray &bytes)
{
    const QByteArray before = QByteArrayLiteral("\0\t\n\r \xef\xbb\xbf\xfe\xff");
    const auto first = std::find_if(bytes.cbegin(), bytes.cend(), [&before](char c) { return !before.contains(c); });
    return first == bytes.cend() || *first == '<';
}

static QString missingElement(SmilParser::Outcome outcome, const QByteArray &bytes)
{
    if (outcome != SmilParser::NoSmil) {
        return lastWarning;
    }
    const QString root = readDom(bytes).documentElement().tagName();
    return lastWarning + QStringLiteral(" The root element is %1, not \"smil\".").arg(quoted(root.left(40)));
}

static bool parse(SmilParser::ReadOptions options, Message &message)
{
    lastWarning.clear();
    SmilParser parser(message.bytes);
    SmilParser::Outcome outcome;
    QString error;
    int line = 0;
    int column = 0;
    message.document = parser.parse(options, &outcome, &error, &line, &column);
    if (outcome == SmilParser::NotWellFormed) {
        const QString what = looksLikeXml(message.bytes) ? QString() : QStringLiteral("this is no XML: ");
        return complainOf(QStringLiteral("%1:%2:%3").arg(message.file).arg(line).arg(column), what + error);
    }
    return lastWarning.isEmpty() || complainOf(message.file, missingElement(outcome, message.bytes));
}

bool readMessage(const QString &file, const QString &folder, SmilParser::ReadOptions options, Message &message)
{
    qInstallMessageHandler(handleMessage);
    message.file = file;
    return readFile(file, message.bytes) && findParts(folder, message) && parse(options, message);
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
