// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILCOMPOSER_H
#define SMILCOMPOSER_H

#include <smilparser/smilparser.h>

#include <QtCore/QSharedDataPointer>
#include <QtCore/QSizeF>

/**
 * @file
 * SmilComposer, which makes a presentation out of a list of media.
 */

/**
 * Makes a message out of the media that a host adds, in their order. The message has slides one after another, with
 * pictures above texts, because other phones can show that.
 *
 * A slide has room for one thing to look at (SmilRef::Img, SmilRef::Video or SmilRef::Ref), one SmilRef::Text and one
 * sound (SmilRef::Audio; a SmilRef::Video also takes this room). If the room for a medium is taken, it begins the next
 * slide.
 *
 * A composer is a plain value: a copy is independent of the original. It opens no file, and keeps only the names that
 * it returned.
 *
 * Cost: a name takes time linear in its length and, on average, log n in the number of names, however many are alike. A
 * message takes time linear in the number of media. The first change after a copy also copies the lists.
 */
class SMILPARSER_EXPORT SmilComposer
{
public:
    /**
     * A composer without media, for a screen of @p screen pixels. A side that is not finite, or below 1, is not stated
     * in the message. Other sides are rounded to whole pixels and to six digits. @p slideDuration is how many seconds a
     * slide lasts if its media do not say; if it is not finite and above 0, it is 5. A duration below 0.001 s or above
     * 999999 s, also of a medium, is replaced by the nearer of these two.
     */
    explicit SmilComposer(const QSizeF &screen = QSizeF(320, 480), double slideDuration = 5.0);

    SmilComposer(const SmilComposer &other); ///< An independent copy.
    SmilComposer(SmilComposer &&other) noexcept; ///< Takes over @p other, which may only be assigned to or destroyed.
    SmilComposer &operator=(const SmilComposer &other); ///< Makes this a copy of @p other.
    SmilComposer &operator=(SmilComposer &&other) noexcept; ///< Takes over @p other, as the constructor.
    ~SmilComposer(); ///< Releases what no copy shares.

    /**
     * Adds a medium at the end of the current slide. The first medium begins a slide; so does the first one after
     * nextSlide(), and one whose room is taken. @p seconds is how long the medium lasts; a value that is not finite and
     * above 0 means that this is not known.
     *
     * @return the SmilRef::src of the medium, which is name() of @p name. Send its part with this as Content-Location
     * and as the "name" of its Content-Type. If @p type is not a SmilRef::Type, nothing is added, and the result is
     * null.
     */
    QString add(SmilRef::Type type, const QString &name, double seconds = 0);

    /**
     * Makes a name out of @p name, which may be a path. Any phone can find a part by this name, and no other part of
     * this message has it. add() calls this; call it yourself for the parts that are on no slide.
     *
     * The name is what follows the last "/" or "\", without the "." and "-" at its beginning. Each UTF-16 code unit
     * except ASCII letters, digits, ".", "-" and "_" is replaced by "_". If nothing is left, as of a null or empty
     * name, it is "part". It is cut to at most 27 characters. If it was returned before, in any letter case, it gets
     * the first of the numbers "-2", "-3" and so on that makes it new. Cutting and numbering keep the extension, which
     * is the last dot and the 1 to 8 characters after it. A name that needs none of this is returned unchanged.
     */
    QString name(const QString &name);

    /**
     * Ends the current slide: the next medium begins another one. If no medium was added since the last call, this
     * changes nothing, so no slide is empty.
     */
    void nextSlide();

    /**
     * The message with all media added so far. Each slide is a SmilNode::Par of the body. You may add more media
     * afterwards.
     *
     * - SmilNode::dur is how long the longest of the slide's media lasts, in seconds. If the length of a medium is not
     *   known, a SmilRef::Audio counts as 0 and any other medium as the slide duration. If all of them are 0, it is the
     *   slide duration.
     * - If any slide has something to look at, there is a region "Image": the whole screen, or its upper 70 % if any
     *   slide has a text. Its SmilRegion::fit is "meet". If any slide has a text, there is a region "Text": the lower
     *   30 %, or the whole screen if there is nothing to look at. Its fit is "scroll". All measures of regions are in
     *   percent. A sound has no region.
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
