// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "screen.h"
#include "bounds.h"
#include "escaping.h"
#include "geometry.h"
#include "typesetting.h"

Screen::Screen(const SmilLayout &layout)
{
    const QSizeF root = rootSize(layout);
    scale = qMin(frameWidth / root.width(), frameHeight / root.height());
    size = root * scale;
    for (const SmilRegion &region : layout.regions) {
        const QRectF whole = areaOf(region, root);
        if (!indexes.contains(region.id)) {
            indexes.insert(region.id, int(areas.size()));
        }
        ids.append(elided(printable(shortened(region.id, bounds::quotation)), frameWidth / 2));
        areas.append(QRectF(whole.topLeft() * scale, whole.size() * scale));
        fits.append(region.fit);
    }
}
