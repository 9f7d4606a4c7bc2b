// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "cases.h"
#include "mmsbytes.h"
#include "smiltool.h"

#include <smilparser/smilparser.h>

#include <QtXml/QDomDocument>

class Check : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void findings_data() { addCases("findings.txt"); }
    void findings();
    void toolKnowsWhatTheLibraryKnows();
    void partsAreChecked();
    void wholeMessagesAreChecked();
    void manualAndCompletionNameEveryFinding();
};

void Check::findings()
{
    QFETCH(QString, body);
    QFETCH(QString, ignored);
    QFETCH(QString, lines);
    QStringList arguments = {QStringLiteral("check"), QStringLiteral("-")};
    for (const QString &finding : ignored.split(u' ', Qt::SkipEmptyParts)) {
        arguments << QStringLiteral("--ignore") << finding;
    }
    if (!body.startsWith(QLatin1String("<smil>"))) {
        body.prepend(QLatin1String("<smil><head><layout><root-layout/><region id='A'/></layout></head>\n"));
    }
    const Outcome outcome = smiltool(arguments, body.toUtf8());
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
