// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILPARSER_BENCH_SLIDES_H
#define SMILPARSER_BENCH_SLIDES_H

#include <smilparser/smilslideshow.h>

/**
 * What reading begins with, the text of a message; or writing, its model; or showing, its model and its tree, or its
 * text and its parts.
 */
struct Message {
    QByteArray text;
    SmilDocument model;
    QDomDocument dom;
    QList<SmilPart> parts = {};
};

/** An ordinary message of so many slides, each a picture and a text. */
Message slidesText(int slides);

/** The same with its parts, each with all names that it may have. */
Message slidesParts(int slides);

/**
 * What that text says, with the size of its layout also where rendering takes it from. Made without reading the text:
 * the remains of a DOM would leave the heap in pieces for what is measured next.
 */
Message slidesModel(int slides);

/** So many regions whose names, as strangers can choose them, have one and the same hash in Qt 5. */
Message collidingRegions(int regions);

/** As many whose names differ as those do, in the same places, and have hashes of their own. */
Message differingRegions(int regions);

/**
 * Builds the tree of @p model in @p dom by hand, with nothing but what a host that knows its message has to call: each
 * attribute is known to be there, and each measure to be a whole number of a known unit.
 */
void buildDom(QDomDocument &dom, const SmilDocument &model);

#endif
