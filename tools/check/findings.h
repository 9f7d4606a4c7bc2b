// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILTOOL_FINDINGS_H
#define SMILTOOL_FINDINGS_H

#include <QtCore/QStringList>

#include <map>
#include <utility>

/** What may be odd in a message. The first ones matter to whom it is shown. */
enum class Finding {
    UnreadMeasure,
    WrongMeasure,
    UnknownRegion,
    UnusedRegion,
    DuplicateRegion,
    MissingId,
    MissingSrc,
    EmptyTimeline,
    BlankTime,
    CrowdedSlide,
    NestedTimeline,
    NoSmil,
    MissingPart,
    DuplicatePart,
    UnusedPart,
    WrongKind,
    Lost, ///< all that follow, which matter only to who writes the message back
    MovedTopSize,
    LostInBody,
    LostElement,
    LostAttribute,
    ChangedOrder,
};

/** The names of all, in the order above: they are printed behind what is found, and can be ignored. */
QStringList findingNames();

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
    void add(Finding finding, int line, const QString &subject, const QString &detail = QString());

    /** A text for each, in the order of their lines, but for those whose names, or that of Lost, are in @p ignored. */
    QStringList lines(const QString &file, const QStringList &ignored) const;

private:
    struct Entry {
        Finding finding;
        int line;
        QString subject;
        QStringList details; ///< the first few different ones
        int count;
    };

    QList<Entry> entries;
    std::map<std::pair<Finding, QString>, int>
        indexes; ///< by subject; in order, as strangers could make hashes collide
};

#endif
