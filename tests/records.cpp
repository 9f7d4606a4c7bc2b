// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "support.h"

// Hosts store the numbers.
static_assert(SmilNode::Seq == 1 && SmilNode::Par == 2 && SmilRef::Text == 0 && SmilRef::Img == 1, "fixed");
static_assert(SmilRef::Audio == 2 && SmilRef::Video == 3 && SmilRef::Ref == 4, "fixed");

using Edit = void (*)(SmilDocument &);
Q_DECLARE_METATYPE(Edit)

class Records : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void edits_data();
    void edits();
};

void Records::edits_data()
{
    QTest::addColumn<Edit>("edit");
    QTest::addColumn<QString>("expected"); // of a default document

    const auto row = [](const char *name, const char *expected, Edit edit) { QTest::newRow(name) << edit << expected; };
    row("none", "- - - / par -", [](SmilDocument &) {});
    row("title", "- - 'T' / par -", [](SmilDocument &m) { m.header = SmilHeader(QStringLiteral("T")); });
    row("spares", "- - - / par - / '' '' '' '' '4'", [](SmilDocument &m) {
        m.header.spare = m.body.spare1 = m.body.spare2 = m.body.spare3 = QStringLiteral("");
        m.body.spare4 += QLatin1Char('4');
    });
    row("children", "- - - / par - [par -, seq -]",
        [](SmilDocument &m) { m.body.root.children << SmilNode() << SmilNode(SmilNode::Seq); });
    row("media", "- - - / par - {3 - -}", [](SmilDocument &m) { m.body.root.refs << SmilRef(SmilRef::Video); });
    row("duration", "- - - / par 2s", [](SmilDocument &m) { m.body.root.dur = SmilUnit(QStringLiteral("2s")); });
    row("metas", "- - - {- - -} / par -", [](SmilDocument &m) { m.header.metas << SmilMeta(); });
    row("regions", "- - - [- - - - - - - -] / par -", [](SmilDocument &m) { m.header.layout.regions << SmilRegion(); });
    row("size", "- - - (1px - - -) / par -",
        [](SmilDocument &m) { m.header.layout.rootLayoutWidth = SmilUnit(QStringLiteral("1")); });
}

void Records::edits()
{
    QFETCH(Edit, edit);
    SmilDocument model;
    edit(model);
    QTEST(Outline::of(model), "expected");

    SmilParser parser(QByteArray("<smil><head><meta/><layout><region/></layout></head>"
                                 "<body dur='1s'><img/><par><seq><ref/></seq></par></body></smil>"));
    SmilDocument source = parser.parse();
    source.header.spare = source.body.spare1 = source.body.spare2 = source.body.spare3 = QStringLiteral("s");
    const QString before = Outline::of(source);
    const auto change = [edit](SmilDocument &changed) {
        edit(changed);
        changed.body.root.children[0].children[0].refs[0].src = QStringLiteral("innermost");
        return Outline::of(changed);
    };
    SmilDocument copy(source);
    QCOMPARE(Outline::of(copy), before);
    QVERIFY(change(copy) != before);
    QCOMPARE(Outline::of(source), before);
    copy = source;
    QVERIFY(change(source) != before);
    QCOMPARE(Outline::of(copy), before);
}

QTEST_GUILESS_MAIN(Records)

#include "records.moc"
