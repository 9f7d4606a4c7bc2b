// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "domreader.h"
#include "reader.h"

#include "smilparser/model/vocabulary.h"

#include <smilparser/mmslogger.h>

#include <QtCore/QDebug>
#include <QtCore/QIODevice>

static void debug(const char *text)
{
    if (MMSLogger::qdebugEnabled) {
        // The blank is part of the message. Some versions of Qt would add QDebug's own, and others would cut that off.
        qDebug().nospace() << text << ' ';
    }
}

/** Copies the root layout's width to the top layout if that has no valid one, and the height likewise. */
static void keepRootSize(SmilLayout &layout)
{
    if (!layout.topLayoutWidth.valid) {
        layout.topLayoutWidth = layout.rootLayoutWidth;
    }
    if (!layout.topLayoutHeight.valid) {
        layout.topLayoutHeight = layout.rootLayoutHeight;
    }
}

SmilParser::Outcome readDocument(const QDomElement &smil, SmilDocument &document, SmilParser::ReadOptions options)
{
    debug("Begin to parse smil document.");

    const QDomElement head = smil.firstChildElement(headElement);
    if (head.isNull()) {
        qWarning("Fail to find SMIL head!");
        return SmilParser::NoHead;
    }
    readHead(head, document.header);
    if (options.testFlag(SmilParser::KeepRootSize)) {
        keepRootSize(document.header.layout);
    }
    debug("Smil document have a head.");

    const QDomElement body = smil.firstChildElement(bodyElement);
    if (body.isNull()) {
        qWarning("Fail to find SMIL body!");
        return SmilParser::NoBody;
    }
    if (!readNodes(body, document.body.root, 0, options)) {
        return SmilParser::NoBody;
    }
    debug("Smil document have a body.");
    return SmilParser::Complete;
}

/** Qt's own clearing leaves elements that a host still holds with a document that may end before them. */
static void removeChildren(QDomDocument &dom)
{
    while (dom.hasChildNodes()) {
        dom.removeChild(dom.firstChild());
    }
}

/** A declaration would be written by QDomDocument::toByteArray(), which always writes UTF-8, whatever it declares. */
static void removeDeclaration(QDomDocument &dom)
{
    const QDomProcessingInstruction first = dom.firstChild().toProcessingInstruction();
    if (first.target() == QLatin1String("xml")) {
        dom.removeChild(first);
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

QDomDocument SmilParser::dom() const
{
    return domDocument;
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
    removeChildren(domDocument);
    if (!readXml(buffer, options.testFlag(DecodedText), domDocument, msg, line, column)) {
        // What was read before the error is no tree for a host.
        domDocument.clear();
        qWarning("Fail to parse SMIL document: '%s' at (%d,%d)!", msg->toLocal8Bit().constData(), *line, *column);
        return document;
    }

    removeDeclaration(domDocument);
    document = SmilDocument();
    const QDomElement smil = domDocument.firstChildElement(smilElement);
    if (smil.isNull()) {
        result = NoSmil;
        qWarning("Fail to find SMIL document!");
    } else {
        result = readDocument(smil, document, options);
    }
    return document;
}

bool SmilParser::parseSmilDocument(QDomElement &smil)
{
    return readDocument(smil, document, AsWritten) == Complete;
}
