// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILPARSER_CASES_H
#define SMILPARSER_CASES_H

#include <QtTest/QtTest>

#include <algorithm>

/** @p text, in which "{3*a#}" stands for "a0a1a2" and "\\u00e9" for a character by its number. */
inline QString expanded(QString text)
{
    static const QRegularExpression repeated(QStringLiteral("\\{(\\d+)\\*([^{}]*)\\}"));
    for (QRegularExpressionMatch match; (match = repeated.match(text)).hasMatch();) {
        QString all;
        for (int i = 0; i < match.captured(1).toInt(); ++i) {
            all += match.captured(2).replace(QLatin1Char('#'), QString::number(i));
        }
        text.replace(match.capturedStart(), match.capturedLength(), all);
    }
    static const QRegularExpression number(QStringLiteral("\\\\u([0-9a-f]{4})"));
    int shorter = 0;
    for (auto numbers = number.globalMatch(text); numbers.hasNext(); shorter += 5) {
        const QRegularExpressionMatch match = numbers.next();
        text.replace(match.capturedStart() - shorter, 6, QChar(match.captured(1).toUShort(nullptr, 16)));
    }
    return text;
}

/**
 * Makes the columns and rows of the table cases/@p name. Its first line names the columns. Each other has a name and a
 * text for each column, divided by "|"; "\n" ends a line in it, and the rest is expanded(). What is indented belongs to
 * the line before. The last line is "end": without it, the file is cut off. A line with "#" in front is for the reader.
 */
inline void addCases(const char *name)
{
    QFile file(QFINDTESTDATA("cases/") + QLatin1String(name));
    QVERIFY2(file.open(QIODevice::ReadOnly), name);
    const QString table = QString::fromUtf8(file.readAll()).replace(QLatin1String("\n    "), QLatin1String(" "));
    QVERIFY2(table.endsWith(QLatin1String("\nend\n")), name + QByteArray(" is cut off: its last line is not \"end\""));
    static QByteArrayList columns; // QTest does not copy their names
    columns.clear();
    for (const QString &line : table.chopped(5).split(QLatin1Char('\n'))) {
        QStringList texts;
        for (const QString &text : line.split(QLatin1Char('|'))) {
            texts << expanded(text.trimmed().replace(QLatin1String("\\n"), QLatin1String("\n")));
        }
        const QString first = texts.takeFirst();
        if (line.startsWith(QLatin1Char('#'))) {
            continue;
        }
        if (columns.isEmpty()) {
            columns = texts.join(QLatin1Char('|')).toLatin1().split('|');
            for (const QByteArray &column : std::as_const(columns)) {
                QTest::addColumn<QString>(column.constData());
            }
            continue;
        }
        QVERIFY2(texts.size() == columns.size(), "not a name and a text for each column: " + line.toUtf8());
        QTestData &row = QTest::newRow(first.toUtf8().constData());
        for (const QString &text : std::as_const(texts)) {
            row << text;
        }
    }
}

/** Says what a host sees and what it ought to see, both from a little before the first difference. */
inline QByteArray difference(const QString &does, const QString &seen, const QString &expected)
{
    const auto part = std::mismatch(seen.begin(), seen.end(), expected.begin(), expected.end());
    const auto begin = qMax<qint64>(0, part.first - seen.begin() - 300);
    return QStringLiteral("a host that %1\n--- sees\n%2\n--- and not\n%3")
        .arg(does.left(600), seen.mid(int(begin), 600), expected.mid(int(begin), 600))
        .toUtf8();
}

/** Fails unless a host that @p does something sees what is expected. */
#define COMPARE_SEEN(does, seen, expected) \
    do { \
        const QString seenHere = seen; \
        const QString expectedHere = expected; \
        if (seenHere != expectedHere) { \
            QFAIL(difference(does, seenHere, expectedHere).constData()); \
        } \
    } while (false)

#endif
