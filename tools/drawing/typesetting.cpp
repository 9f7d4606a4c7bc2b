// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "drawing/typesetting.h"

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

QString withoutFormat(QString text)
{
    static const QRegularExpression format(QStringLiteral("(?![\\x{200c}\\x{200d}])\\p{Cf}"));
    return text.replace(QLatin1Char('\t'), QLatin1Char(' ')).remove(format);
}
