// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "cases.h"
#include "smiltool.h"

class Sending : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void writesAMessage();
    void allOrNothing_data() { addCases("sending.txt"); }
    void allOrNothing();
};

void Sending::writesAMessage()
{
    const QTemporaryDir folder;
    const Outcome composed = runScript(
        folder.path(),
        QStringLiteral(
            "cp holiday/*.jpg holiday/*.txt $dir; cd $dir; mkdir sub; cp beach.jpg sub; cp beach.jpg 'a&b.jpg'; "
            "printf '#!AMR\\n\\221' >c; rm $old; "
            "$tool compose beach.txt -o $board && $tool compose beach.txt | cmp - $board && "
            "$tool compose 'a&b.jpg' beach.txt c beach.jpg ./harbour.txt sub/beach.jpg --title 'A & B' "
            "--size 176x220 --seconds 2.5 -o $board && cat $board && mv 'a&b.jpg' a_b.jpg && "
            "mv sub/beach.jpg beach-2.jpg && rm harbour.jpg && $tool check $board --parts . && "
            "$tool storyboard $board --parts . | grep -c '<image'"));
    QCOMPARE(composed.err,
             QStringLiteral("a&b.jpg: to be sent as a_b.jpg\nsub/beach.jpg: to be sent as beach-2.jpg\n"));
    QCOMPARE(composed.out, golden(QStringLiteral("composed.smil")) + QStringLiteral("3\n"));
    QCOMPARE(composed.status, 0);
}

/** Of all files, each that cannot be in a message is named. */
void Sending::allOrNothing()
{
    const QTemporaryDir folder;
    const QString script =
        QStringLiteral("cd $dir; echo good >good; echo '<?xml version=\"1.0\"?>' >xml; ln good hard; ln -s good soft; "
                       "mkfifo pipe; $tool compose ");
    const Outcome outcome = runScript(folder.path(), script + QLatin1String(QTest::currentDataTag()));
    QTEST(outcome.err, "problems");
    QCOMPARE(outcome.out, QString());
    QCOMPARE(outcome.status, 1);
    QCOMPARE(readFile(folder.filePath(QStringLiteral("good"))), QStringLiteral("good\n"));
    QVERIFY(!QFile::exists(folder.filePath(QStringLiteral("out"))));
}

QTEST_GUILESS_MAIN(Sending)
#include "sending.moc"
