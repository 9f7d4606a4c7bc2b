// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "mmslogger.h"
#include "options.h"
#include "reader.h"

#include <smilparser/smilparser.h>

#include <QtCore/QDebug>
#include <QtCore/QIODevice>

static void debug(const char *text)
{
    if (MMSLogger::qdebugEnabled) {
        // The blank is part of the message. QDebug's own would do on some versions of Qt and be cut off on others.
        qDebug().nospace() << text << ' ';
    }
}

SmilParser::SmilParser(QIODevice *device)
{
    if (device) {
        buffer.setData(device->readAll());
    }
}

SmilParser::SmilParser(const QByteArray &bytes)
{
    buffer.setData(bytes);
}

SmilParser::SmilParser(const SmilDocument &model)
    : document(model)
{
}

SmilDocument &SmilParser::parse(QString *errorMsg, int *errorLine, int *errorColumn)
{
    return parse(AsWritten, nullptr, errorMsg, errorLine, errorColumn);
}

SmilDocument &SmilParser::parse(ReadOptions options, Outcome *outcome, QString *errorMsg, int *errorLine,
                                int *errorColumn)
{
    Outcome ownOutcome = NotWellFormed;
    QString ownMsg;
    int ownLine = 0;
    int ownColumn = 0;
    Outcome &result = outcome ? *outcome : ownOutcome;
    QString *const msg = errorMsg ? errorMsg : &ownMsg;
    int *const line = errorLine ? errorLine : &ownLine;
    int *const column = errorColumn ? errorColumn : &ownColumn;
    result = NotWellFormed;
    if (!readXml(buffer, domDocument, msg, line, column)) {
        qWarning("Fail to parse SMIL document: '%s' at (%d,%d)!", msg->toLocal8Bit().constData(), *line, *column);
        return document;
    }

    document = SmilDocument();
    QDomElement smil = domDocument.firstChildElement(QStringLiteral("smil"));
    if (smil.isNull()) {
        result = NoSmil;
        qWarning("Fail to find SMIL document!");
    } else if (parseSmilDocument(smil)) {
        result = Complete;
    } else {
        result = smil.firstChildElement(QStringLiteral("head")).isNull() ? NoHead : NoBody;
    }
    if (result == Complete && options.testFlag(ClockDurations)) {
        readClockDurations(smil.firstChildElement(QStringLiteral("body")), document.body.root);
    }
    if (options.testFlag(KeepRootSize)) {
        keepRootSize(document.header.layout);
    }
    return document;
}

bool SmilParser::parseSmilDocument(QDomElement &smil)
{
    debug("Begin to parse smil document.");

    QDomElement head = smil.firstChildElement(QStringLiteral("head"));
    if (head.isNull()) {
        qWarning("Fail to find SMIL head!");
        return false;
    }
    if (!parseSmilHead(head)) {
        return false;
    }
    debug("Smil document have a head.");

    QDomElement body = smil.firstChildElement(QStringLiteral("body"));
    if (body.isNull()) {
        qWarning("Fail to find SMIL body!");
        return false;
    }
    if (!parseSmilBody(body)) {
        return false;
    }
    debug("Smil document have a body.");
    return true;
}
