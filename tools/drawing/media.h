// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILTOOL_MEDIA_H
#define SMILTOOL_MEDIA_H

#include "base/bounds.h"
#include "drawing/captions.h"
#include "drawing/svg.h"

/** Draws the parts, each only once in a place: where other frames show it again, they refer to the first. */
struct Media {
    Svg &svg;
    const double scale; ///< units of the picture for each pixel
    MessageParts &parts;
    QMap<QByteArray, QString> drawn = {}; ///< the id of each, by all that it depends on
    qint64 left = bounds::pictures;

    /** Draws what has a part. */
    void draw(const Shown &shown);
    void drawPicture(const MessageParts::Part &part, const Shown &shown);
    void drawText(int part, const QSizeF &size);
};

#endif
