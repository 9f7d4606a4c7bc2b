// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILPARSER_ELEMENTS_H
#define SMILPARSER_ELEMENTS_H

#include <QtCore/QString>

// The names of the elements that are both read and written, but for those of the timeline: they are in timeline.h.
extern const QString bodyElement;
extern const QString headElement;
extern const QString layoutElement;
extern const QString metaElement;
extern const QString regionElement;
extern const QString rootLayoutElement;
extern const QString smilElement;
extern const QString topLayoutElement;

#endif
