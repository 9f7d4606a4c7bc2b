// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "support.h"

#include <limits>

class Measures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::German)); } // its decimal comma must not matter
    void texts_data();
    void texts();
    void oddKinds();
};

void Measures::texts_data()
{
    QTest::addColumn<QString>("from"); // the text that the measure is built from,
    QTest::addColumn<QString>("text"); // the text that it converts then, unless "-",
    QTest::addColumn<QString>("expected"); // and its unit and number after that
    QTest::addColumn<QString>("printed");

    addCases("measures.txt");
    QTest::newRow("blank") << " "
                           << "-"
                           << "6 0" << QString();
    QTest::newRow("empty") << ""
                           << "-"
                           << "6 0" << QString();
    QTest::newRow("12px, then empty") << "12px"
                                      << ""
                                      << "3 12"
                                      << "12px";
}

void Measures::texts()
{
    QFETCH(QString, from);
    QFETCH(QString, text);
    QFETCH(QString, printed);
    SmilUnit measure(from);
    QCOMPARE(measure.valid, !printed.isNull());
    if (text != QStringLiteral("-")) {
        QCOMPARE(measure.convert(text), !text.isEmpty() && printed != QStringLiteral("0"));
        QCOMPARE(measure.valid, !printed.isNull()); // as it was
    }
    QTEST(QStringLiteral("%1 %2").arg(measure.unit).arg(measure.value, 0, 'g', 12), "expected");
    QCOMPARE(measure.toString(), printed);
    QCOMPARE(measure.toString().isNull(), printed.isNull());
}

void Measures::oddKinds()
{
    for (int kind : {7, -1, std::numeric_limits<int>::min()}) {
        SmilUnit measure(QStringLiteral("5"));
        measure.unit = kind;
        QVERIFY(measure.toString().isNull());
    }
}

QTEST_GUILESS_MAIN(Measures)

#include "measures.moc"
