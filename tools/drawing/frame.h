// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILTOOL_FRAME_H
#define SMILTOOL_FRAME_H

#include "base/bounds.h"
#include "drawing/svg.h"
#include "input/message.h"

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
    QString fit;
    int region; ///< -1: none
    QString name;
    QString words; ///< in place of what is drawn
    int part; ///< that is drawn in place of its name; -1: none
    bool missing;
};

/** What is drawn for one slide. */
struct Picture {
    QString heading; ///< its number, when it begins, and how long it takes: "2 · 0:06.825 · 3s"
    QStringList words; ///< for each medium, what the message has in place of it, or else its name
    QList<Shown> shown;
    QList<Label> labels;
    QStringList below; ///< what has no place on the screen, or no room there
};

/** Whether content of that type is a picture that a viewer can draw. */
bool isPicture(const QString &type);

/** Says what the slide of that number shows, and finds the room to say it. */
Picture pictureOf(int number, const SmilSlide &slide, const ScaledScreen &screen, MessageParts &parts);

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

// How texts are set.

/** A width that no character is below, to width(). */
const double narrowestLetter = 4.5;

/** About how long the text is in a sans-serif font of size 11, rather more than less. */
double width(const QString &text);

/** The text if it is no longer than @p most. If it is, as much of its beginning as fits, "\u2026" and its extension. */
QString elided(const QString &text, double most);

/**
 * The text, printable, in lines that are no longer than @p most, except that each has one letter at least. "\u2026"
 * ends the last one when there are more than @p count.
 */
QStringList wrapped(const QString &text, double most, int count);

/** The text without what only says how to set it: tabs, marks of direction, soft hyphens; joiners stay. */
QString withoutFormat(QString text);

#endif
