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

static QString toText(const char *begin, const char *end)
{
    return QString::fromUtf8(begin, end - begin);
}

static bool endsName(char c)
{
    return uchar(c) <= '[' && std::memchr("\t\n\r \"&'/;<=>?[", c, 14);
}

// A reference by anything else crashes Qt 6.11: its DOM has no node for it. The DOM is asked too, because its tables of
// letters are older than QChar's.
static bool isXmlName(const QString &name)
{
    const auto canBegin = [](QChar c) { return c.isLetter() || c == QLatin1Char('_') || c == QLatin1Char(':'); };
    const auto canFollow = [&](QChar c) {
        return canBegin(c) || c.isDigit() || c.isMark() || c == QLatin1Char('.') || c == QLatin1Char('-')
            || c == QChar(0xb7);
    };
    return canBegin(name.at(0)) && std::all_of(name.begin(), name.end(), canFollow)
        && !QDomDocument().createEntityReference(name).isNull();
}

namespace
{
/**
 * Goes through a text, markup by markup, and stops at the first place where a limit is exceeded. It knows just enough
 * of XML for that: where markup ends, and what is nested in what. It does not look for errors: the reader stops at the
 * first one, and the scan goes on in vain.
 *
 * A function that returns bool moves the place past what it is named for and returns true; or it returns false, and the
 * scan stops where it is, at a limit or at the end.
 */
class Scanner
{
public:
    Scanner(const char *text, qint64 size)
        : begin(text)
        , end(text + size)
        , at(text)
        , mostNesting(maxMeanDepth * qMax<qint64>(size, leastSize))
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
            if (at == end || nesting > mostNesting) {
                break;
            }
            start = at;
            within = *at == '<' ? markup() : reference();
            nesting += level * (at - start);
        }
        return at - begin;
    }

private:
    // Nearly all of a document is short tags with one ">", then blanks up to the next "<". That ">" ends the tag: if it
    // were quoted, the tag would hold the "<", and no reader goes on past a "<" in a tag, quoted or not. Such a tag is
    // too short for too many attributes or too long a name. markup() does the others.
    void skipPlainTags(const char *ampersand)
    {
        const int longest = maxAttributes * 4; // a=""
        static_assert(longest <= maxName, "a tag that is skipped has no room for a name that is too long");
        const char *tag = at;
        qint64 depth = level;
        qint64 sum = nesting;
        while (ampersand - tag > 2 && tag[1] != '!' && tag[1] != '?') {
            const char *const limit = ampersand - tag > longest ? tag + longest : ampersand;
            const char *const close = find(tag, limit - 1, '>');
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
        level = depth;
        nesting = sum;
    }

    bool markup()
    {
        if (startsWith("<?")) {
            at += 2;
            return name() && skipPast("?>");
        }
        if (startsWith("<!--")) {
            at += 4;
            return skipPast("-->");
        }
        if (startsWith("<![CDATA[")) {
            return skipPast("]]>");
        }
        return startsWith("<!DOCTYPE") ? documentType() : tag();
    }

    bool tag()
    {
        const bool closing = startsWith("</");
        if (!closing && level == SmilParser::MaxDepth) {
            return false;
        }
        int attributes = 0;
        for (++at; name() && at != end;) {
            const char c = *at++;
            if (c == '>') {
                level += closing ? -1 : (at[-2] == '/' ? 0 : 1);
                return true;
            }
            if ((c == '"' || c == '\'') && (++attributes > maxAttributes || !value(c))) {
                return false;
            }
        }
        return false;
    }

    bool value(char quote)
    {
        while ((at = std::find_if(at, end, [quote](char c) { return c == quote || c == '&'; })) != end) {
            if (*at == quote) {
                ++at;
                return true;
            }
            if (!reference()) {
                return false;
            }
        }
        return false;
    }

    bool documentType()
    {
        for (++at; name() && at != end && *at != '[';) {
            const char c = *at++;
            if (c == '>') {
                return true;
            }
            if ((c == '"' || c == '\'') && !skipPast(c == '"' ? "\"" : "'")) {
                return false;
            }
        }
        return false;
    }

    // Stops after the "&", not before it: then the text is incomplete, outside of the root element too.
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
        if (at == end || at == start || *at != ';' || isXmlName(toText(start - 1, at).mid(1))) {
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
        if (at - start <= maxName || toText(start, at).size() <= maxName) {
            return true;
        }
        at = start;
        return false;
    }

    bool skipPast(const char *ending)
    {
        const char *const past = ending + std::strlen(ending);
        at = std::search(at, end, ending, past);
        at += at != end ? past - ending : 0;
        return at != end;
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
    qint64 level = 0; ///< of elements open
};
}

qint64 safePrefixLength(const QByteArray &utf8)
{
    return Scanner(utf8.constData(), utf8.size()).scan();
}
