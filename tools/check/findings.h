// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILTOOL_FINDINGS_H
#define SMILTOOL_FINDINGS_H

#include "input/message.h"

#include <map>

/**
 * The names of all findings, which are printed after what is found, and can be ignored. "lost" stands for all after it,
 * which matter only to who writes the message back.
 */
const QStringList &findingNames();

/** A text from a message as findings quote it: in quotation marks, and not much of it. */
QString excerpt(const QString &text);

/** What was found in a message. */
class Findings
{
public:
    /**
     * Adds one at a line, which is 0 when it is at none. One with the same subject is the same, found again: it is said
     * once, at the first of the lines. @p detail says more of this place.
     */
    void add(const char *name, int line, const QString &subject, const QString &detail = QString());

    /** A text for each, in the order of their lines, except those that are @p ignored. */
    QStringList lines(const QString &file, const QStringList &ignored) const;

private:
    struct Entry {
        QString name;
        int line;
        QString subject;
        QStringList details; ///< the first few different ones
        int count;
    };

    QList<Entry> entries;
    std::map<QString, int> indexes; ///< by subject; in order, as strangers could make hashes collide
};

/** Adds what of the message's own tree the library does not write back, or writes otherwise. */
void findLosses(const QDomElement &smil, Findings &found);

/** Adds measures, regions, media and their parts that are not as they should be. */
void findFaults(const QDomElement &smil, Message &message, Findings &found);

/**
 * Adds what plays at the same time in one place, and when nothing can be seen. Many phones show one thing to look at,
 * one text and one sound in a region; the finding is at the first medium that comes in addition to another.
 */
void findTiming(const QDomElement &smil, const SmilLayout &layout, Findings &found);

#endif
