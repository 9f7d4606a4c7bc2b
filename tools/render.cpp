// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "commands.h"
#include "text.h"

#include <QtCore/QXmlStreamWriter>

static void writeElement(QXmlStreamWriter &writer, const QDomElement &element)
{
    // A DOM keeps attributes in an order that differs from run to run.
    static const char *const attributes[] = {"id",     "title", "class", "name", "content", "width", "height", "top",
                                             "bottom", "left",  "right", "fit",  "dur",     "src",   "region"};
    writer.writeStartElement(element.tagName());
    for (const char *const attribute : attributes) {
        const QString name = QLatin1String(attribute);
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

void render(const Message &message, QIODevice &out)
{
    SmilParser parser(message.document);
    QString xml;
    QXmlStreamWriter writer(&xml);
    writer.setAutoFormattingIndent(2);
    writer.setAutoFormatting(false);
    writeElement(writer, parser.getContent().documentElement());
    writer.writeEndDocument();
    out.write(printableXml(xml).toUtf8());
}
