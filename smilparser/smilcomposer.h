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
 * Makes a message that other phones show out of the media that a host adds, in their order: slides one after another,
 * pictures above texts.
 *
 * A slide has room for one thing to look at (SmilRef::Img, SmilRef::Video or SmilRef::Ref), one SmilRef::Text and one
 * sound (SmilRef::Audio; a SmilRef::Video takes that room too). A medium whose room is taken begins the next slide, so
 * a host that adds a picture and its text in turn need not say where a slide ends.
 *
 * @code
 * SmilComposer composer;
 * composer.add(SmilRef::Img, QStringLiteral("beach.jpg"));
 * const QString src = composer.add(SmilRef::Text, QStringLiteral("a&b.txt")); // "a_b.txt": send the text as that
 * const QByteArray smil = SmilParser(composer.message()).toXml();
 * @endcode
 *
 * A composer is a plain value: a copy goes on by itself. It opens no file and keeps no names but those it has returned.
 */
class SMILPARSER_EXPORT SmilComposer
{
public:
    /**
     * A composer without media, for a screen of that many pixels. A side that is not finite, or below 1, is not stated
     * in the message; others are rounded to whole pixels, and to six digits. @p slideDuration is how many seconds a
     * slide lasts where its media do not say; 5 where it is not finite and above 0. Durations below 0.001 s and above
     * 999999 s count as these, those of media too: others would be written with an exponent, which no phone reads.
     * Cost: constant.
     */
    explicit SmilComposer(const QSizeF &screen = QSizeF(320, 480), double slideDuration = 5.0);

    SmilComposer(const SmilComposer &other); ///< A copy, which goes on by itself.
    SmilComposer(
        SmilComposer &&other) noexcept; ///< The same; @p other may only be destroyed or assigned to after that.
    SmilComposer &operator=(const SmilComposer &other); ///< Makes this a copy of @p other.
    SmilComposer &operator=(SmilComposer &&other) noexcept; ///< The same, as the constructor.
    ~SmilComposer(); ///< Releases what no copy shares.

    /**
     * Puts a medium into the current slide, after those there. It begins a new slide if it is the first one, after
     * nextSlide(), and if the room that it needs is taken. @p seconds is how long it lasts; a value that is not finite
     * and above 0 says that nothing is known of that.
     *
     * @return the SmilRef::src of the medium, which is name() of @p name. Its part is to be sent under it, as its
     * Content-Location and as the name of its Content-Type, which is where phones look. A null string, and nothing is
     * added, if @p type is no SmilRef::Type: rendering would leave it out.
     *
     * Cost: that of name(). The first time after the composer was copied, it is also that of a copy of its lists.
     */
    QString add(SmilRef::Type type, const QString &name, double seconds = 0);

    /**
     * A name by which any phone finds a part, and that no other part of this message has, made of @p name, which may be
     * a path. add() uses it. A host calls it for a part that is on no slide: a vCard, the SMIL itself, what a forwarded
     * message has already.
     *
     * It is what follows the last "/" or "\", without the "." and "-" that it begins with, and with "_" for each UTF-16
     * code unit except ASCII letters, digits, ".", "-" and "_". If nothing is left, as of a null or empty name, it is
     * "part". It has at most 27 characters, because some phones lose a part whose Content-Type is longer with its name,
     * and differs from all that were returned before in more than letter case: it is cut, and gets the first number of
     * "-2", "-3" and so on that makes it so. Both leave the extension as it is: the last dot and what follows, if that
     * is 1 to 8 characters. A name that needs nothing of this comes back as it is.
     *
     * Cost: linear in the length of the name, and, on average, log n in the number of names, however many are alike.
     */
    QString name(const QString &name);

    /**
     * Ends the current slide: the next medium begins another one. Where there is no medium since the last call, or none
     * at all, it changes nothing: no slide is empty. Cost: constant.
     */
    void nextSlide();

    /**
     * The message of all media added so far, each in a SmilNode::Par of the body for its slide. The composer is not
     * changed, and more may be added.
     *
     * - SmilNode::dur is the longest that one of the slide's media lasts, in seconds. One of which nothing is known
     *   counts as the composer's slide duration, a SmilRef::Audio as 0; if all is 0, the slide duration is taken. So
     *   a picture with a short sound is shown as long as one without.
     * - The region "Image" is where there is something to look at: the whole screen, or its upper 70 % if there are
     *   texts too, in whichever slide. Its SmilRegion::fit is "meet". The region "Text" is the lower 30 %, or the whole
     *   if there is nothing to look at, and its fit is "scroll". A region without media is left out. All measures of
     *   regions are in percent. A sound has no region.
     * - The root layout and the top layout are both the size of the screen.
     *
     * Everything else is as in a default SmilDocument, which is the message without media but for the size. Measures
     * are rounded to the six digits that SmilUnit::toString() writes: so what is written, and read with both
     * SmilParser::ReadOptions, is equal to what was returned.
     *
     * Cost: linear in the number of media.
     */
    SmilDocument message() const;

private:
    QSharedDataPointer<class SmilComposerData> d;
};
Q_DECLARE_TYPEINFO(SmilComposer, Q_MOVABLE_TYPE);

#endif
