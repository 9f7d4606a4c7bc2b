// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILSLIDESHOW_H
#define SMILSLIDESHOW_H

#include <smilparser/smilplayback.h>

/**
 * @file
 * A whole message as slides: SmilSlideshow makes them of the SMIL and of all other parts, whatever arrived.
 *
 * All classes are plain values: a copy shares what it holds with the original until one of the two is changed, and
 * costs the same however much that is. You may only destroy a value that was moved from, or assign to it. Nothing is
 * thrown. Only reading the SMIL gives warnings, those of SmilParser::parse().
 */

/**
 * One part of a message, as its headers describe it. Copy the headers into the fields verbatim; a Content-ID may keep
 * its angle brackets. Fields are null by default; leave them so if the headers say nothing.
 */
class SMILPARSER_EXPORT SmilPart
{
public:
    SmilPart(); ///< A part without names and type.
    SmilPart(const SmilPart &other); ///< A copy.
    SmilPart(SmilPart &&other) noexcept; ///< Takes over @p other, which may then only be assigned to or destroyed.
    SmilPart &operator=(const SmilPart &other); ///< Makes this a copy of @p other.
    SmilPart &operator=(SmilPart &&other) noexcept; ///< Takes over @p other, as the constructor.
    ~SmilPart(); ///< Releases what no copy shares.

    QString contentId; ///< Content-ID
    QString location; ///< Content-Location
    QString name; ///< "name" of Content-Type, or else "filename" of Content-Disposition
    QString type; ///< Content-Type, with or without parameters: "text/plain; charset=utf-8"

    /**
     * Whether #type is "application/smil", "application/x-smil" or "application/smil+xml". In this and the other
     * functions, its parameters, the blanks around it and its letter case do not matter.
     */
    bool isSmil() const;

    /**
     * The element for the part, by #type: SmilRef::Img for "image/...", SmilRef::Text for "text/plain", SmilRef::Audio
     * for "audio/...", SmilRef::Video for "video/...", and SmilRef::Ref for everything else, including a null or empty
     * type.
     */
    SmilRef::Type kind() const;

    /**
     * Decodes @p data, the content of this part, into text. The result is empty if @p data is empty. All of it is
     * decoded:
     *
     * - A byte order mark of UTF-8 or UTF-16 decides, and is dropped.
     * - Without one, the parameter "charset" of #type decides, with or without quotation marks and in any letter case,
     *   if Qt knows that charset. Malformed bytes become U+FFFD; a character that is cut off at the end may be left
     *   out. "utf-16" and "iso-10646-ucs-2" are big-endian.
     * - Without a charset, with one that Qt does not know, and with "us-ascii", "ascii", "ansi_x3.4-1968" or "utf-8",
     *   the text is read as UTF-8 if all of it is valid UTF-8, and otherwise as ISO-8859-1.
     *
     * Data that is not a text gives a useless text. Cost: linear in the length of @p data.
     */
    QString text(const QByteArray &data) const;

    bool operator==(const SmilPart &other) const; ///< Whether all fields are equal; a null text equals an empty one.
    bool operator!=(const SmilPart &other) const; ///< The opposite of "==".

private:
    QSharedDataPointer<class SmilPartData> d; // for fields to come
};
Q_DECLARE_TYPEINFO(SmilPart, Q_MOVABLE_TYPE);

/** One slide: what is shown from its begin to its end. The default slide has no media and takes no time. */
class SMILPARSER_EXPORT SmilSlide
{
public:
    SmilSlide(); ///< The default slide.
    SmilSlide(const SmilSlide &other); ///< A copy.
    SmilSlide(SmilSlide &&other) noexcept; ///< Takes over @p other, which may then only be assigned to or destroyed.
    SmilSlide &operator=(const SmilSlide &other); ///< Makes this a copy of @p other.
    SmilSlide &operator=(SmilSlide &&other) noexcept; ///< Takes over @p other, as the constructor.
    ~SmilSlide(); ///< Releases what no copy shares.

    double begin; ///< seconds from the beginning of the message, 0 by default; may be infinite
    double end; ///< as #begin, and never before it

    /**
     * What the slide shows, in reading order: from the top of the screen down, then from left to right. This goes by
     * the top left corners of SmilScreen::rects() on the SmilScreen of SmilSlideshow::layout(). Media with the same
     * corner are in the order of the timeline. Sounds come last.
     */
    QList<SmilCue> cues;

    QList<int> parts; ///< for each of #cues, the index of its part in the message; -1 if the message does not have it

    bool operator==(const SmilSlide &other) const; ///< Whether all fields are equal.
    bool operator!=(const SmilSlide &other) const; ///< The opposite of "==".

private:
    QSharedDataPointer<class SmilSlideData> d; // for fields to come
};
Q_DECLARE_TYPEINFO(SmilSlide, Q_MOVABLE_TYPE);

/**
 * A message as slides. Every part that is not SMIL is on a slide, even if the SMIL does not name it, is broken or is
 * missing.
 *
 * First come the slides of the SMIL: those of SmilTimeline::slideBegins(), with the cues of
 * SmilTimeline::cuesOnSlide(). Each lasts until the next one begins, and the last one until SmilTimeline::duration().
 * SmilParts::find() finds the part that a SmilRef::src means. Every SmilPart::contentId is added to the SmilParts
 * first, then every SmilPart::location, then every SmilPart::name.
 *
 * Then come the parts that are left, in their order: those that are not SmilPart::isSmil() and that no slide shows so
 * far. They are distributed over slides as SmilComposer does it. The first of these slides begins at
 * SmilTimeline::duration(), or at 0 if the SMIL gave no slide. Each slide lasts as long as the longest of its media. A
 * medium lasts for the `length` of its part. If that is not known, a SmilRef::Audio counts as 0 and any other medium as
 * `slideDuration`. If all of them are 0, the slide lasts for `slideDuration`. The cue of a part that is left has its
 * SmilPart::kind(), and the begin and end of its slide. Its SmilRef::src is the first of SmilPart::contentId,
 * SmilPart::location and SmilPart::name that is not empty. Its other fields have their default values.
 *
 * Cost: constructing takes what parse(), SmilTimeline and SmilScreen take, and n log n in the number of media and
 * parts. slide() makes a slide in time linear in the media of the message and n log n in its own. Comparing is linear
 * in the media and parts that the two do not share. Everything else is constant.
 */
class SMILPARSER_EXPORT SmilSlideshow
{
public:
    /** A slide show without slides. Nothing was read: outcome() is SmilParser::NotWellFormed. */
    SmilSlideshow();

    /**
     * The slides of the message that consists of @p parts.
     *
     * @p smil is the content of its SMIL part. SmilParser::parse() reads it with @p options. Null or empty bytes mean
     * that there is no SMIL part, and give no warning.
     *
     * @p parts may include the SMIL part. SmilPart::isSmil() recognises it, and it is not shown. If @p parts is empty,
     * everything that the SMIL names is missing. A part needs neither a name nor a type.
     *
     * @p slideDuration is how many seconds a medium lasts that states no time; if it is not finite and above 0, it is
     * 5. @p length returns how many seconds a part takes by itself, given its index in @p parts. The result is ignored
     * unless it is finite and above 0. @p length may be null. It is called when SmilTimeline calls its own `length`,
     * for media whose part is there, and then once for each part that is left.
     */
    explicit SmilSlideshow(const QByteArray &smil, const QList<SmilPart> &parts,
                           SmilParser::ReadOptions options = SmilParser::AsWritten, double slideDuration = 5.0,
                           const std::function<double(int)> &length = nullptr);

    SmilSlideshow(const SmilSlideshow &other); ///< A copy.
    SmilSlideshow(SmilSlideshow &&other) noexcept; ///< Takes over @p other, which may only be assigned to or destroyed.
    SmilSlideshow &operator=(const SmilSlideshow &other); ///< Makes this a copy of @p other.
    SmilSlideshow &operator=(SmilSlideshow &&other) noexcept; ///< Takes over @p other, as the constructor.
    ~SmilSlideshow(); ///< Releases what no copy shares.

    int count() const; ///< How many slides there are.

    SmilSlide slide(int index) const; ///< The slide at @p index; the default one outside of 0 to count() - 1.

    double duration() const; ///< The end of the last slide, in seconds; 0 without slides; may be infinite.

    SmilLayout layout() const; ///< The layout of the SMIL, for a SmilScreen; the default one if no SMIL was read.

    /**
     * The title of the message: attribute "title" of "head", or else the "content" of the first "meta" whose name is
     * "title" in any letter case. It is verbatim, and null if not stated. An empty title counts as not stated.
     */
    QString title() const;

    QString background() const; ///< SmilTimeline::background(); null when not stated.

    SmilParser::Outcome outcome() const; ///< That of SmilParser::parse(); SmilParser::NotWellFormed without SMIL.

    /** The XML reader's message if the SMIL is SmilParser::NotWellFormed, for a log; otherwise null. */
    QString error() const;
    int errorLine() const; ///< The line of error(), from 1 on; 0 when that is null.
    int errorColumn() const; ///< The column of error(); 0 when that is null.

    /** Whether all of the above is equal in both. */
    bool operator==(const SmilSlideshow &other) const;
    bool operator!=(const SmilSlideshow &other) const; ///< The opposite of "==".

private:
    QSharedDataPointer<class SmilSlideshowData> d;
};
Q_DECLARE_TYPEINFO(SmilSlideshow, Q_MOVABLE_TYPE);

#endif
