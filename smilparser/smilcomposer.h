// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILCOMPOSER_H
#define SMILCOMPOSER_H

#include <smilparser/smilparser.h>

#include <QtCore/QSharedDataPointer>
#include <QtCore/QSizeF>

/**
 * @file
 * SmilComposer, which makes a presentation of a list of media.
 */

/**
 * Makes a message out of the media that a host adds, in their order. It has slides one after another, with pictures
 * above texts, so that other phones show it too.
 *
 * A slide has room for one thing to look at (SmilRef::Img, SmilRef::Video or SmilRef::Ref), one SmilRef::Text and one
 * sound (SmilRef::Audio; a SmilRef::Video takes that room too). A medium whose room is taken begins the next slide.
 *
 * A composer is a plain value: a copy goes on by itself. It opens no file, and keeps no names but those it returned.
 *
 * Cost: a name takes time linear in its length and, on average, log n in the number of names, however many are alike;
 * a message, linear in the number of media. The first change after a copy also copies the lists.
 */
class SMILPARSER_EXPORT SmilComposer
{
public:
    /**
     * A composer without media, for a screen of @p screen pixels. A side that is not finite, or below 1, is not stated
     * in the message; others are rounded to whole pixels and to six digits. @p slideDuration is how many seconds a
     * slide lasts where its media do not say; 5 when it is not finite and above 0. Durations below 0.001 s or above
     * 999999 s count as these, those of media too.
     */
    explicit SmilComposer(const QSizeF &screen = QSizeF(320, 480), double slideDuration = 5.0);

    SmilComposer(const SmilComposer &other); ///< A copy, which goes on by itself.
    SmilComposer(SmilComposer &&other) noexcept; ///< Takes over @p other, which may only be assigned to or destroyed.
    SmilComposer &operator=(const SmilComposer &other); ///< Makes this a copy of @p other.
    SmilComposer &operator=(SmilComposer &&other) noexcept; ///< Takes over @p other, as the constructor.
    ~SmilComposer(); ///< Releases what no copy shares.

    /**
     * Adds a medium to the current slide, after those there. The first medium begins a slide; so does one after
     * nextSlide(), and one whose room is taken. @p seconds is how long it lasts; a value that is not finite and above 0
     * means that this is not known.
     *
     * @return the SmilRef::src of the medium, which is name() of @p name. Send its part with that as Content-Location
     * and as the name of its Content-Type. If @p type is no SmilRef::Type, nothing is added, and the result is null.
     */
    QString add(SmilRef::Type type, const QString &name, double seconds = 0);

    /**
     * A name by which any phone finds a part, and that no other part of this message has, made of @p name, which may be
     * a path. add() uses it; call it for the parts that are on no slide.
     *
     * It is what follows the last "/" or "\", without the "." and "-" that it begins with, and with "_" for each UTF-16
     * code unit except ASCII letters, digits, ".", "-" and "_". If nothing is left, as of a null or empty name, it is
     * "part". It has at most 27 characters, and differs from all names returned before in more than letter case: it is
     * cut, and gets the first of the numbers "-2", "-3" and so on that makes it so. Both leave the extension as it is,
     * which is the last dot and what follows, if that is 1 to 8 characters. A name that needs none of this is returned
     * unchanged.
     */
    QString name(const QString &name);

    /**
     * Ends the current slide: the next medium begins another one. Without a medium since the last call, or without any,
     * this changes nothing: no slide is empty.
     */
    void nextSlide();

    /**
     * The message of all media added so far, each in a SmilNode::Par of the body for its slide. The composer is not
     * changed, and more may be added.
     *
     * - SmilNode::dur is the longest that one of the slide's media lasts, in seconds. A medium of which nothing is
     *   known counts as the slide duration, and a SmilRef::Audio as 0. If all is 0, it is the slide duration.
     * - The region "Image" is there if there is something to look at: the whole screen, or its upper 70 % if any slide
     *   has a text. Its SmilRegion::fit is "meet". The region "Text" is there if there are texts: the lower 30 %, or
     *   the whole screen if there is nothing to look at. Its fit is "scroll". All measures of regions are in percent. A
     *   sound has no region.
     * - The root layout and the top layout both have the size of the screen.
     *
     * Everything else is as in a default SmilDocument. Measures are rounded to the six digits that
     * SmilUnit::toString() writes, so the message is equal to what is read back with SmilParser::ClockDurations and
     * SmilParser::KeepRootSize.
     */
    SmilDocument message() const;

private:
    QSharedDataPointer<class SmilComposerData> d;
};
Q_DECLARE_TYPEINFO(SmilComposer, Q_MOVABLE_TYPE);

#endif
