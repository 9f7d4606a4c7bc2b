// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILPARSER_BENCH_SLIDES_H
#define SMILPARSER_BENCH_SLIDES_H

#include <smilparser/smilparser.h>

/** An ordinary message of so many slides, each a picture and a text. */
QByteArray slidesText(int slides);

/**
 * What that text says, with the size of its layout also where rendering takes it from. Made without reading the text:
 * the remains of a DOM would leave the heap in pieces for what is measured next.
 */
SmilDocument slidesModel(int slides);

/** The texts of the measures in @p model, in the order in which buildDom() writes them. */
QStringList measureTexts(const SmilDocument &model);

/**
 * Builds the tree of @p model in @p dom by hand, with nothing but what a host that knows its message has to call: each
 * attribute is known to be there, and the text of each measure is ready in @p measures.
 */
void buildDom(QDomDocument &dom, const SmilDocument &model, const QStringList &measures);

#endif
