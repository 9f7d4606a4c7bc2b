// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "cases.h"
#include "guardtesthelpers.h"

using Edit = void (*)(SmilDocument &);
Q_DECLARE_METATYPE(Edit)

class Writing : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void texts_data() { addCases("writing.txt"); }
    void texts();
    void edits_data();
    void edits();
    void again();
    void xml_data() { addCases("xml.txt"); }
    void xml();
    void indents();
    void readBack_data() { addCases("reading.txt"); }
    void readBack();
};

static void checkWhole(const SmilDocument &model, const QString &expected)
{
    const QString writes = QStringLiteral("writes ") + ModelDump::of(model);
    Messages messages;
    SmilParser parser(model);
    QDomDocument &dom = parser.getContent();
    COMPARE_SEEN(writes, messages.take() + ModelDump::of(dom), expected);
    QVERIFY2(dom.toString().startsWith(QStringLiteral("<smil>")), qPrintable(dom.toString()));
    QDomDocument text;
    text.setContent(parser.toXml());
    COMPARE_SEEN(writes + QStringLiteral(" as text"), ModelDump::of(text), expected);
    parser.getContent();
    COMPARE_SEEN(writes + QStringLiteral(" a second time"), ModelDump::of(dom), expected);
    const SmilDocument &held = parser.parse(); // finds no input, so that the model stays
    QVERIFY2(held == model, qPrintable(writes + QStringLiteral(" has another model then: ") + ModelDump::of(held)));
    QVERIFY2(model.body.root.children.isEmpty() || &held.body.root.children.at(0) == &model.body.root.children.at(0),
             "the nodes are copied");
}

/** What is rendered by itself is the same, and the host may attach it where it likes. */
static void checkPieces(SmilDocument model, const QString &expected)
{
    const auto piece = [](const QDomElement &element) {
        return (element.parentNode().isNull() ? QString() : QStringLiteral("attached: ")) + ModelDump::of(element);
    };
    SmilParser parser((QByteArray()));
    const QString head = piece(parser.render(model.header));
    const QString body = piece(parser.render(model.body));
    QString nodes;
    for (SmilNode &node : model.body.root.children) {
        nodes += piece(parser.render(node));
    }
    const QString renders = QStringLiteral("renders pieces of ") + ModelDump::of(model);
    COMPARE_SEEN(renders, piece(parser.render(model)), expected);
    for (int type = -1; type <= 5; ++type) {
        SmilRef ref(type);
        QCOMPARE(parser.render(ref).isNull(), type < 0 || type > 4); // nothing for an unknown kind
    }
    COMPARE_SEEN(renders, QStringLiteral("<smil>%1%2</smil>").arg(head, body), expected);
    COMPARE_SEEN(renders, nodes, body.mid(6).chopped(nodes.isEmpty() ? 1 : 7));
    COMPARE_SEEN(renders, piece(parser.render(model.header.layout)),
                 head.mid(head.indexOf(QStringLiteral("<layout>"))).chopped(7));
}

void Writing::texts()
{
    QFETCH(QString, input);
    QFETCH(QString, document);
    SmilParser parser(input.toUtf8());
    const SmilDocument model = parser.parse();
    checkWhole(model, document);
    checkPieces(model, document);
    QDomDocument dom;
    dom.setContent(parser.getContent().toByteArray());
    COMPARE_SEEN(QStringLiteral("reads and writes ") + input, ModelDump::of(dom), document);
}

void Writing::edits_data()
{
    QTest::addColumn<Edit>("edit"); // of a default document
    QTest::addColumn<QString>("model");
    QTest::addColumn<QString>("document");
    const auto row = [](const char *name, const char *model, const char *head, const char *body, Edit edit) {
        const QString document =
            QLatin1String("<smil>") + QLatin1String(head) + QLatin1String(body) + QLatin1String("</smil>");
        QTest::newRow(name) << edit << QString::fromLatin1(model) << document;
    };
    const char *const head = "<head><layout><root-layout/></layout></head>";
    row("title", "<head title='T'/><body/>", "<head title='T'><layout><root-layout/></layout></head>", "<body/>",
        [](SmilDocument &m) { m.header = SmilHeader(QStringLiteral("T")); });
    row("what is not written",
        "<head spare=''><layout><root-layout width='1px'/><topLayout width='invalid, but not reset'/></layout></head>"
        "<body-that-is-no-par spare1='' spare2='' spare3='' spare4='4' dur='2s'><video/></body-that-is-no-par>",
        head, "<body/>", [](SmilDocument &m) {
            m.header.spare = m.body.spare1 = m.body.spare2 = m.body.spare3 = QStringLiteral("");
            m.body.spare4 += QLatin1Char('4');
            m.body.root.type = SmilNode::Seq;
            m.body.root.dur = SmilUnit(QStringLiteral("2s"));
            m.body.root.refs << SmilRef(SmilRef::Video);
            m.header.layout.rootLayoutWidth = SmilUnit(QStringLiteral("1"));
            m.header.layout.topLayoutWidth.value = 5;
        });
    const char *const oddMeasures = "<body><par dur='5'/><par dur=''/><par dur=''/></body>";
    row("odd measures", oddMeasures, head, oddMeasures, [](SmilDocument &m) {
        for (int unit : {6, 7, -1}) {
            m.body.root.children << SmilNode();
            m.body.root.children.last().dur = SmilUnit(QStringLiteral("5"));
            m.body.root.children.last().dur.unit = unit;
        }
    });
    row("unknown kinds",
        "<body><unknown><unknown/><text/><img/><audio/><video/><ref/><unknown/></unknown><seq/><par/><unknown/></body>",
        head, "<body><par><text/><img/><audio/><video/><ref/></par><seq/><par/><par/></body>", [](SmilDocument &m) {
            m.body.root.children << SmilNode(0) << SmilNode(SmilNode::Seq) << SmilNode() << SmilNode(-1);
            for (int type = -1; type <= 5; ++type) {
                m.body.root.children[0].refs << SmilRef(type);
            }
        });
    const QByteArray deep =
        "<body>" + QByteArray("<par>").repeated(599) + "<par/>" + QByteArray("</par>").repeated(599) + "</body>";
    row("deeper than is read", deep, head, deep, [](SmilDocument &m) {
        for (int i = 0; i < 600; ++i) {
            SmilNode node;
            node.children.swap(m.body.root.children);
            m.body.root.children << node;
        }
    });
}

void Writing::edits()
{
    QFETCH(Edit, edit);
    QFETCH(QString, model);
    QFETCH(QString, document);
    SmilDocument edited;
    edit(edited);
    COMPARE_SEEN(QStringLiteral("edits a model"), ModelDump::of(edited), model);
    checkWhole(edited, document);
    checkPieces(edited, document);
}

/** A copy of the document, and its elements, stay as they were when the model is changed and written again. */
void Writing::again()
{
    SmilParser parser(QByteArray("<smil><head/><body><par><seq><ref src='a'/></seq></par></body></smil>"));
    SmilDocument &model = parser.parse();
    const SmilDocument modelBefore = model;
    const QDomDocument documentBefore = parser.getContent();
    const QDomElement elementBefore = documentBefore.documentElement();
    const QString expected = QStringLiteral("<smil><head><layout><root-layout/></layout></head><body><par><seq>"
                                            "<ref src='%1'/></seq></par></body></smil>");
    model.body.root.children[0].children[0].refs[0].src = QStringLiteral("b");
    QCOMPARE(ModelDump::of(parser.getContent()), expected.arg(QLatin1Char('b')));
    QCOMPARE(ModelDump::of(documentBefore), expected.arg(QLatin1Char('a')));
    QCOMPARE(ModelDump::of(elementBefore), expected.arg(QLatin1Char('a')));
    QCOMPARE(ModelDump::of(modelBefore), QStringLiteral("<body><par><seq><ref src='a'/></seq></par></body>"));
}

/** All of the text, of which the two are a part, with the attributes in the order in which they are set. */
void Writing::xml()
{
    QFETCH(QString, title);
    QFETCH(QString, src);
    QFETCH(QString, titleInXml);
    QFETCH(QString, srcInXml);
    const QString text =
        QStringLiteral("<smil><head id=\"i\"%1 class=\"c\"><meta id=\"1\" name=\"2\" content=\"3\"/><layout>"
                       "<root-layout width=\"1px\" height=\"2px\"/><region id=\"1\" width=\"2px\" "
                       "height=\"3px\" top=\"4px\" bottom=\"5px\" left=\"6px\" right=\"7px\" fit=\"8\"/>"
                       "</layout></head><body><par dur=\"5s\"><seq/><img%2 region=\"r\"/></par></body></smil>");
    const auto attribute = [](const QString &inXml) { return inXml.isEmpty() ? inXml : u' ' + inXml; };
    SmilParser first(QStringLiteral("<smil><head title='T' id='i' class='c'><meta content='3' name='2' id='1'/><layout>"
                                    "<topLayout height='2' width='1'/><region fit='8' right='7' left='6' bottom='5' "
                                    "top='4' height='3' width='2' id='1'/></layout></head><body><par dur='5s'><seq/>"
                                    "<img region='r'/></par></body></smil>")
                         .toUtf8());
    SmilDocument model = first.parse();
    model.header.title = title;
    model.body.root.children[0].refs[0].src = src;
    const SmilParser parser(model);
    QCOMPARE(QString::fromUtf8(parser.toXml()), text.arg(attribute(titleInXml), attribute(srcInXml)));
    SmilParser::Outcome outcome;
    SmilParser(parser.toXml()).parse(SmilParser::AsWritten, &outcome);
    QVERIFY2(outcome == SmilParser::Complete, "it cannot be read");
}

/** Read with both options, written, and read so again: the same top layout, and the same durations of slides. */
void Writing::readBack()
{
    QFETCH(QString, input);
    const SmilParser::ReadOptions both = SmilParser::ClockDurations | SmilParser::KeepRootSize;
    Messages messages;
    SmilParser first(input.toUtf8());
    SmilDocument model = first.parse(both);
    SmilParser second(first.toXml());
    const SmilDocument &again = second.parse(both);
    // What the body itself holds is not written, and the size is written as the root layout's.
    model.body.root.dur = SmilUnit();
    model.body.root.refs.clear();
    SmilLayout &layout = model.header.layout;
    layout.rootLayoutWidth = layout.topLayoutWidth;
    layout.rootLayoutHeight = layout.topLayoutHeight;
    COMPARE_SEEN(QStringLiteral("reads back ") + input, ModelDump::of(again), ModelDump::of(model));
}

/** One element a line, as QDomDocument writes, with its attributes in the order in which they are set. */
void Writing::indents()
{
    SmilParser parser(QByteArray("<smil><head title='a b'/><body><par><img/></par><par/></body></smil>"));
    parser.parse();
    for (const int indent : {0, 1, 4}) {
        QCOMPARE(QString::fromUtf8(parser.toXml(indent)), QString::fromUtf8(parser.getContent().toByteArray(indent)));
    }
    QCOMPARE(parser.toXml(-2), parser.toXml());
}

QTEST_GUILESS_MAIN(Writing)

#include "writing.moc"
