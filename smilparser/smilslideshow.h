// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILSLIDESHOW_H
#define SMILSLIDESHOW_H

#include <smilparser/smilplayback.h>

/**
 * @file
 * A whole message as slides: SmilSlideshow makes them of the SMIL and of all other parts, whatever arrived.
 *
 * All are plain values: a copy shares what it holds with the source until one of the two is changed, and costs the same
 * however much that is. What has been moved from may only be destroyed or assigned to. Nothing is thrown, and only
 * reading the SMIL gives warnings, those of SmilParser::parse().
 */

/**
 * One part of a message, as its headers describe it. Fields hold what the headers say, verbatim: a Content-ID with or
 * without its angle brackets. They are null by default, and where the headers say nothing.
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
     * Whether #type is "application/smil", "application/x-smil" or "application/smil+xml". As everywhere here, its
     * parameters, the blanks around it and the letter case do not matter.
     */
    bool isSmil() const;

    /**
     * The element for the part, by #type: SmilRef::Img for "image/...", SmilRef::Text for "text/plain", SmilRef::Audio
     * for "audio/...", SmilRef::Video for "video/...", and SmilRef::Ref for everything else, a null or empty type too.
     */
    SmilRef::Type kind() const;

    /**
     * The text that @p data is, which is the content of this part; empty when @p data is. It is decoded whole:
     *
     * - A byte order mark of UTF-8 or UTF-16 decides, and is dropped.
     * - Without one, the parameter "charset" of #type decides, with or without quotation marks and in any letter case,
     *   if Qt knows that charset. What is wrong in it becomes U+FFFD; a character that is cut off at the end may be
     *   left out. "utf-16" and "iso-10646-ucs-2" are big-endian.
     * - Without a charset, with one that Qt does not know, and with "us-ascii", "ascii", "ansi_x3.4-1968" or "utf-8",
     *   the text is UTF-8 if all of it can be, or else ISO-8859-1.
     *
     * Data that is no text gives a text too, of no use. Cost: linear in the length of @p data.
     */
    QString text(const QByteArray &data) const;

    bool operator==(const SmilPart &other) const; ///< Whether all fields are equal; a null text equals an empty one.
    bool operator!=(const SmilPart &other) const; ///< The opposite of "==".

private:
    QSharedDataPointer<class SmilPartData> d; // for fields to come
};
Q_DECLARE_TYPEINFO(SmilPart, Q_MOVABLE_TYPE);

/** One slide: what is shown from its begin to its end. The default one has no media and takes no time. */
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
     * What the slide shows, in reading order: from the top of the screen down, then from left to right, by where the
     * rectangles of SmilScreen::rects() begin on the SmilScreen of SmilSlideshow::layout(). Those that begin at the
     * same point are in the order of the timeline. Sounds come last.
     */
    QList<SmilCue> cues;

    QList<int> parts; ///< of each of #cues, the index of its part in the message; -1 when the message lacks it

    bool operator==(const SmilSlide &other) const; ///< Whether all fields are equal.
    bool operator!=(const SmilSlide &other) const; ///< The opposite of "==".

private:
    QSharedDataPointer<class SmilSlideData> d; // for fields to come
};
Q_DECLARE_TYPEINFO(SmilSlide, Q_MOVABLE_TYPE);

/**
 * A message as slides. Every part that is no SMIL is on a slide, also when the SMIL does not name it, is broken or is
 * missing.
 *
 * First come the slides of the SMIL: those of SmilTimeline::slideBegins(), with the cues of
 * SmilTimeline::cuesOnSlide(). Each lasts until the next one begins, and the last one until SmilTimeline::duration(). A
 * SmilRef::src means the part that SmilParts::find() finds when first every SmilPart::contentId was added, then every
 * SmilPart::location, then every SmilPart::name.
 *
 * Then come the parts that are left, in their order: those that are not SmilPart::isSmil() and that no slide shows so
 * far. SmilComposer's rule says how many are on one slide. The first of these slides begins at
 * SmilTimeline::duration(), or at 0 when the SMIL gave no slide. Each lasts as long as the longest of its media: the
 * `length` of the part, or else 0 for a SmilRef::Audio and `slideDuration` for any other; and `slideDuration` when all
 * that is 0. The cue of a part that is left has its SmilPart::kind(), as SmilRef::src the first of SmilPart::contentId,
 * SmilPart::location and SmilPart::name that is not empty, and the begin and end of its slide. Its other fields have
 * their default.
 *
 * Cost: constructing takes what parse(), SmilTimeline and SmilScreen take, and n log n in the number of media and
 * parts. A slide is made when it is asked for, in time linear in the media of the message and n log n in its own.
 * Comparing is linear in the media and parts that the two do not share. Everything else is constant.
 */
class SMILPARSER_EXPORT SmilSlideshow
{
public:
    /** One without slides, of which nothing was read: outcome() is SmilParser::NotWellFormed. */
    SmilSlideshow();

    /**
     * The slides of the message that consists of @p parts.
     *
     * @p smil is the content of its SMIL part, which is read with @p options by SmilParser::parse(). Null or empty
     * bytes stand for no SMIL part, and give no warning.
     *
     * @p parts may include the SMIL part, which is recognised by SmilPart::isSmil(), and is not shown. It may be empty;
     * then everything that the SMIL names is missing. A part need have neither name nor type.
     *
     * @p slideDuration is how many seconds everything lasts that states no time; 5 when it is not finite and above 0.
     * @p length returns how many seconds a part takes by itself, by its index in @p parts. The result counts when it is
     * finite and above 0; @p length may be null. It is called as SmilTimeline calls its own, for media whose part is
     * there, and then once for each part that is left.
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

    SmilLayout layout() const; ///< That of the SMIL, for a SmilScreen; the default one when no SMIL was read.

    /**
     * The title of the message: attribute "title" of "head", or else the "content" of the first "meta" whose name is
     * "title" in any letter case. Verbatim; null when not stated. An empty one is not stated.
     */
    QString title() const;

    QString background() const; ///< SmilTimeline::background(); null when not stated.

    SmilParser::Outcome outcome() const; ///< Of SmilParser::parse(); SmilParser::NotWellFormed also without SMIL.

    /** The XML reader's message about a SMIL that is SmilParser::NotWellFormed, for a log; otherwise null. */
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
