// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "medium.h"

/** Black or white where @p wanted cannot be read on @p paper. */
static QColor legible(const QColor &wanted, const QColor &paper)
{
    const int light = qGray(paper.rgb());
    const bool contrasts = wanted.isValid() && qAbs(qGray(wanted.rgb()) - light) > 80;
    return contrasts ? wanted : QColor(light > 127 ? Qt::black : Qt::white);
}

Medium::Medium(const SmilCue &shown, int index, const Part &of, const QColor &background, QObject *parent)
    : QObject(parent)
    , cue(shown)
    , part(index)
    , is(describe(cue, index, of))
{
    const QColor paper = opaque(cue.background, background);
    const QString own = cue.params.value(QStringLiteral("foreground-color"));
    is[QStringLiteral("moves")] = of.moves();
    is[QStringLiteral("filled")] = opaque(cue.background).isValid(); // its whole area
    is[QStringLiteral("paper")] = paper;
    is[QStringLiteral("ink")] = legible(opaque(own.isEmpty() ? cue.params.value(QStringLiteral("color")) : own), paper);
}

QVariantMap describe(const SmilCue &cue, int index, const Part &part)
{
    static const char *const kinds[] = {"text", "image", "audio", "video", "file"};
    QVariantMap map;
    map[QStringLiteral("kind")] = QLatin1String(kinds[cue.ref.type]);
    map[QStringLiteral("part")] = index;
    map[QStringLiteral("name")] = part.name(cue.ref.src);
    map[QStringLiteral("alt")] = shortened(cue.alt, 1024);
    map[QStringLiteral("source")] = part.source(cue.ref.type);
    return map;
}

QRectF Medium::fitted(const QSizeF &picture, const QSizeF &room) const
{
    return SmilScreen::fitted(picture, QRectF(QPointF(), room), cue.fit);
}

QColor opaque(const QString &text, const QColor &otherwise)
{
    const bool known = text.startsWith(QLatin1Char('#')) || QColor::colorNames().contains(text, Qt::CaseInsensitive);
    return known && QColor(text).alpha() == 255 ? QColor(text) : otherwise;
}
