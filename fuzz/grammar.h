// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILPARSER_GRAMMAR_H
#define SMILPARSER_GRAMMAR_H

#include "tests/guardtesthelpers.h"

#include <vector>

/** @p text divided at each "~". */
inline QByteArrayList divided(const char *text)
{
    return QByteArray(text).split('~');
}

/** What keeps a document well formed, wherever it stands inside of an element. */
static const QByteArrayList contents =
    divided("<x>~<x>~</x>~</x>~<x/>~<x/>~<x></x>~t~\n~ ~\xc3\xa9~\xf0\x9f\x8c\x8a~<!---->~<!-- <x>' -->~"
            "<![CDATA[]]>~<![CDATA[</x>]]>~<?p?>~<?p <x>\"?>~&a;~&\xc3\xa9;~&lt;~&#65;~>~'~"
            "<par/>~<seq/>~<img src='a' region=\"b\"/>~<par dur='2s'><text src='c'/></par>~"
            "<img begin='0:0:0.1' end='0:0:9.1' dur='0:0:1.1'/>");
static const QByteArrayList attributes = divided(" a=''~ a#=''~ aa#='b'~a=''~a#=''~ab=\"\"~ a='>'~ b=\"/>\"~ a='&lt;'~ "
                                                 "a='&a;'~ #=''~\n b = 't'~ dur='5s'~ src=''");
/** What is no XML, or not where it stands, or beyond the limits. */
static const QByteArrayList oddities =
    divided(
        "<~>~/>~<x~</x~</smil>~='~\"~ a='~ a=\"~ c='<'~<!--~-->~--~<![CDATA[~]]>~<?p ~?>~<!~<!x ~<!DOCTYPE smil>~[~]>~"
        "<!DOCTYPE smil [<!ENTITY a 'x'>]>~&~;~&b~&@;~&\xc8\xa0;~&#x0;~&#xfffe;~%p;~\x01~\xef\xbf\xbe~\xef\xbf\xbf~"
        "\xef\xbf\xbd~\xed\xa0\x80~\xef\xbb\xbf~\xe2~\xff~\x80~<?xml version='1.0'?>~<x a='>~ encoding='GBK'")
    << QByteArray(1, '\0') << QByteArray(1000, 'n');

/** With a number for each "#" that no other "#" of the same tag has. */
inline QByteArray numbered(const QByteArray &text)
{
    QByteArray result;
    int number = 0;
    for (const char c : text) {
        number = c == '<' ? 0 : number;
        result += c == '#' ? QByteArray::number(number++, 36) : QByteArray(1, c);
    }
    return result;
}

/** What precedes the elements of a document, by the bits of @p kind. */
inline QByteArray prologue(uint8_t declared, uint8_t type)
{
    static const QByteArrayList encodings =
        divided("~~~UTF-8~ISO-8859-1~GBK~UTF-7~ISO-2022-JP~UTF-16~UTF-16LE~UTF-16BE~"
                "UTF-32~IBM037~US-ASCII~windows-1251~utf8~x~' encoding='GBK");
    static const QByteArrayList types =
        divided("~~~<!DOCTYPE smil>~<!DOCTYPE smil SYSTEM 'u>['>~<!DOCTYPE smil PUBLIC \"p\" 'u'>~"
                "<!DOCTYPE smil [<!ENTITY a '<x>'>]>~<!DOCTYPE smil SYSTEM 'u' []>~<?xml-a encoding='UTF-16'?>");
    const QByteArray encoding = encodings.at(declared % encodings.size());
    return (encoding.isEmpty() ? encoding : "<?xml version='1.0' encoding='" + encoding + "'?>")
        + types.at(type % types.size()) + "<smil><head/><body>";
}

/**
 * Makes a document of about @p longest characters at most out of a fuzzer's bytes, so that mutated bytes give another
 * document of the grammar. The first bytes choose the encoding and the prologue. Each further one adds one of
 * contents or oddities, puts one of attributes into the tag before, as often as the next byte says, or repeats
 * what precedes it. In the end, what is open is closed.
 */
inline QByteArray documentOf(const uint8_t *data, size_t size, int longest)
{
    if (size < 3) {
        return QByteArray();
    }
    QByteArray text = prologue(data[1], data[2]);
    int level = 0;
    struct Start {
        int place;
        int level;
    };
    std::vector<Start> starts = {{int(text.size()), 0}};
    for (size_t i = 3; i < size; ++i) {
        const uint8_t byte = data[i];
        const int next = i + 1 < size ? data[i + 1] : 0;
        const int room = longest - int(text.size());
        if (byte >= 0xd0) {
            // Repeats as many of the last pieces as this byte says, as often as the next one says, into one piece.
            starts.resize(starts.size() - qMin<size_t>(byte & 15, starts.size() - 1));
            const QByteArray last = text.mid(starts.back().place);
            const int levels = level - starts.back().level;
            int times = last.isEmpty() ? 0 : qMin(1 << (next % 20), qMax(0, room) / int(last.size()));
            times = levels < 0 ? qMin(times, level / -levels)
                : levels > 0   ? qMin(times, 600 / levels)
                               : times; // just too deep
            text += last.repeated(times);
            level += times * levels;
            ++i;
        } else if (byte >= 0xc0) {
            starts.push_back({int(text.size()), level});
            text += oddities.at(next % oddities.size());
            ++i;
        } else if (byte >= 0x80 && text.endsWith('>')) {
            const QByteArray attribute = attributes.at(byte % attributes.size());
            text.insert(text.size() - (text.endsWith("/>") ? 2 : 1),
                        attribute.repeated(qMin(next % 80, qMax(0, room) / int(attribute.size()))));
            ++i;
        } else {
            const QByteArray piece = contents.at(byte % contents.size());
            const int levels = piece == "<x>" ? 1 : piece == "</x>" ? -1 : 0;
            if (level + levels >= 0) {
                starts.push_back({int(text.size()), level});
                text += piece;
                level += levels;
            }
        }
    }
    text += QByteArray("</x>").repeated(level) + "</body></smil>";
    text = numbered(text);
    const int kind = data[0] % 16; // most are UTF-8
    return kind < 7 ? text
        : kind == 7 ? "\xef\xbb\xbf" + text
                    : wide(QString::fromUtf8(text.constData(), int(text.size())), kind & 1 ? 4 : 2, kind & 2, kind & 4);
}

#endif
