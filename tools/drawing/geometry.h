// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILTOOL_GEOMETRY_H
#define SMILTOOL_GEOMETRY_H

#include <smilparser/smilparser.h>

#include <QtCore/QRectF>

/** The size of the screen in pixels; of what the layout does not give, that of a phone's. */
QSizeF rootSize(const SmilLayout &layout);

/** Where the region is on a screen of that size, cut off at its edges; empty when it lies outside. */
QRectF areaOf(const SmilRegion &region, const QSizeF &root);

#endif
