// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "commands.h"
#include "elementtable.h"
#include "escaping.h"

#include <QtCore/QXmlStreamWriter>

static void writeElement(QXmlStreamWriter &writer, const QDomElement &element)
{
    writer.writeStartElement(element.tagName());
    // A DOM keeps attributes in an order that differs from run to run.
    for (const QString &name : elementNamed(element.tagName()).attributes) {
        if (element.hasAttribute(name)) {
            writer.writeAttribute(name, element.attribute(name));
        }
    }
    // Not before the root element, or the text would begin with an empty line.
    writer.setAutoFormatting(true);
    for (QDomElement child = element.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
        writeElement(writer, child);
    }
    writer.writeEndElement();
}

void render(Message &message, QIODevice &out)
{
    // Two trees of a large message take more memory than all else together.
    message.dom = QDomDocument();
    SmilParser parser(message.document);
    QString xml;
    QXmlStreamWriter writer(&xml);
    writer.setAutoFormattingIndent(2);
    writer.setAutoFormatting(false);
    writeElement(writer, parser.getContent().documentElement());
    writer.writeEndDocument();
    out.write(printableXml(xml).toUtf8());
}

static Result run(const QString &file, const Arguments &arguments, QIODevice &out)
{
    const auto use = [&](Message &message) {
        if (message.smil.isEmpty()) {
            return failure(file, QStringLiteral("has no SMIL part"));
        }
        if (message.outcome == SmilParser::Complete) {
            render(message, out);
        }
        return Result();
    };
    const SmilParser::ReadOptions all = SmilParser::ClockDurations | SmilParser::KeepRootSize;
    return withMessage(file, arguments, use, arguments.keep ? all : SmilParser::AsWritten);
}

const Command renderCommand = {"render",
                               "FILE...",
                               Keep,
                               "Prints each message as read and written back.",
                               "smiltool render message.smil > written.smil",
                               run};
