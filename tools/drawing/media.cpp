// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "media.h"
#include "charset.h"
#include "escaping.h"
#include "typesetting.h"

#include <QtCore/QRegularExpression>

void Media::draw(const Shown &shown, int region)
{
    for (const Drawn &each : shown.drawn) {
        const QString id = QStringLiteral("p%1-%2").arg(each.part).arg(region);
        if (drawn.contains(id)) {
            svg.reuse(id);
        } else {
            drawn.insert(id);
            draw(parts.read(each.part), region, each.name, id);
        }
    }
    if (shown.missing && shown.drawn.isEmpty()) {
        svg.cross(screen.areas.at(region));
    }
}

void Media::draw(const Parts::Part &part, int region, const QString &name, const QString &id)
{
    svg.beginClip(screen.areas.at(region), id);
    svg.title(name + QLatin1String(" in ") + screen.ids.at(region));
    const bool isPicture = part.content.kind == PartKind::Picture;
    if (drawn.size() > bounds::drawn || (isPicture && part.data.size() > left)) {
        svg.text(QPointF(4, 0.75 * lineHeight), name);
    } else if (isPicture) {
        drawPicture(part, region);
    } else {
        drawText(part, screen.areas.at(region).size());
    }
    svg.endGroup();
}

void Media::drawPicture(const Parts::Part &part, int region)
{
    const QString &fit = screen.fits.at(region);
    const char *const aspectRatio = fit == QLatin1String("meet") ? "xMinYMin meet"
        : fit == QLatin1String("slice")                          ? "xMinYMin slice"
        : fit == QLatin1String("fill")                           ? "none"
                                                                 : nullptr;
    svg.image(part.content.type, part.data, screen.areas.at(region).size(), aspectRatio, screen.scale);
    left -= part.data.size();
}

void Media::drawText(const Parts::Part &part, const QSizeF &size)
{
    const int count = qMax(1, int(size.height() / lineHeight));
    const int enough = count * (int(size.width() / narrowestLetter) + 2);
    const QString text = withoutFormat(decodedBeginning(part.data, enough));
    const QStringList paragraphs = text.split(QRegularExpression(QStringLiteral("\\R")));
    QStringList printed;
    for (const QString &paragraph : paragraphs) {
        printed.append(printable(paragraph));
    }
    const QStringList lines = wrapped(printed.join(QLatin1Char('\n')), size.width() - 8, count);
    for (int i = 0; i < lines.size(); ++i) {
        const bool rightToLeft = lines.at(i).isRightToLeft();
        svg.text(QPointF(rightToLeft ? size.width() - 4 : 4, (i + 0.75) * lineHeight), lines.at(i),
                 rightToLeft ? "rtl" : nullptr);
    }
}
