// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "message.h"
#include "text.h"

#include <QtCore/QFile>
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
#include <QtCore/QStringConverter>
#endif

#include <algorithm>
#include <cstdio>

// A presentation takes a few kilobytes. What is larger than this is none, and may have no end.
static const qint64 largestMessage = 1024 * 1024;

static QString lastWarning;

void complain(const QString &text)
{
    std::fprintf(stderr, "%s\n", qPrintable(printable(text)));
}

static void handleMessage(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    if (type == QtDebugMsg) {
        complain(text.trimmed());
    } else {
        lastWarning = text;
    }
}

static bool readFile(const QString &name, QByteArray &bytes)
{
    QFile file(name);
    const bool opened =
        name == QLatin1String("-") ? file.open(stdin, QIODevice::ReadOnly) : file.open(QIODevice::ReadOnly);
    // A pipe gives what is there so far, and nothing at its end only.
    QByteArray more;
    do {
        more = opened ? file.read(largestMessage + 1 - bytes.size()) : QByteArray();
        bytes += more;
    } while (!more.isEmpty());
    if (!opened || file.error() != QFileDevice::NoError) {
        complain(name + QLatin1String(": ") + file.errorString());
        return false;
    }
    if (bytes.size() > largestMessage) {
        complain(name + QStringLiteral(": larger than %1 MiB").arg(largestMessage / (1024 * 1024)));
        return false;
    }
    return true;
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

static QString describe(SmilParser::Outcome outcome, const QByteArray &bytes)
{
    if (outcome != SmilParser::NoSmil) {
        return lastWarning;
    }
    const QString root = readDom(bytes).documentElement().tagName();
    return lastWarning + QStringLiteral(" The root element is %1, not \"smil\".").arg(quoted(root.left(40)));
}

bool readMessage(const QString &file, SmilParser::ReadOptions options, Message &message)
{
    qInstallMessageHandler(handleMessage);
    message.file = file;
    if (!readFile(file, message.bytes)) {
        return false;
    }
    lastWarning.clear();
    SmilParser parser(message.bytes);
    SmilParser::Outcome outcome;
    QString error;
    int line = 0;
    int column = 0;
    message.document = parser.parse(options, &outcome, &error, &line, &column);

    const bool wellFormed = outcome != SmilParser::NotWellFormed;
    if (!wellFormed) {
        const QString what = looksLikeXml(message.bytes) ? QString() : QStringLiteral("this is no XML: ");
        complain(QStringLiteral("%1:%2:%3: %4").arg(file).arg(line).arg(column).arg(what + error));
    } else if (!lastWarning.isEmpty()) {
        complain(file + QLatin1String(": ") + describe(outcome, message.bytes));
    }
    return wellFormed && lastWarning.isEmpty();
}
