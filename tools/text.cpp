// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "text.h"

#include <QtCore/QTextBoundaryFinder>

#include <numeric>
#include <string>

static bool isObeyedOrHidden(char32_t c)
{
    switch (QChar::category(c)) {
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return true;
    default:
        return QChar::isNonCharacter(c);
    }
}

/** Whether a joiner stands between two characters that show, as in Persian words and many emoji. */
static bool joins(const std::u32string &text, size_t i)
{
    const auto shows = [&text](size_t at) {
        return at < text.size() && !isObeyedOrHidden(text[at]) && !QChar::isSpace(text[at]);
    };
    return (text[i] == 0x200c || text[i] == 0x200d) && i > 0 && shows(i - 1) && shows(i + 1);
}

template<typename Escape>
static QString escape(const QString &text, Escape escaped)
{
    QString result;
    result.reserve(text.size());
    const std::u32string characters = text.toStdU32String();
    for (size_t i = 0; i < characters.size(); ++i) {
        const char32_t c = characters[i];
        if (isObeyedOrHidden(c) && !joins(characters, i)) {
            result += escaped(c);
        } else if (QChar::requiresSurrogates(c)) {
            result += QChar(QChar::highSurrogate(c));
            result += QChar(QChar::lowSurrogate(c));
        } else {
            result += QChar(ushort(c));
        }
    }
    return result;
}

QString printable(const QString &text)
{
    return escape(text, [](uint c) {
        return QLatin1String("\\u{") + QString::number(c, 16).rightJustified(4, QLatin1Char('0')) + QLatin1Char('}');
    });
}

QString printableXml(const QString &text)
{
    return escape(text, [](uint c) {
        const bool allowed = c == '\t' || c == '\n' || c == '\r' || (c >= 0x20 && c != 0xfffe && c != 0xffff);
        return c == '\n' ? QString(QLatin1Char('\n'))
            : allowed    ? QStringLiteral("&#x%1;").arg(c, 0, 16)
                         : QString(QChar(QChar::ReplacementCharacter));
    });
}

QString quoted(const QString &text)
{
    QString escaped = text;
    escaped.replace(QLatin1Char('\\'), QLatin1String("\\\\")).replace(QLatin1Char('"'), QLatin1String("\\\""));
    return QLatin1Char('"') + printable(escaped) + QLatin1Char('"');
}

QString shortened(const QString &text, int most)
{
    if (text.size() <= most) {
        return text;
    }
    const int end = most - 1 - (text.at(most - 2).isHighSurrogate() ? 1 : 0);
    return text.left(end) + QChar(0x2026);
}

static double characterWidth(QChar c)
{
    if (QStringLiteral("ijl.,:;'|!()[] tfr-").contains(c)) {
        return narrowestLetter;
    }
    if (QStringLiteral("mwMW@%\u0416\u0429\u042e\u0436\u0448\u0449\u044e").contains(c)) { // the wide of Cyrillic
        return 12.5;
    }
    if (c.isSurrogate()) { // two of which are one sign
        return 6;
    }
    return c.unicode() >= 0x2000 ? 11 : c.isUpper() || !c.isLetterOrNumber() || c.unicode() >= 0x0370 ? 9 : 7;
}

double width(const QString &text)
{
    return std::accumulate(text.cbegin(), text.cend(), 0.0,
                           [](double sum, QChar c) { return sum + characterWidth(c); });
}

QString elided(const QString &text, double most)
{
    // What is longer than this does not fit, whatever it is made of, and need not be looked at.
    const auto enough = qsizetype(qMax(0.0, most) / narrowestLetter) + 1;
    if (text.size() <= enough && width(text) <= most) {
        return text;
    }
    const auto dot = text.lastIndexOf(QLatin1Char('.'));
    const QString end = QChar(0x2026) + (dot > 0 && text.size() - dot <= 6 ? text.mid(dot + 1) : QString());
    const QString beginning = text.left(enough);
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, beginning);
    auto kept = finder.position();
    double used = width(end);
    while (finder.toNextBoundary() > 0) {
        used += width(beginning.mid(kept, finder.position() - kept));
        if (used > most) {
            break;
        }
        kept = finder.position();
    }
    return text.left(kept) + end;
}

/** Where the line that begins at @p from ends: at a break or, in a word longer than it, between two letters. */
static int endOfLine(const QString &text, int from, double most)
{
    int letter = 0; // the end of the first, which stays whole however narrow the line
    for (const auto unit : {QTextBoundaryFinder::Line, QTextBoundaryFinder::Grapheme}) {
        QTextBoundaryFinder finder(unit, text);
        finder.setPosition(from);
        int end = from;
        for (int next = int(finder.toNextBoundary()); next > 0; next = int(finder.toNextBoundary())) {
            letter = next;
            if (width(text.mid(from, next - from).trimmed()) > most) {
                break;
            }
            end = next;
        }
        if (end > from) {
            return end;
        }
    }
    return letter;
}

QStringList wrapped(const QString &text, double most, int count)
{
    QStringList lines;
    const QStringList paragraphs = text.split(QLatin1Char('\n'));
    for (const QString &paragraph : paragraphs) {
        int from = 0;
        do {
            if (lines.size() == count) {
                QString &last = lines.last();
                while (!last.isEmpty() && width(last) + 11 > most) {
                    last.chop(last.size() > 1 && last.at(last.size() - 1).isLowSurrogate() ? 2 : 1);
                }
                last += QChar(0x2026);
                return lines;
            }
            const int end = paragraph.isEmpty() ? 0 : endOfLine(paragraph, from, most);
            lines.append(paragraph.mid(from, end - from).trimmed());
            from = end;
        } while (from < paragraph.size());
    }
    return lines;
}
