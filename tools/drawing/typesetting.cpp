// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "base/escaping.h"
#include "drawing/frame.h"

#include <QtCore/QRegularExpression>
#include <QtCore/QTextBoundaryFinder>

#include <numeric>

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

/** Where what fits ends, from @p from on: after a whole piece of that kind, or else at @p from. */
static int endOfFitting(const QString &text, int from, double most, QTextBoundaryFinder::BoundaryType pieces)
{
    QTextBoundaryFinder finder(pieces, text);
    finder.setPosition(from);
    int end = from;
    for (int next = int(finder.toNextBoundary()); next > 0; next = int(finder.toNextBoundary())) {
        if (width(text.mid(from, next - from).trimmed()) > most) {
            break;
        }
        end = next;
    }
    return end;
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
    return text.left(endOfFitting(text.left(enough), 0, most - width(end), QTextBoundaryFinder::Grapheme)) + end;
}

/** Where the line that begins at @p from ends: at a break, in a word longer than it between two letters, or after one.
 */
static int endOfLine(const QString &text, int from, double most)
{
    const int end = endOfFitting(text, from, most, QTextBoundaryFinder::Line);
    const int letters = end > from ? end : endOfFitting(text, from, most, QTextBoundaryFinder::Grapheme);
    QTextBoundaryFinder letter(QTextBoundaryFinder::Grapheme, text);
    letter.setPosition(from);
    return qMax(letters, int(letter.toNextBoundary()));
}

QStringList wrapped(const QString &text, double most, int count)
{
    QStringList lines;
    const QStringList paragraphs = text.split(QRegularExpression(QStringLiteral("\\R")));
    for (const QString &each : paragraphs) {
        const QString paragraph = printable(each);
        int from = 0;
        do {
            if (lines.size() == count) {
                QString &last = lines.last();
                last.truncate(endOfFitting(last, 0, most - width(QChar(0x2026)), QTextBoundaryFinder::Grapheme));
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

QString withoutFormat(QString text)
{
    static const QRegularExpression format(QStringLiteral("(?![\\x{200c}\\x{200d}])\\p{Cf}"));
    return text.replace(QLatin1Char('\t'), QLatin1Char(' ')).remove(format);
}
