// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILTOOL_CAPTIONS_H
#define SMILTOOL_CAPTIONS_H

#include "frames.h"
#include "parts.h"
#include "screen.h"

#include <QtCore/QMap>

/** A text in a region. */
struct Label {
    QRectF area; ///< that it takes, about
    double room; ///< to the edge of its region
    QString text;
    bool isId;
};

struct Drawn {
    int part;
    QString name;
};

/** What plays in one region. */
struct Shown {
    QList<Drawn> drawn; ///< whose parts are drawn
    QStringList names; ///< of all others
    bool missing = false; ///< whether one of these has no part
};

/** What is drawn for one frame. */
struct Picture {
    QMap<int, Shown> inRegions; ///< by the region's index
    QList<Label> labels;
    QStringList below; ///< what has no place on the screen, and what follows what
};

/** Says what plays in frames, and where there is room to say it. */
class Captions
{
public:
    Captions(const Screen &layout, Parts &of)
        : screen(layout)
        , parts(of)
    {
    }

    Picture of(const Frame &frame);

private:
    /** Where what plays is shown, and how. */
    struct Place {
        int region; ///< -1: below the frame
        QString name;
        int part = -1; ///< that is drawn
        bool missing = false;
    };

    const Place &placeOf(const SmilRef *ref);
    Place find(const SmilRef &ref);

    const Screen &screen;
    Parts &parts;
    // Each is looked for once, however many frames show it: both its name and the names of parts may be long.
    QHash<const SmilRef *, Place> places;
};

#endif
