// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "drawing/svg.h"

Svg::Svg(QIODevice &device)
    : writer(&device)
{
    writer.setAutoFormatting(true);
    writer.setAutoFormattingIndent(1);
}

void Svg::begin(const QSizeF &size, const QString &title, const QString &description, const char *style)
{
    writer.writeStartDocument();
    writer.writeStartElement(QStringLiteral("svg"));
    writer.writeDefaultNamespace(QStringLiteral("http://www.w3.org/2000/svg"));
    attribute("width", size.width());
    attribute("height", size.height());
    writer.writeAttribute(QStringLiteral("viewBox"), QStringLiteral("0 0 %1 %2").arg(size.width()).arg(size.height()));
    writer.writeAttribute(QStringLiteral("role"), QStringLiteral("img"));
    writer.writeAttribute(QStringLiteral("aria-labelledby"), QStringLiteral("title desc"));
    named("title", title);
    named("desc", description);
    writer.writeTextElement(QStringLiteral("style"), QLatin1String(style));
}

void Svg::end()
{
    writer.writeEndElement();
    writer.writeEndDocument();
}

void Svg::beginGroup(const QPointF &corner)
{
    writer.writeStartElement(QStringLiteral("g"));
    writer.writeAttribute(QStringLiteral("transform"),
                          QStringLiteral("translate(%1 %2)").arg(corner.x()).arg(corner.y()));
}

void Svg::beginClip(const QRectF &inside, const QString &id)
{
    writer.writeStartElement(QStringLiteral("svg"));
    if (!id.isEmpty()) {
        writer.writeAttribute(QStringLiteral("id"), id);
    }
    area(inside);
}

void Svg::endGroup()
{
    writer.writeEndElement();
}

void Svg::rectangle(const QRectF &edges, const QString &kind)
{
    writer.writeEmptyElement(QStringLiteral("rect"));
    area(edges);
    writer.writeAttribute(QStringLiteral("class"), kind);
}

void Svg::text(const QPointF &at, const QString &line, const char *kind)
{
    writer.writeStartElement(QStringLiteral("text"));
    attribute("x", at.x());
    attribute("y", at.y());
    if (kind) {
        writer.writeAttribute(QStringLiteral("class"), QLatin1String(kind));
    }
    writer.writeCharacters(line);
    writer.writeEndElement();
}

void Svg::title(const QString &text)
{
    writer.writeTextElement(QStringLiteral("title"), text);
}

void Svg::image(const QString &type, const QByteArray &data, const QRectF &edges, bool distorted)
{
    writer.writeEmptyElement(QStringLiteral("image"));
    area(edges);
    if (distorted) {
        writer.writeAttribute(QStringLiteral("preserveAspectRatio"), QStringLiteral("none"));
    }
    writer.writeAttribute(QStringLiteral("href"),
                          QLatin1String("data:") + type + QLatin1String(";base64,") + QLatin1String(data.toBase64()));
}

void Svg::reuse(const QString &id)
{
    writer.writeEmptyElement(QStringLiteral("use"));
    writer.writeAttribute(QStringLiteral("href"), QLatin1Char('#') + id);
}

void Svg::attribute(const char *name, double value)
{
    writer.writeAttribute(QLatin1String(name), QString::number(value));
}

void Svg::area(const QRectF &area)
{
    attribute("x", area.x());
    attribute("y", area.y());
    attribute("width", area.width());
    attribute("height", area.height());
}

void Svg::named(const char *name, const QString &content)
{
    writer.writeStartElement(QLatin1String(name));
    writer.writeAttribute(QStringLiteral("id"), QLatin1String(name));
    writer.writeCharacters(content);
    writer.writeEndElement();
}
