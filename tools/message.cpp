// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "message.h"
#include "text.h"

#include <QtCore/QFile>

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
    if (opened) {
        bytes = file.read(largestMessage + 1);
    }
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
        complain(QStringLiteral("%1:%2:%3: %4").arg(file).arg(line).arg(column).arg(error));
    } else if (!lastWarning.isEmpty()) {
        complain(file + QLatin1String(": ") + lastWarning);
    }
    return wellFormed && lastWarning.isEmpty();
}
