// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "drawing/svg.h"

Svg::Svg(QIODevice &device, const QSizeF &size, const QString &title, const QString &description, const char *style)
    : writer(&device)
{
    const QString width = QString::number(size.width());
    const QString height = QString::number(size.height());
    writer.setAutoFormatting(true);
    writer.setAutoFormattingIndent(1);
    writer.writeStartDocument();
    writer.writeStartElement(QStringLiteral("svg"));
    attribute("xmlns", QStringLiteral("http://www.w3.org/2000/svg"));
    attribute("width", width);
    attribute("height", height);
    attribute("viewBox", QStringLiteral("0 0 %1 %2").arg(width, height));
    attribute("role", QStringLiteral("img"));
    writer.writeTextElement(QStringLiteral("title"), title);
    writer.writeTextElement(QStringLiteral("desc"), description);
    writer.writeTextElement(QStringLiteral("style"), QLatin1String(style));
}

void Svg::beginGroup(const QPointF &corner)
{
    writer.writeStartElement(QStringLiteral("g"));
    attribute("transform", QStringLiteral("translate(%1 %2)").arg(corner.x()).arg(corner.y()));
}

void Svg::beginClip(const QRectF &area, const QString &id)
{
    writer.writeStartElement(QStringLiteral("svg"));
    attribute("id", id);
    areaAttributes(area);
}

void Svg::rectangle(const QRectF &area, const QString &kind)
{
    writer.writeEmptyElement(QStringLiteral("rect"));
    areaAttributes(area);
    attribute("class", kind);
}

void Svg::text(const QPointF &at, const QString &line, const QString &kind)
{
    writer.writeStartElement(QStringLiteral("text"));
    attribute("x", QString::number(at.x()));
    attribute("y", QString::number(at.y()));
    attribute("class", kind);
    writer.writeCharacters(line);
    writer.writeEndElement();
}

void Svg::image(const QString &type, const QByteArray &data, const QRectF &area, bool distorted)
{
    writer.writeEmptyElement(QStringLiteral("image"));
    areaAttributes(area);
    attribute("preserveAspectRatio", distorted ? QStringLiteral("none") : QString());
    attribute("href", QLatin1String("data:") + type + QLatin1String(";base64,") + QLatin1String(data.toBase64()));
}

void Svg::reuse(const QString &id)
{
    writer.writeEmptyElement(QStringLiteral("use"));
    attribute("href", QLatin1Char('#') + id);
}

/** One that is empty is not written. */
void Svg::attribute(const char *name, const QString &value)
{
    if (!value.isEmpty()) {
        writer.writeAttribute(QLatin1String(name), value);
    }
}

void Svg::areaAttributes(const QRectF &area)
{
    attribute("x", QString::number(area.x()));
    attribute("y", QString::number(area.y()));
    attribute("width", QString::number(area.width()));
    attribute("height", QString::number(area.height()));
}
