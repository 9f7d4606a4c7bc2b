// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILPARSER_REGIONSTYLE_H
#define SMILPARSER_REGIONSTYLE_H

#include <QtCore/QMap>
#include <QtCore/QString>

class QDomElement;

/** What a layout says of how a region looks; each is null when it is not stated. */
struct RegionStyle {
    QString background;
    QString fit;
};

/** Of the first region of each id, in the layout of @p smil. */
QMap<QString, RegionStyle> readRegionStyles(const QDomElement &smil);

/** The background of the root layout, or else of the top layout; null when neither states one. */
QString readBackground(const QDomElement &smil);

#endif
