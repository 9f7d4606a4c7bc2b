// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "support.h"

using Edit = void (*)(SmilDocument &);
Q_DECLARE_METATYPE(Edit)

class Writing : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void texts_data();
    void texts();
    void edits_data();
    void edits();
    void again();
    void kept_data();
    void kept();
};

static const QString plain = QStringLiteral("<smil><head><layout><root-layout/></layout></head><body/></smil>");

static void check(const SmilDocument &model, const QString &expected)
{
    SmilParser parser(model);
    Messages messages;
    QDomDocument &dom = parser.getContent();
    QCOMPARE(canonical(dom), expected);
    QCOMPARE(&parser.getContent(), &dom);
    QCOMPARE(canonical(dom), expected);
    QVERIFY(dom.toString().startsWith(QStringLiteral("<smil>")));
    QCOMPARE(messages.take(), QString());
    const SmilDocument &held = parser.parse(); // finds no input, so that the model stays
    QVERIFY(messages.take().startsWith(QStringLiteral("WFail to parse SMIL document: '")));
    QCOMPARE(Outline::of(held), Outline::of(model));
    const QList<SmilNode> &nodes = held.body.root.children; // as the other lists still shared
    QVERIFY(nodes.isEmpty() || &nodes.at(0) == &model.body.root.children.at(0));
    const QList<SmilMeta> &metas = held.header.metas;
    QVERIFY(metas.isEmpty() || &metas.at(0) == &model.header.metas.at(0));
    const QList<SmilRegion> &regions = held.header.layout.regions;
    QVERIFY(regions.isEmpty() || &regions.at(0) == &model.header.layout.regions.at(0));

    SmilParser pieces((QByteArray()));
    SmilDocument copy = model;
    QCOMPARE(canonical(pieces.render(copy)), expected);
    QVERIFY(pieces.render(copy).parentNode().isNull());
    const QString body = canonical(pieces.render(copy.body));
    QCOMPARE(QStringLiteral("<smil>%1%2</smil>").arg(canonical(pieces.render(copy.header)), body), expected);
    const int layout = int(expected.indexOf(QStringLiteral("<layout>")));
    QCOMPARE(canonical(pieces.render(copy.header.layout)),
             expected.mid(layout, expected.indexOf(QStringLiteral("</head>")) - layout));
    QString inside;
    for (SmilNode &node : copy.body.root.children) {
        inside += canonical(pieces.render(node));
    }
    QCOMPARE(inside.isEmpty() ? QStringLiteral("<body/>") : QStringLiteral("<body>%1</body>").arg(inside), body);
    SmilRef unknown(5);
    unknown.src = QStringLiteral("s");
    QVERIFY(pieces.render(unknown).isNull());
}

void Writing::texts_data()
{
    QTest::addColumn<QString>("input");
    QTest::addColumn<QString>("expected");
    addCases("writing.txt");
}

void Writing::texts()
{
    QFETCH(QString, input);
    QFETCH(QString, expected);
    SmilParser parser(input.toUtf8());
    check(parser.parse(), expected);
    QDomDocument dom;
    QVERIFY(dom.setContent(parser.getContent().toByteArray()));
    QCOMPARE(canonical(dom), expected);
}

void Writing::edits_data()
{
    QTest::addColumn<QString>("body");
    QTest::addColumn<Edit>("edit"); // of a default document

    const auto row = [](const char *name, const QString &body, Edit edit) { QTest::newRow(name) << body << edit; };
    row("none", QStringLiteral("<body/>"), [](SmilDocument &) {});
    row("not written", QStringLiteral("<body/>"), [](SmilDocument &m) {
        m.header.spare = m.body.spare1 = m.body.spare2 = m.body.spare3 = m.body.spare4 = QStringLiteral("s");
        m.body.root.type = SmilNode::Seq;
        m.header.layout.topLayoutWidth.value = 5;
    });
    row("odd measures", QStringLiteral("<body><par dur='5'/><par dur=''/><par dur=''/></body>"), [](SmilDocument &m) {
        for (int unit : {6, 7, -1}) {
            m.body.root.children << SmilNode();
            m.body.root.children.last().dur = SmilUnit(QStringLiteral("5"));
            m.body.root.children.last().dur.unit = unit;
        }
    });
    row("unknown kinds",
        QStringLiteral("<body><par><text/><img/><audio/><video/><ref/></par><seq/><par/><par/></body>"),
        [](SmilDocument &m) {
            m.body.root.children << SmilNode(0) << SmilNode(1) << SmilNode(3) << SmilNode(-1);
            for (int type = -1; type <= 5; ++type) {
                m.body.root.children[0].refs << SmilRef(type);
            }
        });
    const QString deep =
        QStringLiteral("<par>").repeated(599) + QStringLiteral("<par/>") + QStringLiteral("</par>").repeated(599);
    row("deeper than is read", QStringLiteral("<body>%1</body>").arg(deep), [](SmilDocument &m) {
        for (int i = 0; i < 600; ++i) {
            SmilNode node;
            node.children.swap(m.body.root.children);
            m.body.root.children << node;
        }
    });
}

void Writing::edits()
{
    QFETCH(QString, body);
    QFETCH(Edit, edit);
    SmilDocument model;
    edit(model);
    check(model, QString(plain).replace(QStringLiteral("<body/>"), body));
}

void Writing::again()
{
    SmilParser parser(QByteArray("<smil><head/><body/></smil>"));
    SmilDocument &model = parser.parse();
    QDomDocument &dom = parser.getContent();
    const QDomDocument earlier = dom;
    const QDomElement root = dom.documentElement();
    model.body.root.children << SmilNode();
    parser.getContent();
    QCOMPARE(canonical(earlier), plain);
    QCOMPARE(canonical(root), plain);
    QCOMPARE(canonical(dom), QString(plain).replace(QStringLiteral("<body/>"), QStringLiteral("<body><par/></body>")));
}

void Writing::kept_data()
{
    QTest::addColumn<QString>("input");
    QTest::addColumn<QString>("options");
    QTest::addColumn<QString>("model");
    addCases("options.txt");
}

/** Read with both options, written, and read so again: the same top layout, and the same durations of slides. */
void Writing::kept()
{
    QFETCH(QString, input);
    const SmilParser::ReadOptions both = SmilParser::ClockDurations | SmilParser::KeepRootSize;
    Messages messages;
    SmilParser first(input.toUtf8());
    SmilDocument model = first.parse(both);
    SmilParser second(first.getContent().toByteArray());
    const SmilDocument &again = second.parse(both);
    // What the body itself holds is not written, and the size is written as the root layout's.
    model.body.root.dur = SmilUnit();
    model.body.root.refs.clear();
    SmilLayout &layout = model.header.layout;
    layout.rootLayoutWidth = layout.topLayoutWidth;
    layout.rootLayoutHeight = layout.topLayoutHeight;
    QCOMPARE(Outline::of(again), Outline::of(model));
}

QTEST_GUILESS_MAIN(Writing)

#include "writing.moc"
