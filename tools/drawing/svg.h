// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILTOOL_SVG_H
#define SMILTOOL_SVG_H

#include <QtCore/QRectF>
#include <QtCore/QXmlStreamWriter>

/** Writes a picture, element by element. */
class Svg
{
public:
    /** @p description is for who cannot see the picture. */
    Svg(QIODevice &device, const QSizeF &size, const QString &title, const QString &description, const char *style);
    ~Svg() { writer.writeEndDocument(); }

    /** Everything up to endGroup() has its origin at @p corner. */
    void beginGroup(const QPointF &corner);
    /** Everything up to endGroup() has its origin at the corner of @p area, and is cut off at its edges. */
    void beginClip(const QRectF &area, const QString &id = QString());
    void endGroup() { writer.writeEndElement(); }

    /** What a viewer says of the element that this is in. */
    void title(const QString &text) { writer.writeTextElement(QStringLiteral("title"), text); }
    void rectangle(const QRectF &area, const QString &kind);
    void text(const QPointF &at, const QString &line, const QString &kind = QString());

    /** A picture of the given type, "image/png" for example; one of another shape is fitted in, or else distorted. */
    void image(const QString &type, const QByteArray &data, const QRectF &area, bool distorted);
    /** Draws again, at the same place, what has this id. */
    void reuse(const QString &id);

private:
    void attribute(const char *name, const QString &value);
    void areaAttributes(const QRectF &area);

    QXmlStreamWriter writer;
};

#endif
