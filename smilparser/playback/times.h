// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILPARSER_TIMES_H
#define SMILPARSER_TIMES_H

#include <QtXml/QDomElement>

/** What an element states about when it plays, in seconds, none below 0. */
struct Times {
    double begin; ///< 0 when not stated
    double dur; ///< infinite when not stated
    double end; ///< infinite when not stated

    bool stateEnd() const;
};

Times readTimes(const QDomElement &element);

#endif
