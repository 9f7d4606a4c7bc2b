// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILTOOL_SCREEN_H
#define SMILTOOL_SCREEN_H

#include <smilparser/smilparser.h>

#include <QtCore/QHash>
#include <QtCore/QRectF>

// In units of the picture; a page is some 800 of them wide.
const double frameWidth = 184;
const double frameHeight = 220;
const double lineHeight = 15;

/** Where things are drawn: the regions of a layout, in units of the picture. */
struct Screen {
    explicit Screen(const SmilLayout &layout);

    double scale;
    QSizeF size;
    QHash<QString, int> indexes; ///< of the first region with each id
    QStringList ids;
    QList<QRectF> areas;
    QStringList fits;
};

#endif
