// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILSLIDESHOW_H
#define SMILSLIDESHOW_H

#include <smilparser/smilplayback.h>

/**
 * @file
 * A whole message as slides: SmilSlideshow makes them of the SMIL and of all other parts, whatever arrived.
 *
 * All are plain values. A copy shares what it holds with the source until one of the two is changed, and costs the same
 * however much that is. What has been moved from may only be destroyed or assigned to. None of these warns, except that
 * SmilSlideshow reads a SMIL part with SmilParser::parse(); none throws.
 */

/**
 * One part of a message, as its headers describe it. Fields hold what the message says, verbatim: a Content-ID with or
 * without its angle brackets. By default all are null, as where the message says nothing.
 */
class SMILPARSER_EXPORT SmilPart
{
public:
    SmilPart(); ///< A part without names and type.
    SmilPart(const SmilPart &other); ///< A copy.
    SmilPart(SmilPart &&other) noexcept; ///< The same; @p other may only be destroyed or assigned to after that.
    SmilPart &operator=(const SmilPart &other); ///< Makes this a copy of @p other.
    SmilPart &operator=(SmilPart &&other) noexcept; ///< The same, as the constructor.
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
     * The text that @p data is, which is the content of this part; null when @p data is null. It is decoded whole:
     *
     * - A byte order mark of UTF-8 or UTF-16 decides, and is dropped.
     * - Without one, the parameter "charset" of #type does, with or without quotation marks and in any letter case, if
     *   Qt knows that charset. What is wrong in it becomes U+FFFD. "utf-16" and "iso-10646-ucs-2" are big-endian.
     * - Else the text is UTF-8 if all of it can be, and ISO-8859-1 if not. This is so where no charset is stated or Qt
     *   does not know it, and also for "us-ascii", "ascii", "ansi_x3.4-1968" and "utf-8", which phones state whatever
     *   the text is.
     *
     * The content of a part that is no text gives a text too, of no use. Cost: linear in the length of @p data.
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
    SmilSlide(SmilSlide &&other) noexcept; ///< The same; @p other may only be destroyed or assigned to after that.
    SmilSlide &operator=(const SmilSlide &other); ///< Makes this a copy of @p other.
    SmilSlide &operator=(SmilSlide &&other) noexcept; ///< The same, as the constructor.
    ~SmilSlide(); ///< Releases what no copy shares.

    double begin; ///< seconds from the beginning of the message, 0 by default; may be infinite
    double end; ///< as #begin, and never before it

    /**
     * What the slide shows, in reading order: from the upper edge of the screen down, then from its left edge to the
     * right, by SmilScreen::rects() on the screen of SmilSlideshow::layout(). Media whose rectangles begin at the same
     * point are in the order of the timeline. Sounds come last.
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
 * A message as slides. Every part that is no SMIL is on a slide, whatever the SMIL says, and also when it is broken or
 * missing.
 *
 * @code
 * const SmilSlideshow show(smil, parts);
 * const SmilScreen screen(show.layout());
 * for (int i = 0; i < show.count(); ++i) {
 *     const SmilSlide slide = show.slide(i);
 *     const QList<QRectF> rects = screen.rects(slide.cues);
 *     ... // cue j of the slide is part slide.parts.at(j), and its place is rects.at(j)
 * }
 * @endcode
 *
 * First come the slides of the SMIL: those of SmilTimeline::slideBegins(), with what SmilTimeline::cuesOnSlide() gives.
 * Each ends where the next one begins, so that no time between two slides is blank, and the last one ends at
 * SmilTimeline::duration(). A document without a "head" has slides too.
 *
 * Then come the parts that are left: those that are not SmilPart::isSmil() and that no slide so far shows, because
 * nobody refers to them, what refers to them never plays, or another part has their name. They are put on further
 * slides in their order, by the rule of SmilComposer: a slide has room for one thing to look at, one text and one
 * sound, and a video takes the room of a sound too. The first of these slides begins at SmilTimeline::duration(), or at
 * 0 when the SMIL gave no slide. Each lasts as long as the longest of its media: that is the `length` of a part, where
 * it is not known 0 for a SmilRef::Audio and else `slideDuration`, and `slideDuration` when all that is 0. The cue of a
 * part that is left has its SmilPart::kind(), as SmilRef::src the first of SmilPart::contentId, SmilPart::location and
 * SmilPart::name that is not empty, and the begin and end of its slide; its other fields are as by default.
 *
 * A SmilRef::src means the part that SmilParts::find() finds, when first the SmilPart::contentId of all parts were
 * added, then every SmilPart::location, then every SmilPart::name.
 */
class SMILPARSER_EXPORT SmilSlideshow
{
public:
    /** One without slides, of which nothing was read: outcome() is SmilParser::NotWellFormed. */
    SmilSlideshow();

    /**
     * The slides of the message that consists of @p parts.
     *
     * @p smil is the content of its SMIL part. It is read with @p options, as by SmilParser::parse(), with that
     * function's warnings. Null or empty bytes stand for no SMIL part, and give no warning.
     *
     * @p parts may include the SMIL part, which is recognised by SmilPart::isSmil(), and is not shown. It may be empty;
     * then everything that the SMIL names is missing. A part need have neither name nor type.
     *
     * @p slideDuration is how many seconds stay what states no time; it is 5 when it is not finite and above 0.
     * @p length is how many seconds a part takes by itself, by its index in @p parts. It counts when it is finite and
     * above 0; it may be null. It is asked as SmilTimeline asks, for media whose part is there, and then once for each
     * part that is left.
     *
     * Cost: that of parse(), of SmilTimeline and of SmilScreen, and n log n in the number of media and parts.
     */
    explicit SmilSlideshow(const QByteArray &smil, const QList<SmilPart> &parts,
                           SmilParser::ReadOptions options = SmilParser::AsWritten, double slideDuration = 5.0,
                           const std::function<double(int)> &length = nullptr);

    SmilSlideshow(const SmilSlideshow &other); ///< A copy.
    SmilSlideshow(SmilSlideshow &&other) noexcept; ///< The same; @p other may then only be destroyed or assigned to.
    SmilSlideshow &operator=(const SmilSlideshow &other); ///< Makes this a copy of @p other.
    SmilSlideshow &operator=(SmilSlideshow &&other) noexcept; ///< The same, as the constructor.
    ~SmilSlideshow(); ///< Releases what no copy shares.

    /** How many slides there are. Cost: constant, as of everything below, unless stated. */
    int count() const;

    /**
     * The slide at @p index, from 0 on; the default one outside of 0 to count() - 1. It is made when it is asked for.
     * Cost: linear in the number of media of the message, and n log n in that of the slide.
     */
    SmilSlide slide(int index) const;

    double duration() const; ///< The end of the last slide, in seconds; 0 without slides; may be infinite.

    SmilLayout layout() const; ///< That of the SMIL, for a SmilScreen; the default one when no SMIL was read.

    /**
     * The title of the message: attribute "title" of "head", or else the "content" of the first "meta" whose name is
     * "title" in any letter case; null when not stated, which an empty one is not. Any text may stand there.
     */
    QString title() const;

    QString background() const; ///< SmilTimeline::background(); null when not stated.

    /** What became of the SMIL: SmilParser::NotWellFormed also when there was none. */
    SmilParser::Outcome outcome() const;

    /**
     * What the XML reader said of a SMIL that is SmilParser::NotWellFormed, for a log; null otherwise, and when there
     * was no SMIL.
     */
    QString error() const;
    int errorLine() const; ///< The line of error(), from 1 on; 0 when that is null.
    int errorColumn() const; ///< The column of error(); 0 when that is null.

    /** Whether all of the above is equal in both. Cost: linear in the media and parts that the two do not share. */
    bool operator==(const SmilSlideshow &other) const;
    bool operator!=(const SmilSlideshow &other) const; ///< The opposite of "==".

private:
    QSharedDataPointer<class SmilSlideshowData> d;
};
Q_DECLARE_TYPEINFO(SmilSlideshow, Q_MOVABLE_TYPE);

#endif
