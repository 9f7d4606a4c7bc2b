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
    , kind(kindName(shown.ref.type))
    , name(of.name(shown.ref.src))
    , alt(shortened(shown.alt, 1024))
    , source(of.source(shown.ref.type))
    , moves(of.moves())
    , filled(opaque(shown.background).isValid())
    , active(false)
    , visible(false)
    , paper(filled ? opaque(shown.background) : background)
    , begin(0)
{
    const QString colour = cue.params.value(QStringLiteral("color"));
    ink = legible(opaque(cue.params.value(QStringLiteral("foreground-color"), colour)), paper);
}

QRectF Medium::fitted(const QSizeF &picture, const QSizeF &room) const
{
    return SmilScreen::fitted(picture, QRectF(QPointF(), room), cue.fit);
}

QColor opaque(const QString &text)
{
    const bool known = text.startsWith(QLatin1Char('#')) || QColor::colorNames().contains(text, Qt::CaseInsensitive);
    return known && QColor(text).alpha() == 255 ? QColor(text) : QColor();
}
