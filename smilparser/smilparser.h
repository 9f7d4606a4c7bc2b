// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILPARSER_H
#define SMILPARSER_H

#include <smilparser/smilparser_export.h>

#include <QtCore/QBuffer>
#include <QtCore/QByteArray>
#include <QtCore/QFlags>
#include <QtCore/QList>
#include <QtCore/QString>
#include <QtXml/QDomDocument>

/**
 * @file
 * What all hosts of the library need: the model of a presentation (SmilUnit and the records up to SmilDocument) and
 * SmilParser, which reads SMIL text into the model, and writes the model as a DOM or as text. To show a message,
 * smilplayback.h has more; to make one, smilcomposer.h.
 *
 * The model types are plain values. A copy shares its text and lists with the source until one of the two is changed:
 * it costs the same however much it holds, and a change to one does not show in the other. The one exception is that of
 * all lists of Qt: a reference into a list, taken before the copy. A change through it shows in both. A field may be
 * set to anything: nothing is checked on the way in, and the field says what rendering makes of it. The order and types
 * of the fields and the numbers of the enumerators are part of the binary interface and do not change.
 *
 * Two values of a model type are equal ("==") if all their fields are: texts character by character, a null one being
 * equal to an empty one; lists record by record, in order; measures by SmilUnit::operator==(). So a copy is equal to
 * its source. Comparing takes time in proportion to what the smaller of the two holds, less what the two share, and one
 * call level per level of nested nodes. It changes neither.
 *
 * The host program must define the flag that switches the library's debug messages, MMSLogger::qdebugEnabled, which
 * smilparser/mmslogger.h declares.
 */

/**
 * A size, position or duration: a number and the unit it was written in. Only convertClock() converts between units: it
 * makes seconds of all. The default is the invalid measure: not #valid, #NoUnit, 0.
 */
class SMILPARSER_EXPORT SmilUnit
{
public:
    /** The units. The text of a measure is its number followed by the suffix given here. */
    enum Unit {
        Pt = 0, ///< points, "pt"
        In = 1, ///< inches, "in"
        Cm = 2, ///< centimetres, "cm"
        Px = 3, ///< pixels, "px"; also a number with no suffix
        Percent = 4, ///< percent of the surrounding size, "%"
        Sec = 5, ///< seconds, "s"
        NoUnit = 6 ///< no suffix; the unit of a measure that was not understood
    };

    /** The invalid measure. */
    SmilUnit()
        : valid(false)
        , unit(NoUnit)
        , value(0.0)
    {
    }

    /**
     * The measure that @p text states, by the rules of convert(); the invalid measure when the text is null, empty or
     * not understood. Cost: linear in the length of the text.
     */
    explicit SmilUnit(const QString &text)
        : valid(false)
        , unit(NoUnit)
        , value(0.0)
    {
        valid = convert(text);
    }

    /**
     * The measure of @p number in @p kind; it is #valid, whatever the number: toString() says what is written of it.
     */
    SmilUnit(double number, Unit kind)
        : valid(true)
        , unit(kind)
        , value(number)
    {
    }

    /**
     * Reads a number with an optional unit from @p text into #unit and #value; #valid is neither read nor changed.
     *
     * The suffixes "pt", "in", "cm", "px", "%" and "s" are looked for in this order and in lower case. The first of the
     * list that is found, anywhere in the text, gives the unit. What precedes its first occurrence is the number; what
     * follows is ignored. If none is found, the whole text is the number, in pixels. The number is a C-locale
     * decimal with optional sign and exponent, a full stop as decimal point; white space around it is ignored.
     *
     * @return whether the number was understood. If not (letters, nothing before the suffix, "nan", infinite, too large
     * or too small for a double), the unit becomes #NoUnit and the value 0. A null or empty text changes nothing
     * and returns false.
     *
     * Cost: linear in the length of the text.
     */
    bool convert(const QString &text);

    /**
     * Reads a SMIL clock value from @p text into #unit, which becomes #Sec, and #value, in seconds; #valid is neither
     * read nor changed. Most phones write durations in this way: "5000ms", which convert() does not understand. A
     * clock value is one of these, where D and F stand for any number of digits, at least one:
     *
     * | Written              | Is                        | For example                             |
     * |----------------------|---------------------------|-----------------------------------------|
     * | D:MM:SS or D:MM:SS.F | hours:minutes:seconds     | "1:30:00" is 5400 s                     |
     * | MM:SS or MM:SS.F     | minutes:seconds           | "1:30" is 90 s, "00:02.50" is 2.5 s     |
     * | D or D.F             | seconds                   | "5" is 5 s                              |
     * | the same and a unit  | "h", "min", "s" or "ms"   | "1.5min" is 90 s, "5000ms" is 5 s       |
     *
     * MM and SS are one or two digits, 59 at most. Digits are those of ASCII. There is no sign and no exponent, and the
     * units are in lower case. Blanks, tabs, carriage returns and line feeds around the whole are ignored; inside of it
     * there are none. The number of seconds is the double that is nearest to what is written, however many digits that
     * has: what is too small becomes 0.
     *
     * @return whether @p text is a clock value, and not beyond the range of a double. If not, as
     * with a null or empty text, nothing is changed. To make a measure of it, store the result in #valid.
     *
     * Cost: linear in the length of the text.
     */
    bool convertClock(const QString &text);

    /**
     * The measure as text: the number in its shortest form of at most six significant digits, then the unit's suffix.
     * A null string when #valid is false or #unit is not one of #Unit.
     *
     * "010px" comes back as "10px", "33.333333%" as "33.3333%", "20000000s" as "2e+07s". A #value that is not finite
     * is written as "inf", "-inf" or "nan" and the suffix, which convert() does not read. Cost: constant.
     */
    QString toString() const;

    /**
     * Whether #valid, #unit and #value are the same in both; units are not converted, so 1 in is not 72 pt. Two values
     * that are not a number are the same here, and so are 0 and -0. Cost: constant.
     */
    bool operator==(const SmilUnit &other) const;
    bool operator!=(const SmilUnit &other) const; ///< the opposite of "=="

    bool valid; ///< whether the text was understood; rendering writes a measure only when this is true
    int unit; ///< a #Unit; a valid measure of any other kind is rendered as an empty attribute
    double value; ///< the number, in #unit
};
Q_DECLARE_TYPEINFO(SmilUnit, Q_MOVABLE_TYPE);

/** One media reference of the timeline: a picture, text, sound or film that plays in a region. */
class SMILPARSER_EXPORT SmilRef
{
public:
    /** The kinds of media, by element. */
    enum Type {
        Text = 0, ///< "text"
        Img = 1, ///< "img"
        Audio = 2, ///< "audio"
        Video = 3, ///< "video"
        Ref = 4 ///< "ref", media of any kind
    };

    /** A reference of kind @p kind, taken as it is, with no #src and no #region. */
    explicit SmilRef(int kind)
        : type(kind)
    {
    }

    int type; ///< a #Type; a reference of any other kind is left out when rendered
    QString src; ///< attribute "src", verbatim: where the media is; null when absent, not written when empty
    QString region; ///< attribute "region", verbatim: the SmilRegion::id to play in, existing or not; as #src

    bool operator==(const SmilRef &other) const; ///< whether all fields are equal
    bool operator!=(const SmilRef &other) const; ///< the opposite of "=="
};
Q_DECLARE_TYPEINFO(SmilRef, Q_MOVABLE_TYPE);

/**
 * One element of the timeline, "par" (its contents play together) or "seq" (one after another). Nested elements and
 * media are kept apart: which came before which is not recorded, and rendering writes #children before #refs. In a
 * "par" that loses nothing. In a "seq" with both, SmilParser::dom() tells what plays first, and so does SmilTimeline.
 * The node that stands for "body", SmilBody::root, is a #Par by its #type, but plays as a "seq".
 *
 * Destroying a tree takes one call level per level of nesting; so do rendering and comparing it. A tree made by
 * SmilParser::parse() is never deeper than SmilParser::MaxDepth. To replace a node by one of its descendants, copy that
 * first.
 */
class SMILPARSER_EXPORT SmilNode
{
public:
    /** The kinds of timeline elements. */
    enum Type {
        Seq = 1, ///< "seq"
        Par = 2 ///< "par"
    };

    /** A #Par with an invalid #dur, no #children and no #refs. */
    SmilNode()
        : type(Par)
    {
    }

    /** The same of kind @p kind, taken as it is. */
    explicit SmilNode(int kind)
        : type(kind)
    {
    }

    QList<SmilNode> children; ///< the nested "par" and "seq" elements, in document order
    int type; ///< a #Type; any other kind is rendered as "par"
    SmilUnit dur; ///< attribute "dur"; invalid when absent or not understood; "5000ms" takes SmilParser::ClockDurations
    QList<SmilRef> refs; ///< the media directly inside this element, in document order

    bool operator==(const SmilNode &other) const; ///< whether all fields are equal
    bool operator!=(const SmilNode &other) const; ///< the opposite of "=="
};
Q_DECLARE_TYPEINFO(SmilNode, Q_MOVABLE_TYPE);

/** The timeline, element "body". */
class SMILPARSER_EXPORT SmilBody
{
public:
    QString spare1; ///< free for the host; null by default, copied with the record, never read or written here
    QString spare2; ///< as #spare1
    QString spare3; ///< as #spare1
    QString spare4; ///< as #spare1

    /**
     * The timeline's root, standing for "body" itself. What is in it plays one after another, as in a "seq", though its
     * SmilNode::type is SmilNode::Par by default and after parsing. Parsing fills its SmilNode::dur and, from media
     * directly inside "body", its SmilNode::refs; rendering writes its SmilNode::children only.
     */
    SmilNode root;

    bool operator==(const SmilBody &other) const; ///< whether all fields are equal
    bool operator!=(const SmilBody &other) const; ///< the opposite of "=="
};
Q_DECLARE_TYPEINFO(SmilBody, Q_MOVABLE_TYPE);

/** One named piece of information about the presentation, element "meta". All null by default. */
class SMILPARSER_EXPORT SmilMeta
{
public:
    QString id; ///< attribute "id", verbatim; null when absent, not written when empty
    QString name; ///< attribute "name"; as #id
    QString content; ///< attribute "content"; as #id

    bool operator==(const SmilMeta &other) const; ///< whether all fields are equal
    bool operator!=(const SmilMeta &other) const; ///< the opposite of "=="
};
Q_DECLARE_TYPEINFO(SmilMeta, Q_MOVABLE_TYPE);

/**
 * A rectangle of the screen that media play in, element "region". By default its texts are null and its measures
 * invalid. A measure is also invalid when its attribute is absent or not understood; an invalid one is not written.
 */
class SMILPARSER_EXPORT SmilRegion
{
public:
    QString id; ///< attribute "id", verbatim: what SmilRef::region names; null when absent, not written when empty
    SmilUnit width; ///< attribute "width"
    SmilUnit height; ///< attribute "height"
    SmilUnit bottom; ///< attribute "bottom": distance from the lower edge of the root layout
    SmilUnit top; ///< attribute "top": distance from its upper edge
    SmilUnit left; ///< attribute "left": distance from its left edge
    SmilUnit right; ///< attribute "right": distance from its right edge
    QString fit; ///< attribute "fit", verbatim ("meet", "scroll", "hidden" or anything else); as #id

    bool operator==(const SmilRegion &other) const; ///< whether all fields are equal
    bool operator!=(const SmilRegion &other) const; ///< the opposite of "=="
};
Q_DECLARE_TYPEINFO(SmilRegion, Q_MOVABLE_TYPE);

/**
 * Where things are shown, element "layout". All four measures are invalid by default. Rendering writes one
 * "root-layout" whose size is the *top* layout's: a host that wants the size it read kept copies it over, or reads with
 * SmilParser::KeepRootSize.
 */
class SMILPARSER_EXPORT SmilLayout
{
public:
    SmilUnit rootLayoutWidth; ///< attribute "width" of "root-layout"; read, never written
    SmilUnit rootLayoutHeight; ///< attribute "height" of "root-layout"; read, never written
    SmilUnit topLayoutWidth; ///< attribute "width" of "topLayout" when read, of "root-layout" when written
    SmilUnit topLayoutHeight; ///< attribute "height" of "topLayout" when read, of "root-layout" when written
    QList<SmilRegion> regions; ///< every "region", in document order, those of equal SmilRegion::id too

    bool operator==(const SmilLayout &other) const; ///< whether all fields are equal
    bool operator!=(const SmilLayout &other) const; ///< the opposite of "=="
};
Q_DECLARE_TYPEINFO(SmilLayout, Q_MOVABLE_TYPE);

/** What precedes the timeline, element "head". */
class SMILPARSER_EXPORT SmilHeader
{
public:
    /** An empty header. */
    SmilHeader() { }

    /** A header whose title is @p text, which may be null; everything else is empty. */
    explicit SmilHeader(const QString &text)
        : title(text)
    {
    }

    QString id; ///< attribute "id", verbatim; null when absent, not written when empty
    QString className; ///< attribute "class"; as #id
    QString title; ///< attribute "title"; as #id
    QString spare; ///< free for the host; null by default, copied with the record, never read or written here
    QList<SmilMeta> metas; ///< every "meta", in document order, those of equal SmilMeta::name too
    SmilLayout layout; ///< the element "layout"

    bool operator==(const SmilHeader &other) const; ///< whether all fields are equal
    bool operator!=(const SmilHeader &other) const; ///< the opposite of "=="
};
Q_DECLARE_TYPEINFO(SmilHeader, Q_MOVABLE_TYPE);

/** A whole presentation: element "smil". */
class SMILPARSER_EXPORT SmilDocument
{
public:
    /** An empty presentation: empty text and lists, invalid measures, a SmilNode::Par as the timeline's root. */
    SmilDocument();

    SmilBody body; ///< the timeline
    SmilHeader header; ///< what precedes it

    bool operator==(const SmilDocument &other) const; ///< whether all fields are equal
    bool operator!=(const SmilDocument &other) const; ///< the opposite of "=="
};
Q_DECLARE_TYPEINFO(SmilDocument, Q_MOVABLE_TYPE);

/**
 * Reads one presentation, or writes one.
 *
 * To read, construct a parser from a device or from bytes, call parse() once and take the model it returns. To write,
 * construct it from a model and call getContent() as often as wanted. The references that both return are to members
 * of the parser and live as long as it does. A parser cannot be copied.
 *
 * Threads: a parser and its DOM, with every copy of that, are used by one thread at a time; they may move from one to
 * another, as long as the two do not use them at once. Different parsers may be used at the same time. All they share
 * is the host's MMSLogger::qdebugEnabled, which they read without a lock: the host changes it only while no thread is
 * in the library. A copy of a model may go to another thread, which uses it as its own.
 *
 * Nothing is thrown except by a failing allocation inside Qt. Warnings go through qWarning(); the debug lines go
 * through qDebug(), each only while the host's MMSLogger::qdebugEnabled is true. The walks (the operations that take an
 * element) and the renderers are public so that a host can work on a piece, or with a DOM of its own.
 */
class SMILPARSER_EXPORT SmilParser
{
public:
    /**
     * A bound on what is read. An ordinary message is nowhere near it, nor near the others that SECURITY.md states: on
     * the attributes of an element, the length of a name and the mean nesting of the whole. parse() cuts off a document
     * where it exceeds one, and reports that it is not well formed. So it does where the document type declares
     * anything ("["), where a reference is by something that is no name ("&@;"), and, without #DecodedText, where an
     * XML declaration is too long, names two encodings, or one that Qt does not know.
     */
    enum Limit {
        MaxDepth = 512 ///< levels of nested elements, of any name; also the deepest `depth` of parseSmilNodes()
    };

    /** What parse() does beyond reading the message as it is written; combined with "|". */
    enum ReadOption {
        AsWritten = 0, ///< nothing

        /**
         * A "dur" of "body", "par" or "seq" that is a clock value is read as that, by SmilUnit::convertClock(), into
         * SmilNode::dur: "5000ms" is 5 s, "1.5min" is 90 s, and "5" is 5 s, not 5 pixels. One that is none is read as
         * without this option: "12px" is 12 pixels, "1e3s" is 1000 s, and "indefinite" is not valid.
         */
        ClockDurations = 1,

        /**
         * SmilLayout::rootLayoutWidth is copied to SmilLayout::topLayoutWidth if no valid one was read there, and the
         * height likewise, so that getContent() writes the size that was read. The root layout's own stay. If neither
         * is valid, nothing changes.
         */
        KeepRootSize = 2,

        /**
         * The input is text that has been decoded already, as UTF-8, whatever its XML declaration says: a service that
         * hands over a QString read from a part in ISO-8859-1 is served by QString::toUtf8() and this. A byte order
         * mark at its beginning is dropped. Bytes that are no UTF-8 are, as in a document that declares UTF-8, an error
         * with Qt 6 (though it may be called another one) and U+FFFD with Qt 5. Of the declaration, only what the XML
         * reader itself refuses is refused.
         */
        DecodedText = 4
    };
    /** Any of #ReadOption together. */
    Q_DECLARE_FLAGS(ReadOptions, ReadOption)

    /** What became of the input: the rows of the table at parse(), the last one first. */
    enum Outcome {
        Complete = 0, ///< "smil", "head" and "body" were found and read
        NotWellFormed = 1, ///< it is empty, no XML that Qt reads, cut off as #Limit says, or has been read before
        NoSmil = 2, ///< there is no "smil" root element
        NoHead = 3, ///< there is no "head" in "smil"
        NoBody = 4 ///< there is a "head" in "smil", but no "body"
    };

    /**
     * A parser of all that one QIODevice::readAll() on @p device gives: from its position to its end. The device is
     * not opened, moved back, closed or kept. Null, not open (Qt warns of that) or at its end: no input. Cost: one copy
     * of the input.
     */
    explicit SmilParser(QIODevice *device);

    /** A parser of @p bytes, which are shared, not copied. Null or empty: no input. Cost: constant. */
    explicit SmilParser(const QByteArray &bytes);

    /**
     * A parser that holds a copy of @p model, for getContent(). It has no input: parse() fails and keeps the copy.
     * Cost: constant.
     */
    explicit SmilParser(const SmilDocument &model);

    /**
     * Reads the input into the model, and returns the model whatever happens:
     *
     * | The input                            | Warning                                           | The model       |
     * |--------------------------------------|---------------------------------------------------|-----------------|
     * | is not XML that Qt reads, or empty   | "Fail to parse SMIL document: '%s' at (%d,%d)!"   | unchanged       |
     * | has no "smil" root element           | "Fail to find SMIL document!"                     | default         |
     * | has no "head" in it                  | "Fail to find SMIL head!"                         | default         |
     * | has no "body" in it                  | "Fail to find SMIL body!"                         | only the header |
     * | is complete                          | none                                              | filled          |
     *
     * The first row is also that of a document cut off as #Limit says. The warning carries the XML reader's message,
     * line and column. The reader writes them to @p errorMsg, @p errorLine and @p errorColumn too, each of which may be
     * null; in all other rows they are left alone. Lines start at 1. The column is the number of UTF-16 code units of
     * its line up to where the reader gave up; that is 0 in some cases with Qt 6. Elements and attributes that the
     * model has no place for are ignored, and so is an attribute that is absent or not understood: none of this is an
     * error.
     *
     * The input is read once. A second call finds none, which is the first row, and keeps the model of the first.
     *
     * Every call drops the tree that an earlier parse() or getContent() left: a copy of that document is the same
     * document, and holds then what this call read of the input. Elements of the old tree that the host still holds
     * keep what is inside them, but are no longer in the document. When the document ends, they may only be destroyed,
     * in any order.
     *
     * The model is the parser's. Of a parser that is a temporary, take a copy: after
     * `const SmilDocument &model = SmilParser(bytes).parse();` the reference refers to nothing.
     *
     * Cost: a scan of the input, what QDomDocument::setContent() costs for it, and the walk parseSmilDocument().
     */
    SmilDocument &parse(QString *errorMsg = nullptr, int *errorLine = nullptr, int *errorColumn = nullptr);

    /**
     * The same with @p options. The warnings, the debug lines and the use of @p errorMsg, @p errorLine and
     * @p errorColumn do not change, nor does the model except for what the options say. With #AsWritten it is what
     * parse() without options gives; bits that are no #ReadOption are ignored. For messages from phones:
     * @code
     * SmilParser::Outcome outcome;
     * SmilDocument &message = parser.parse(SmilParser::ClockDurations | SmilParser::KeepRootSize, &outcome);
     * @endcode
     *
     * What is read with both options, written, and read so again has the same top layout and the same durations on
     * every "par" and "seq", to the six digits that SmilUnit::toString() writes.
     *
     * @p outcome may be null; if not, what became of the input is written to it in every case.
     *
     * Cost: that of parse(); the length of a duration counts twice with #ClockDurations, and #DecodedText may add two
     * copies of the text. The operations that take an element read as they ever do.
     */
    SmilDocument &parse(ReadOptions options, Outcome *outcome = nullptr, QString *errorMsg = nullptr,
                        int *errorLine = nullptr, int *errorColumn = nullptr);

    /**
     * The tree that the last parse() read, or the last getContent() rendered. It has what the model has no place for:
     * an "alt", a "param", the order of media and nested elements. Null before the first of the two, unless render()
     * was called, and after a parse() whose outcome is #NotWellFormed. It has no XML declaration: the tree is written
     * as UTF-8 by QDomDocument::toByteArray(), whatever the input was.
     *
     * This is Qt's handle, so that a change to the tree shows in every copy. A copy keeps the tree when the parser is
     * destroyed or getContent() begins another one. Elements without such a copy may then only be destroyed, in any
     * order. A further parse() replaces the tree in the copy too: by what it reads, if only the beginning of a broken
     * document; and by nothing when the input was read before. The model is not looked at: what the host changes there
     * after parse(), this tree does not show.
     *
     * Take the tree from here, not from QDomDocument::setContent() with the same bytes: that reads them without the
     * bounds of #Limit, and may take them for another text. Cost: constant.
     */
    QDomDocument dom() const;

    /**
     * Reads the first "head" child of @p smil, then the first "body" child, into the model, in this order whichever
     * comes first. The model is not cleared first. The element and its tree are not changed; they need not be
     * parse()'s.
     *
     * @return whether both were found and read. If not, there is one warning as of parse() (none when parseSmilNodes()
     * refused the body); without a head, the body is not looked for. A null element has neither.
     *
     * Cost: linear in the number of children of @p smil, then that of parseSmilHead() and of parseSmilBody().
     *
     * With MMSLogger::qdebugEnabled it says "Begin to parse smil document. ", then "Smil document have a head. " and
     * "Smil document have a body. " as each has been read.
     */
    bool parseSmilDocument(QDomElement &smil);

    /**
     * Reads the attributes of @p head, its "meta" children and its first "layout" child into the model's header.
     * Metas and regions are appended to those there; attributes replace, also with nothing when they are absent. The
     * element is not changed; a null one counts as one without attributes and children. Always true.
     *
     * Cost: linear in the number of children of @p head, then that of parseLayout(). What other children hold costs
     * nothing.
     */
    bool parseSmilHead(QDomElement &head);

    /**
     * Reads the first "root-layout", the first "topLayout" and every "region" child of @p layout into the model's
     * layout. Regions are appended to those there; a missing "root-layout" or "topLayout" leaves its two measures
     * alone. The element is not changed; a null one counts as empty. Always true.
     *
     * Cost: linear in the number of children of @p layout and in the length of the measures. Other texts are shared.
     */
    bool parseLayout(QDomElement &layout);

    /** Reads @p body into the root of the model's timeline: parseSmilNodes() with it, that root and depth 0. */
    bool parseSmilBody(QDomElement &body);

    /**
     * Reads the timeline inside @p element into @p node. Replaces its SmilNode::dur and appends a node for each "par"
     * and "seq" child and a reference for each "text", "img", "audio", "video" and "ref" child, the names in any
     * letter case. Other children are skipped with all they hold. Neither the SmilNode::type of @p node nor the element
     * is changed, and no member of the parser is used; a null element counts as empty.
     *
     * @p depth says how deep @p element is nested: 0 for "body"; a negative one allows for that many levels more.
     *
     * @return false, silently, when @p depth is above #MaxDepth, and then @p node is not touched; or when it is for a
     * nested element: that one and the elements around it up to @p element are left out, what precedes them is kept.
     *
     * Cost: linear in the number of children of @p element and of the "par" and "seq" elements read, and in the length
     * of the durations; one call level per level of nesting. Other texts are shared. What skipped children hold costs
     * nothing.
     */
    bool parseSmilNodes(QDomElement &element, SmilNode &node, int depth);

    /**
     * Begins a new DOM document, renders the model into it under the root element "smil", and returns it. The old one,
     * from an earlier call or parse(), is dropped; a copy of it keeps its tree. The model is not changed, and every
     * model renders: each field says how it is written, texts are written verbatim. There is no XML declaration,
     * document type or namespace. How the document is turned into text is up to the host. Qt writes the attributes of
     * an element in an order that differs from run to run, but for QT_HASH_SEED=0 in the environment.
     *
     * Cost: that of dropping the old tree, unless a copy keeps it, and that of render() for the model.
     */
    QDomDocument &getContent();

    /**
     * The model as text: the elements and attributes that getContent() writes, with the same values, in UTF-8, without
     * XML declaration. With a negative @p indent it is one line without a line end. From 0 on each element has a line,
     * which begins with that many blanks for each element around it, as QDomDocument::toByteArray() writes. The bytes
     * are the same on every run, Qt and machine. Neither the model nor the parser is changed, and there is no DOM.
     *
     * Attributes stand in the order in which getContent() sets them. An element without others inside is written as
     * `<img src="a"/>`. Tabs and line ends in a text stay, as references. A character that XML does not allow, such as
     * U+0001 or half a surrogate pair, is left out of its text, and what is left may be empty (`src=""`).
     *
     * parse() reads all this back as #Complete, unless "smil", "body", the nodes and a medium are together deeper than
     * #MaxDepth, or than 32 levels around a byte on average.
     *
     * Cost: linear in the number of records and in the length of the texts; one call level per level of nested nodes.
     * A model that parse() made takes no more stack than it took to read.
     */
    QByteArray toXml(int indent = -1) const;

    /**
     * Each of these returns a new element for its record, with all that it holds, not yet attached: the caller appends
     * it where it belongs. The record is not changed. The result is "smil", "head", "layout" and so on, never
     * null except for a SmilRef of unknown kind.
     *
     * The element belongs to the parser's document. When getContent() begins another one, parse() fails, or the parser
     * is destroyed, that document ends, unless the host keeps a copy of it. An element that is in no document by then
     * may only be destroyed: Qt would use memory that was the document's.
     *
     * Cost: linear in the number of records held, however long their texts, which are shared; one call level per level
     * of nested nodes.
     */
    QDomElement render(SmilDocument &model);
    QDomElement render(SmilHeader &header); ///< @copydoc render(SmilDocument&)
    QDomElement render(SmilLayout &layout); ///< @copydoc render(SmilDocument&)
    QDomElement render(SmilBody &body); ///< @copydoc render(SmilDocument&)
    QDomElement render(SmilNode &node); ///< @copydoc render(SmilDocument&)
    QDomElement render(SmilRef &ref); ///< @copydoc render(SmilDocument&)

private:
    QBuffer buffer;
    SmilDocument document;
    QDomDocument domDocument;
};
Q_DECLARE_OPERATORS_FOR_FLAGS(SmilParser::ReadOptions)

#endif
