// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "mmsbytes.h"
#include "smiltool.h"

#include <smilparser/smilparser.h>

#include <QtXml/QDomDocument>

class Check : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void findings_data();
    void findings();
    void toolKnowsWhatTheLibraryKnows();
    void partsAreChecked();
    void wholeMessagesAreChecked();
    void manualAndCompletionNameEveryFinding();
};

void Check::findings_data()
{
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("lines");
    const auto row = [](const char *name, const QByteArray &body, const QString &lines,
                        const QStringList &arguments = {}) {
        const QByteArray head =
            body.startsWith("<s") ? "" : "<smil><head><layout><root-layout/><region id='A'/></layout></head>\n";
        QTest::newRow(name) << head + body << arguments << lines;
    };
    const QString repeated =
        QStringLiteral("-:2: not understood: dur of par \"1m\", \"2m\" (3 times) [unread-measure]\n");
    row("nothing", "<body><par><img src='a' region='A'/></par></body></smil>", QString());
    row("an unknown region, and one nothing plays in", "<body><par>\n<img src='a' region='B'/></par></body></smil>",
        QStringLiteral(
            "-:1: nothing plays in region: \"A\" [unused-region]\n-:3: no such region: \"B\" [unknown-region]\n"));
    row("no src", "<body><par><img region='A'/></par></body></smil>",
        QStringLiteral("-:2: no src: img [missing-src]\n"));
    row("said once", "<body><par dur='1m'><img src='a' region='A'/></par><par dur='2m'/><par dur='1m'/></body></smil>",
        repeated);
    row("ignored", "<body><par dur='1m'><img src='a' region='A'/></par></body></smil>", QString(),
        {QStringLiteral("--ignore"), QStringLiteral("unread-measure")});
    row("durations and the size of phones",
        "<smil><head><layout><root-layout width='9'/><region id='Image'/>\n<region id='Text'/><region id='text'/>"
        "</layout></head><body><par dur='1ms'><img src='a'/></par><par dur='5'/></body></smil>",
        QStringLiteral("-:2: nothing plays in region: \"text\" [unused-region]\n"
                       "-:2: nothing can be seen: from 0:00.001 to 0:05.001 [blank-time]\n"));
    row("nothing to be seen at first, and while a sound plays",
        "<body>\n<par><img src='a' region='A' begin='1s' dur='2s'/></par><par dur='2s'><audio "
        "src='b'/></par></body></smil>",
        QStringLiteral("-:2: nothing can be seen: from 0:00 to 0:01, from 0:03 to 0:05 (2 times) [blank-time]\n"),
        {QStringLiteral("--ignore"), QStringLiteral("lost")});
    row("duration of the body", "<body dur='1ms'><par><img src='a' region='A'/></par></body></smil>",
        QStringLiteral("-:2: lost when written back: dur of body \"1ms\" [lost-in-body]\n"));
    row("measures of the wrong kind",
        "<smil><head><layout><region id='A' width='5s' height='-1px' left='-1px'/></layout></head><body>\n"
        "<par dur='50%'><img src='a' region='A'/></par><par dur='-5s'/></body></smil>",
        QStringLiteral("-:1: a duration, not a length: width of region \"5s\" [wrong-measure]\n"
                       "-:1: negative: height of region \"-1px\" [wrong-measure]\n"
                       "-:2: a length, not a duration: dur of par \"50%\" [wrong-measure]\n"
                       "-:2: negative: dur of par \"-5s\" [wrong-measure]\n"));
    row("more durations than a line has room for",
        "<body><par dur='a'><img src='a' region='A'/></par><par dur='b'/><par dur='c'/><par dur='d'/></body></smil>",
        QStringLiteral("-:2: not understood: dur of par \"a\", \"b\", \"c\", ... (4 times) [unread-measure]\n"));
    row("no duration, and a long one",
        "<body><par dur='0s'><img src='a' region='A'/></par><par "
        "dur='0123456789012345678901234567890123456789x'/></body></smil>",
        QStringLiteral(
            "-:2: not understood: dur of par \"012345678901234567890123456789012345678\u2026\" [unread-measure]\n"));
    row("a size that a topLayout states",
        "<smil><head><layout><root-layout width='9'/><topLayout width='7'/></layout></head><body><par/></body></smil>",
        QStringLiteral("-:1: written back as the root-layout's size: topLayout [moved-top-size]\n"
                       "-:1: nothing plays [empty-timeline]\n"));
    row("what is lost ignored",
        "<smil><head><layout><root-layout width='9' x=''/><topLayout height='7'/></layout></head>"
        "<body dur='1s'><q/><par><img src='a'/></par><img src='b'/></body></smil>",
        QString(), {QStringLiteral("--ignore"), QStringLiteral("lost")});
    row("one of each on a slide, and one after another",
        "<body><par><img src='a' region='A'/><text src='b' region='A'/><audio src='c' region='A'/></par>"
        "<par><video src='d'/><img src='e' region='A' end='1s'/><ref src='f' region='A' begin='1s'/></par>"
        "<img src='g'/><img src='h'/></body></smil>",
        QString(), {QStringLiteral("--ignore"), QStringLiteral("lost")});
    row("two at a time, the later one first",
        "<body><par>\n<img src='a' region='A' begin='1s'/>\n<video src='b' region='A'/><ref src='c' region='A'/>\n"
        "<audio src='d'/><AUDIO src='e'/><text src='f' region='B'/><text src='g' region='C'/></par></body></smil>",
        QStringLiteral(
            "-:3: two pictures or films at the same time in region \"A\": \"c\", \"a\" (2 times) [crowded-slide]\n"
            "-:5: two sounds at the same time without a region: \"e\" [crowded-slide]\n"
            "-:5: two texts at the same time without a region: \"g\" [crowded-slide]\n"),
        {QStringLiteral("--ignore"), QStringLiteral("lost"), QStringLiteral("--ignore"),
         QStringLiteral("unknown-region")});
    row("many at a time",
        "<body><par>" + QByteArray("<img src='a' region='A'/>").repeated(30000) + "</par></body></smil>",
        QStringLiteral("-:2: two pictures or films at the same time in region \"A\": \"a\" (29999 times) "
                       "[crowded-slide]\n"));
    row("two that name nothing", "<body><par>\n<img/><IMG/></par></body></smil>",
        QStringLiteral("-:1: nothing plays in region: \"A\" [unused-region]\n"
                       "-:3: no src: img (2 times) [missing-src]\n"
                       "-:3: two pictures or films at the same time without a region: \"\" [crowded-slide]\n"));
    row("nested", "<body><seq>\n<PAR><img src='a' region='A'/></PAR><q><par/></q></seq></body></smil>",
        QStringLiteral("-:3: nested: par in seq [nested-timeline]\n"),
        {QStringLiteral("--ignore"), QStringLiteral("lost")});
    row("crowded and nested, ignored",
        "<body><par><img src='a' region='A'/><par><img src='b' region='A'/></par></par></body></smil>", QString(),
        {QStringLiteral("--ignore"), QStringLiteral("crowded-slide"), QStringLiteral("--ignore"),
         QStringLiteral("nested-timeline"), QStringLiteral("--ignore"), QStringLiteral("lost")});
    row("regions without id, and with one id",
        "<smil><head><layout><region/><region/>\n<region id='A'/><region id='A'/></layout></head>"
        "<body><par><img src='a' region='A'/></par></body></smil>",
        QStringLiteral("-:1: region without id (2 times) [missing-id]\n"
                       "-:2: more than one region: \"A\" [duplicate-region]\n"));
    row("any letter case", "<body><PAR><IMG src='a' region='A'/></PAR></body></smil>", QString());
    row("an empty timeline", "<body/></smil>",
        QStringLiteral("-:1: nothing plays in region: \"A\" [unused-region]\n-:2: nothing plays [empty-timeline]\n"));
    row("another body", "<body><par><img src='a' region='A'/></par></body>\n<body/></smil>",
        QStringLiteral("-:3: lost when written back: another body in smil [lost-element]\n"));
}

void Check::findings()
{
    QFETCH(QByteArray, body);
    QFETCH(QStringList, arguments);
    QFETCH(QString, lines);
    const Outcome outcome = smiltool(QStringList{QStringLiteral("check"), QStringLiteral("-")} + arguments, body);
    QCOMPARE(outcome.out, lines);
    QCOMPARE(outcome.err, QString());
    QCOMPARE(outcome.status, lines.isEmpty() ? 0 : 1);
}

/** "dur of par" for each attribute of an element and of those in it, in order. */
static void listAttributes(const QDomElement &element, QStringList &all)
{
    const QDomNamedNodeMap attributes = element.attributes();
    for (int i = 0; i < attributes.size(); ++i) {
        all.append(attributes.item(i).nodeName() + QLatin1String(" of ") + element.tagName());
    }
    for (QDomElement child = element.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
        listAttributes(child, all);
    }
    all.sort();
}

void Check::toolKnowsWhatTheLibraryKnows()
{
    QByteArray attributes;
    for (const char *const name :
         {"id",         "title",      "class",         "name",  "content", "width",     "height",
          "top",        "bottom",     "left",          "right", "fit",     "dur",       "src",
          "region",     "begin",      "end",           "alt",   "type",    "z-index",   "backgroundColor",
          "soundLevel", "longdesc",   "repeatCount",   "fill",  "author",  "copyright", "regionName",
          "endsync",    "clip-begin", "system-bitrate"}) {
        attributes += QByteArray(" ") + name + "='1s'";
    }
    QByteArray message;
    for (const char *const tag :
         {"smil", "head",  "meta/", "layout", "root-layout/", "region/", "/layout", "/head", "body",  "seq",
          "par",  "text/", "img/",  "audio/", "video/",       "ref/",    "/par",    "/seq",  "/body", "/smil"}) {
        const QByteArray name = QByteArray(tag).replace('/', "");
        message += *tag == '/' ? QByteArray("<") + tag + ">"
                               : '<' + name + attributes + (QByteArray(tag).endsWith('/') ? "/>" : ">");
    }
    QDomDocument given;
    QVERIFY(given.setContent(message));
    SmilParser parser(message);
    SmilParser writer(parser.parse(SmilParser::ClockDurations | SmilParser::KeepRootSize));
    QStringList kept;
    listAttributes(writer.getContent().documentElement(), kept);

    QDomDocument rendered;
    QVERIFY(rendered.setContent(smiltool({QStringLiteral("render"), QStringLiteral("-")}, message).out));
    QStringList printed;
    listAttributes(rendered.documentElement(), printed);
    QCOMPARE(printed, kept);

    QStringList lost;
    listAttributes(given.documentElement(), lost);
    for (const QString &attribute : std::as_const(kept)) {
        lost.removeOne(attribute);
    }
    const QString found = smiltool({QStringLiteral("check"), QStringLiteral("-")}, message).out;
    static const QRegularExpression line(QStringLiteral("lost when written back: (\\S+ of \\S+)"));
    QStringList told;
    auto matches = line.globalMatch(found);
    while (matches.hasNext()) {
        told.append(matches.next().captured(1));
    }
    told.sort();
    QCOMPARE(told, lost);
}

void Check::partsAreChecked()
{
    const Outcome outcome =
        smiltool({QStringLiteral("check"), QStringLiteral("--parts"), QStringLiteral("holiday"), QStringLiteral("-")},
                 "<smil><head/><body>\n<par><img src='beach.txt'/>\n<text src='cid:HARBOUR.jpg'/></par>\n"
                 "<par><ref src='beach.jpg'/></par><par><img src='../holiday.smil'/></par></body></smil>");
    QCOMPARE(outcome.out,
             QStringLiteral("-:1: nothing refers to the part \"harbour.txt\" [unused-part]\n"
                            "-:2: the part of img is text/plain: \"beach.txt\" [wrong-kind]\n"
                            "-:3: the part of text is image/jpeg: \"cid:HARBOUR.jpg\" [wrong-kind]\n"
                            "-:4: no such part: src of img \"../holiday.smil\" [missing-part]\n"));
    const QTemporaryDir folder;
    const QString script = QStringLiteral(
        "truncate -s 8388609 $old; $tool storyboard - --parts '%1' -o $board <<EOF\n"
        "<smil><head><layout><region id='A'/></layout></head><body><img src='old' region='A'/></body></smil>\n"
        "EOF\n");
    const QString copied = QStringLiteral("cp holiday/* holiday.smil '%1'; rm $old; $tool check --ignore missing-part "
                                          "--ignore lost - --parts '%1' <holiday.smil");
    QCOMPARE(runScript(folder.path(), copied.arg(folder.path())).out, QString());
    const QString numbered = QStringLiteral("cd '%1'; echo '<smil><head/><body/></smil>' >'%'3; $tool check '%'3");
    QCOMPARE(runScript(folder.path(), numbered.arg(folder.path())).out,
             QStringLiteral("%3:1: nothing plays [empty-timeline]\n"));
    const Outcome large = runScript(folder.path(), script.arg(folder.path()));
    QVERIFY2(large.err.endsWith(QLatin1String("/old: is larger than 8 MiB\n")), qPrintable(large.err));
    QCOMPARE(large.status, 1);
}

void Check::wholeMessagesAreChecked()
{
    const QByteArray photo = part("\x9E\x8E" + text("a.jpg"), "\xFF\xD8\xFF");
    const QByteArray smil =
        part(text("application/smil"), "<smil><head/><body><par><img src='a.jpg'/></par></body></smil>");
    const auto checked = [](const QByteArray &bytes) {
        return smiltool({QStringLiteral("check"), QStringLiteral("-")}, bytes);
    };
    QCOMPARE(checked(message("\xB3", 2, smil + photo)).out, QString());
    QCOMPARE(checked(message("\xB3", 3, smil + photo + photo)).out,
             QStringLiteral("-:1: another part has the name \"a.jpg\" [duplicate-part]\n"));
    const Outcome without = checked(message("\xB3", 1, photo));
    QCOMPARE(without.out, QStringLiteral("-: has no SMIL part [no-smil]\n"));
    QCOMPARE(without.status, 1);
    const Outcome broken = checked(message("\xB3", 2, QByteArray(smil).replace("</par>", "</pas>") + photo));
    QVERIFY2(broken.out.isEmpty() && broken.err.startsWith(QLatin1String("-:1:")), qPrintable(broken.out + broken.err));
    QCOMPARE(broken.status, 1);
}

void Check::manualAndCompletionNameEveryFinding()
{
    const QString help = smiltool({QStringLiteral("check"), QStringLiteral("--help")}).out.simplified();
    const QString list = help.section(QStringLiteral("The names: "), 1).section(QStringLiteral(" -h, --help"), 0, 0);
    const QStringList names = list.split(QStringLiteral(", "));
    QCOMPARE(names.last(), QStringLiteral("changed-order"));
    const QString manual = inDocs("man/smiltool.1");
    for (const QString &name : names) {
        QVERIFY2(manual.contains(QStringLiteral(".TP\n.B ") + name + QLatin1Char('\n')), qPrintable(name));
    }
    const QString completion =
        QStringLiteral(". ../completions/smiltool; COMP_WORDS=(smiltool check --ignore ''); COMP_CWORD=3; "
                       "_smiltool; echo ${COMPREPLY[@]}");
    const Outcome completed = run(QStringLiteral("bash"), {QStringLiteral("-c"), completion});
    QCOMPARE(completed.out.simplified().split(QLatin1Char(' ')), names);
}

QTEST_GUILESS_MAIN(Check)
#include "check.moc"
