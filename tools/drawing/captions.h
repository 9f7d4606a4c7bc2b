// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILTOOL_CAPTIONS_H
#define SMILTOOL_CAPTIONS_H

#include "drawing/frames.h"
#include "drawing/scaledscreen.h"
#include "input/messageparts.h"

/** A text on the screen. */
struct Label {
    QRectF area; ///< that it takes, about
    double room; ///< to the edge of the place that it is in
    QString text;
    int region; ///< whose name it is; -1: the name of a medium
};

/** A medium that can be seen. */
struct Shown {
    QRectF place; ///< on the message's screen
    QRectF area; ///< what of it can be seen, in units of the picture
    int region; ///< -1: none
    QString name;
    QString words; ///< in place of what is drawn
    int part; ///< that is drawn in place of its name; -1: none
    bool missing;
};

/** What is drawn for one frame. */
struct Picture {
    QList<Shown> shown;
    QList<Label> labels;
    QStringList below; ///< what has no place on the screen, or no room there
};

/** Whether content of that type is a picture that a viewer can draw. */
bool isPicture(const QString &type);

/** Says what plays in frames, and where there is room to say it. */
class Captions
{
public:
    Captions(const ScaledScreen &layout, MessageParts &of)
        : screen(layout)
        , parts(of)
    {
    }

    Picture of(const Frame &frame);

private:
    int find(const QString &src);
    void add(const SmilCue &cue, const QRectF &place, Picture &picture);

    const ScaledScreen &screen;
    MessageParts &parts;
    // Each is looked for once, however many frames show it: both its name and the names of parts may be long.
    QMap<QString, int> found;
};

#endif
