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
    const QColor wanted = opaque(cue.params.value(QStringLiteral("color")));
    is[QStringLiteral("moves")] = of.moves();
    is[QStringLiteral("filled")] = opaque(cue.background).isValid(); // its whole area
    is[QStringLiteral("paper")] = paper;
    is[QStringLiteral("ink")] = legible(opaque(cue.params.value(QStringLiteral("foreground-color")), wanted), paper);
}

QVariantMap describe(const SmilCue &cue, int index, const Part &part)
{
    static const char *const kinds[] = {"text", "image", "audio", "video", "file"};
    return {{QStringLiteral("kind"), QLatin1String(kinds[cue.ref.type])},
            {QStringLiteral("part"), index},
            {QStringLiteral("name"), part.name(cue.ref.src)},
            {QStringLiteral("alt"), shortened(cue.alt, 1024)},
            {QStringLiteral("source"), part.source(cue.ref.type)}};
}

QColor opaque(const QString &text, const QColor &otherwise)
{
    const bool known = text.startsWith(QLatin1Char('#')) || QColor::colorNames().contains(text, Qt::CaseInsensitive);
    return known && QColor(text).alpha() == 255 ? QColor(text) : otherwise;
}
