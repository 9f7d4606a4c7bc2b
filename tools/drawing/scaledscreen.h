// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILTOOL_SCALEDSCREEN_H
#define SMILTOOL_SCALEDSCREEN_H

#include <smilparser/smilplayback.h>

// In units of the picture; a page is some 800 of them wide.
const double frameWidth = 184;
const double frameHeight = 220;
const double lineHeight = 15;

/** The screen of the message, and how large it is drawn. */
struct ScaledScreen {
    explicit ScaledScreen(const SmilLayout &layout);

    /** What of a place on the message's screen can be seen, in units of the picture; empty when nothing can. */
    QRectF visible(const QRectF &place) const;

    SmilScreen pixels;
    double scale; ///< units of the picture for each pixel
    QSizeF size; ///< in these units
};

/** The rectangle, on paper of which each unit is @p scale. */
QRectF scaled(const QRectF &rectangle, double scale);

#endif
