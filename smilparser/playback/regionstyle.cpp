// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "regionstyle.h"

#include "smilparser/model/vocabulary.h"

#include <QtXml/QDomElement>

static QDomElement layoutOf(const QDomElement &smil)
{
    return smil.firstChildElement(headElement).firstChildElement(layoutElement);
}

/** By the name in the recommendation, or else by that of its first version. */
static QString backgroundOf(const QDomElement &element)
{
    for (const QString &name : {QStringLiteral("background-color"), QStringLiteral("backgroundColor")}) {
        const QString background = element.attribute(name);
        if (!background.isEmpty()) {
            return background;
        }
    }
    return QString();
}

QMap<QString, RegionStyle> readRegionStyles(const QDomElement &smil)
{
    QMap<QString, RegionStyle> styles;
    QDomElement region = layoutOf(smil).firstChildElement(regionElement);
    for (; !region.isNull(); region = region.nextSiblingElement(regionElement)) {
        const QString id = region.attribute(QStringLiteral("id"));
        if (!id.isEmpty() && !styles.contains(id)) {
            styles.insert(id, {backgroundOf(region), region.attribute(QStringLiteral("fit"))});
        }
    }
    return styles;
}

QString readBackground(const QDomElement &smil)
{
    const QDomElement layout = layoutOf(smil);
    const QString background = backgroundOf(layout.firstChildElement(rootLayoutElement));
    return background.isEmpty() ? backgroundOf(layout.firstChildElement(topLayoutElement)) : background;
}
