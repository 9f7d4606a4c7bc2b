// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "guard.h"

#include <smilparser/smilparser.h>

#include <algorithm>
#include <cstring>

static const char *find(const char *begin, const char *end, char c)
{
    const void *const found = std::memchr(begin, c, std::size_t(end - begin));
    return found ? static_cast<const char *>(found) : end;
}

static bool endsName(char c)
{
    return uchar(c) <= '[' && std::memchr("\t\n\r \"&'/;<=>?[", c, 14);
}

/** As QString::size() counts: what takes four bytes in UTF-8 makes two. */
static qint64 length(const char *begin, const char *end)
{
    return std::count_if(begin, end, [](char c) { return (c & 0xc0) != 0x80; })
        + std::count_if(begin, end, [](char c) { return uchar(c) >= 0xf0; });
}

// The reader of Qt 5 takes U+FFFE and U+FFFF for marks of its own, and drops what follows, or part of it. Other readers
// stop there, because XML does not allow them. So nothing behind the first one is handed on.
static const char *endOfCharacters(const char *begin, const char *end)
{
    for (const char *at = begin; (at = find(at, end, '\xef')) != end; ++at) {
        if (end - at > 2 && at[1] == '\xbf' && uchar(at[2]) >= 0xbe) {
            return at + 3;
        }
    }
    return end;
}

// The DOM of Qt 6.11 crashes on a reference by what it does not take for a name. Its tables are older than QChar's.
static bool isXmlName(const QString &name)
{
    const auto canBegin = [](QChar c) { return c.isLetter() || c == QLatin1Char('_') || c == QLatin1Char(':'); };
    const auto canFollow = [&](QChar c) {
        return canBegin(c) || c.isDigit() || c.isMark() || c == QLatin1Char('.') || c == QLatin1Char('-');
    };
    return canBegin(name.at(0)) && std::all_of(name.begin(), name.end(), canFollow)
        && !QDomDocument().createEntityReference(name).isNull();
}

namespace
{
/**
 * Goes through a text, markup by markup, and stops at the first place where a limit is exceeded. It knows just enough
 * of XML for that: where markup ends, and what is nested in what. It does not look for errors: behind the first one the
 * reader has stopped, and the scan goes on in vain.
 *
 * A function that returns bool moves the place past what it is named for; false stops the scan where it is.
 */
class Scanner
{
public:
    Scanner(const char *text, qint64 size)
        : begin(text)
        , end(endOfCharacters(text, text + size))
        , at(text)
        , mostNesting(SmilParser::MaxMeanDepth * qMax<qint64>(size, 128 * 1024))
    {
    }

    /** How much of the text is within the limits. */
    qint64 scan()
    {
        const char *ampersand = begin;
        for (bool within = true; within;) {
            if (ampersand <= at) {
                ampersand = find(at, end, '&');
            }
            const char *start = at;
            at = find(at, ampersand, '<');
            nesting += level * (at - start);
            skipPlainTags(ampersand);
            if (at == end || (level > 0 && nesting > mostNesting)) {
                break;
            }
            start = at;
            within = *at == '<' ? markup() : reference();
            nesting += level * (at - start);
        }
        return at - begin;
    }

private:
    // Nearly all of a document is short tags with one ">", and blanks up to the next "<". That ">" ends the tag: were
    // it quoted, the tag would hold the "<", and no reader goes on past a "<" in a tag, quoted or not. Up to there, it
    // has no room for too many attributes or for a name that is too long. What is different is left to markup().
    void skipPlainTags(const char *ampersand)
    {
        const int longest = SmilParser::MaxAttributes * 4; // a=""
        static_assert(longest <= SmilParser::MaxName, "a tag that is skipped has no room for a name that is too long");
        const char *tag = at;
        qint64 depth = level;
        qint64 sum = nesting;
        while (depth > 0 && ampersand - tag > 2 && tag[1] != '!' && tag[1] != '?') {
            const char *const limit = ampersand - tag > longest ? tag + longest : ampersand;
            const char *const close = find(tag + 2, limit - 1, '>');
            const char *next = close + 1;
            while (next != limit && uchar(*next) <= ' ') {
                ++next;
            }
            if (next == limit || *next != '<' || sum > mostNesting) {
                break;
            }
            if (tag[1] == '/') {
                --depth;
            } else if (depth == SmilParser::MaxDepth) {
                break;
            } else if (close[-1] != '/') {
                ++depth;
            }
            sum += depth * (next - tag);
            tag = next;
        }
        at = tag;
        level = int(depth);
        nesting = sum;
    }

    bool markup()
    {
        if (startsWith("<?")) {
            at += 2;
            return name() && skipPast("?>", 0);
        }
        return startsWith("<!--")     ? skipPast("-->", 4)
            : startsWith("<![CDATA[") ? skipPast("]]>", 9)
            : startsWith("<!DOCTYPE") ? documentType()
                                      : tag();
    }

    bool tag()
    {
        const bool closing = startsWith("</");
        if (!closing && level == SmilParser::MaxDepth) {
            return false;
        }
        int attributes = 0;
        for (at += closing ? 2 : 1; name();) {
            if (at == end || *at == '<') {
                return true;
            }
            const char c = *at++;
            if (c == '>') {
                level += closing ? (level > 0 ? -1 : 0) : (at[-2] == '/' ? 0 : 1);
                return true;
            }
            if ((c == '"' || c == '\'') && (++attributes > SmilParser::MaxAttributes || !value(c))) {
                return false;
            }
        }
        return false;
    }

    bool value(char quote)
    {
        for (;;) {
            at = std::find_if(at, end, [quote](char c) { return c == quote || c == '&'; });
            if (at == end || *at == quote) {
                at += at != end;
                return true;
            }
            if (!reference()) {
                return false;
            }
        }
    }

    bool documentType()
    {
        for (at += 9; name();) {
            if (at == end || *at == '[') {
                return at == end;
            }
            const char c = *at++;
            if (c == '>') {
                return true;
            }
            if (c == '"' || c == '\'') {
                at = find(at, end, c);
                at += at != end;
            }
        }
        return false;
    }

    // Stopped behind the "&", the text is incomplete outside of the root element too.
    bool reference()
    {
        const char *const start = ++at;
        if (at == end || *at == '#') {
            return true;
        }
        if (!name()) {
            return false;
        }
        // With the "&" before it, U+FEFF at the beginning of the name is not taken for a byte order mark.
        if (at == end || at == start || *at != ';'
            || isXmlName(QString::fromUtf8(start - 1, int(at - start) + 1).mid(1))) {
            return true;
        }
        at = start;
        return false;
    }

    // Stays at the beginning of a name that is too long: past that, the reader of Qt 6.4 goes on differently.
    bool name()
    {
        const char *const start = at;
        at = std::find_if(at, end, endsName);
        if (at - start <= SmilParser::MaxName || length(start, at) <= SmilParser::MaxName) {
            return true;
        }
        at = start;
        return false;
    }

    bool skipPast(const char *ending, int from)
    {
        const char *const past = ending + std::strlen(ending);
        at = std::search(at + from, end, ending, past);
        at += at != end ? past - ending : 0;
        return true;
    }

    bool startsWith(const char *text) const
    {
        const char *const past = text + std::strlen(text);
        return end - at >= past - text && std::equal(text, past, at);
    }

    const char *const begin;
    const char *const end;
    const char *at; ///< the place of the scan
    const qint64 mostNesting;
    qint64 nesting = 0; ///< the sum of the levels of all characters before the place
    int level = 0; ///< of elements open
};
}

qint64 harmlessSize(const QByteArray &utf8)
{
    return Scanner(utf8.constData(), utf8.size()).scan();
}
