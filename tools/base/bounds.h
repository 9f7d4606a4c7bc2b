// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILTOOL_BOUNDS_H
#define SMILTOOL_BOUNDS_H

#include <QtCore/qglobal.h>

/** What keeps input from strangers from taking all time and memory. No message comes near any of it in earnest. */
namespace bounds
{
const qint64 mebibyte = 1024 * 1024;

// A presentation takes a few kilobytes, and networks carry messages of less than a megabyte. What is larger than this
// is none, and may have no end.
const qint64 presentation = mebibyte;
const qint64 message = 8 * mebibyte;
// A part or a receiver takes three bytes of the message, and much more than that once it is read.
const int parts = 1000;
const int receivers = 1000;

// A folder of a message has a few files. These keep a folder of something else from taking all memory.
const qint64 file = 8 * mebibyte;
const qint64 folder = 64 * mebibyte;
const int files = 10000;

/** Of the name of a file that is written, in bytes; file systems have 255. */
const int fileName = 200;

// What tells the types of parts apart is at their beginning.
const int recognised = 16 * 1024;

// Of texts, in characters. A header may be as long as a message, and takes much more memory when it is escaped.
const int header = 65536;
const int name = 80;
const int quotation = 40;

/** Of an outline, in levels: it stays in proportion to the input, however deep that is nested. */
const int indentation = 40;

// Of slides. What is played at once beyond these is not told apart any more.
const int frames = 400;
const int media = 100; ///< in a frame
const int cues = 100000; ///< in all frames, before they are cut to that; no frame follows the one that reaches it
const int description = 300; ///< characters that say what is in a frame
const double screen = 100000; ///< pixels from edge to edge
const qint64 pictures = 7 * mebibyte; ///< all together: in Base64 not 10 MB, which is all that some viewers read
const int drawn = 1000; ///< parts of which it shows more than the name
}

#endif
