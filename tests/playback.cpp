// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "cases.h"
#include "told.h"

#include <smilparser/smilplayback.h>

#include <cmath>

class Playback : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void timelines_data() { addCases("timelines.txt"); }
    void timelines();
    void otherElements();
    void slideDurations();
    void askedForLengths();
    void words();
    void styles();
    void backgrounds();
    void otherCues();
    void moments();
    void depth();
    void screens_data() { addCases("screens.txt"); }
    void screens();
    void oddMeasures();
    void fits_data() { addCases("fits.txt"); }
    void fits();
    void parts_data() { addCases("parts.txt"); }
    void parts();
};

static const char *const kinds[] = {"text", "img", "audio", "video", "ref"};

static QString shown(double number)
{
    return QString::number(number, 'g', 6);
}

static QString shown(const QRectF &area)
{
    return area.isNull() && area.topLeft().isNull()
        ? QStringLiteral("null")
        : QStringLiteral("%1,%2 %3x%4")
              .arg(shown(area.x()), shown(area.y()), shown(area.width()), shown(area.height()));
}

static QString shown(const SmilCue &cue)
{
    return QLatin1String(kinds[cue.ref.type]) + (cue.ref.src.isNull() ? QString() : QLatin1Char(' ') + cue.ref.src)
        + (cue.ref.region.isNull() ? QString() : QLatin1String(" in ") + cue.ref.region);
}

/** As "0-5 img a in Image, text b; 5-8 img c". */
static QString shown(const QList<SmilCue> &cues)
{
    QStringList times;
    for (const SmilCue &cue : cues) {
        const QString time = shown(cue.begin) + QLatin1Char('-') + shown(cue.end) + QLatin1Char(' ');
        if (!times.isEmpty() && times.last().startsWith(time)) {
            times.last() += QLatin1String(", ") + shown(cue);
        } else {
            times << time + shown(cue);
        }
    }
    return times.isEmpty() ? QStringLiteral("nothing") : times.join(QLatin1String("; "));
}

static QString shown(const QList<double> &numbers)
{
    QStringList texts;
    for (const double number : numbers) {
        texts << shown(number);
    }
    return texts.join(QLatin1Char(' '));
}

static QSizeF sizeOf(const QString &text)
{
    return QSizeF(text.section(QLatin1Char('x'), 0, 0).toDouble(), text.section(QLatin1Char('x'), 1).toDouble());
}

/** The element, which lives as long as its document. */
static QDomElement elementOf(QDomDocument &dom, const QString &text)
{
    dom.setContent(text);
    return dom.documentElement();
}

static SmilTimeline timelineOf(const QString &elements, double slideDuration = 5,
                               const std::function<double(const SmilRef &)> &length = nullptr)
{
    QDomDocument dom;
    return SmilTimeline(elementOf(dom, QStringLiteral("<smil>%1</smil>").arg(elements)), slideDuration, length);
}

static double lengthOf(const SmilRef &ref)
{
    return ref.src.section(QLatin1Char('@'), 1).toDouble();
}

void Playback::timelines()
{
    QFETCH(QString, elements);
    QFETCH(QString, plays);
    QFETCH(QString, slides);
    QFETCH(QString, takes);
    const SmilTimeline timeline = timelineOf(elements, 5, lengthOf);
    COMPARE_SEEN(QStringLiteral("plays ") + elements, shown(timeline.cues()), plays);
    COMPARE_SEEN(QStringLiteral("pages ") + elements, shown(timeline.slideBegins()), slides);
    COMPARE_SEEN(QStringLiteral("asks how long this takes: ") + elements, shown(timeline.duration()), takes);
}

void Playback::otherElements()
{
    for (const char *text : {"<SMIL><body><img/></body></SMIL>", "<body><img/></body>", ""}) {
        QDomDocument dom;
        const SmilTimeline timeline(elementOf(dom, QLatin1String(text)));
        QVERIFY2(timeline.cues().isEmpty() && timeline.slideBegins().isEmpty() && timeline.duration() == 0, text);
    }
}

void Playback::slideDurations()
{
    const QString slide = QStringLiteral("<body><par><img src='a'/></par></body>");
    QCOMPARE(shown(timelineOf(slide, 2.5).cues()), QStringLiteral("0-2.5 img a"));
    for (const double none : {0.0, -1.0, qInf(), qQNaN()}) {
        QCOMPARE(shown(timelineOf(slide, none).cues()), QStringLiteral("0-5 img a"));
    }
}

/** A host may have to open a file to answer. */
void Playback::askedForLengths()
{
    QStringList asked;
    timelineOf(QStringLiteral("<body><video src='a'/><video src='b' dur='1s'/><par><x><img src='c'/></x>"
                              "<video src='d' end='2s'/><audio src='e' begin='1s'/></par></body>"),
               5, [&](const SmilRef &ref) {
                   asked << ref.src;
                   return 1;
               });
    QCOMPARE(asked.join(QLatin1Char(' ')), QStringLiteral("a e"));
}

void Playback::words()
{
    const SmilTimeline timeline = timelineOf(QStringLiteral(
        "<body><img SRC='a' src='' ALT='b'><PARAM name='a' value='b'/></img>"
        "<text alt='words' region='T'><x><param name='x' value='y'/></x><param value='nameless'/><param name=''/>"
        "<param name='color' value='#fff'/><param name='color' value='#000'/><param name='size'/></text></body>"));
    const SmilCue &picture = timeline.cues().at(0);
    QVERIFY(picture.params.isEmpty() && picture.alt.isNull() && picture.ref.region.isNull());
    QVERIFY(picture.ref.src.isEmpty() && !picture.ref.src.isNull());
    const SmilCue &text = timeline.cues().at(1);
    QCOMPARE(text.alt, QStringLiteral("words"));
    QCOMPARE(text.params.keys().join(QLatin1Char(' ')), QStringLiteral("color size"));
    QCOMPARE(text.params.first(), QStringLiteral("#fff"));
}

/** Colours and fits are those of the first region of that name, in what is a layout to parse(). */
void Playback::styles()
{
    QDomDocument dom;
    const SmilTimeline timeline(elementOf(dom, QStringLiteral(R"(<smil><head><layout><region background-color="none"/>
<region id="A" background-color="red" backgroundColor="no" fit="fill"/><region id="A" background-color="no" fit="no"/>
<region id="B" background-color="" backgroundColor="green"/></layout><layout><region id="C" fit="no"/></layout></head>
<body><img region="A"/><img region="B"><param name="background-color" value="blue"/></img>
<img region="B"><param name="background-color" value=""/></img><img region="C"/><img region=""/></body></smil>)")));
    const auto seen = [](const SmilCue &cue) {
        return QStringLiteral("%1 %2 %3").arg(cue.background, cue.fit).arg(cue.line);
    };
    QStringList all;
    for (const SmilCue &cue : timeline.cues()) {
        all << seen(cue);
    }
    QCOMPARE(all.join(u','), QStringLiteral("red fill 4,blue  4,green  5,  5,  5"));
    QVERIFY(timeline.cues().last().background.isNull() && timeline.cues().last().fit.isNull());
    SmilDocument model;
    model.body.root.children.append(SmilNode());
    model.body.root.children.first().refs.append(SmilRef(SmilRef::Img));
    SmilParser writer(model);
    QCOMPARE(SmilTimeline(writer.getContent().documentElement()).cues().first().line, -1);
}

void Playback::backgrounds()
{
    const auto background = [](const char *layout) {
        QDomDocument dom;
        const QString text = QStringLiteral("<smil><head><layout>%1</layout></head></smil>").arg(QLatin1String(layout));
        return SmilTimeline(elementOf(dom, text)).background();
    };
    QCOMPARE(background("<topLayout background-color='no'/><root-layout backgroundColor='red'/>"),
             QStringLiteral("red"));
    QCOMPARE(background("<root-layout background-color=''/><topLayout backgroundColor='no' background-color='red'/>"
                        "<topLayout background-color='no'/>"),
             QStringLiteral("red"));
    QVERIFY(background("<root-layout/><root-layout background-color='no'/>").isNull());
}

void Playback::otherCues()
{
    const auto cueOf = [](const char *medium) {
        return timelineOf(QStringLiteral("<body>%1</body>").arg(QLatin1String(medium))).cues().first();
    };
    for (const char *other : {"<text/>", "<img alt='a'/>", "<img><param name='a'/></img>", "<img end='1s'/>",
                              "<img begin='1s' end='5s'/>"}) {
        QVERIFY2(cueOf(other) != cueOf("<img/>") && cueOf(other) == cueOf(other), other);
    }
    const SmilCue cue;
    for (QString SmilCue::*const field : {&SmilCue::background, &SmilCue::fit}) {
        SmilCue other = cue;
        other.*field = QStringLiteral("a");
        QVERIFY(other != cue);
    }
    QVERIFY(cueOf("<img/>") == cueOf("\n<img/>")); // on another line
}

void Playback::moments()
{
    const SmilTimeline timeline =
        timelineOf(QStringLiteral("<body><par><img src='a' dur='5s'/><img src='never' begin='3s' end='0s'/></par>"
                                  "<img src='b' dur='3s' begin='1s'/></body>"));
    const QString a = QStringLiteral("0-5 img a");
    const QString b = QStringLiteral("6-9 img b");
    const QString none = QStringLiteral("nothing");
    QCOMPARE(shown(timeline.cuesAt(-1)), none);
    QCOMPARE(shown(timeline.cuesAt(0)), a);
    QCOMPARE(shown(timeline.cuesAt(3)), a);
    QCOMPARE(shown(timeline.cuesAt(5)), none);
    QCOMPARE(shown(timeline.cuesAt(6)), b);
    QCOMPARE(shown(timeline.cuesAt(qInf())), none);
    QCOMPARE(shown(timeline.cuesAt(qQNaN())), none);
    QCOMPARE(shown(timeline.cuesBetween(0, 6)), a);
    QCOMPARE(shown(timeline.cuesBetween(4, 7)), a + QLatin1String("; ") + b);
    QCOMPARE(shown(timeline.cuesBetween(5, qInf())), b);
    QCOMPARE(shown(timeline.cuesBetween(5, 6)), none);
    QCOMPARE(shown(timeline.cuesBetween(qQNaN(), 6)), none);
    QCOMPARE(shown(timeline.cuesOnSlide(0)), a);
    QCOMPARE(shown(timeline.cuesOnSlide(1)), b);
    QCOMPARE(shown(timeline.cuesOnSlide(-1)), none);
    QCOMPARE(shown(timeline.cuesOnSlide(2)), none);
    const QList<double> changes = {timeline.nextChange(-qInf()), timeline.nextChange(0), timeline.nextChange(5),
                                   timeline.nextChange(6),       timeline.nextChange(9), timeline.nextChange(qQNaN())};
    QCOMPARE(shown(changes), QStringLiteral("0 5 6 9 inf inf"));
}

/** A host's own tree may be deeper than any that is read. */
void Playback::depth()
{
    QDomDocument dom;
    QDomElement smil = dom.createElement(QStringLiteral("smil"));
    QDomNode inner = smil.appendChild(dom.createElement(QStringLiteral("body")));
    for (int level = 0; level < 600; ++level) {
        inner.appendChild(dom.createElement(QStringLiteral("img")))
            .toElement()
            .setAttribute(QStringLiteral("src"), level);
        inner = inner.appendChild(dom.createElement(level % 2 ? QStringLiteral("par") : QStringLiteral("SEQ")));
    }
    SmilTimeline timeline;
    onSmallStack([&] { timeline = SmilTimeline(smil, 1, lengthOf); });
    QCOMPARE(int(timeline.cues().size()), 513);
    QVERIFY(std::any_of(timeline.cues().cbegin(), timeline.cues().cend(),
                        [](const SmilCue &cue) { return cue.ref.src == QLatin1String("512"); }));
    QCOMPARE(timeline.duration(), 258.0);
}

void Playback::screens()
{
    QFETCH(QString, device);
    QFETCH(QString, layout);
    QFETCH(QString, media);
    QFETCH(QString, sees);
    const QString text =
        QStringLiteral("<smil><head><layout>%1</layout></head><body>%2</body></smil>").arg(layout, media);
    SmilParser parser(text.toUtf8());
    const SmilScreen screen(parser.parse().header.layout, sizeOf(device));
    QString seen = shown(screen.size().width()) + QLatin1Char('x') + shown(screen.size().height());
    for (const QRectF &area : screen.regionRects()) {
        seen += QLatin1String("; area ") + shown(area);
    }
    QStringList places;
    for (const QRectF &place : screen.rects(SmilTimeline(parser.dom().documentElement()).cues())) {
        places << shown(place);
    }
    seen += places.isEmpty() ? QString() : QLatin1String("; places ") + places.join(QLatin1Char(' '));
    COMPARE_SEEN(QStringLiteral("lays out %1 on %2").arg(text, device), seen, sees);
}

/** What no text reads as, but a host may have set. */
void Playback::oddMeasures()
{
    SmilUnit odd(QStringLiteral("50px"));
    const auto areaOf = [&] {
        SmilLayout layout;
        layout.rootLayoutWidth = layout.rootLayoutHeight = SmilUnit(QStringLiteral("100px"));
        layout.topLayoutWidth = odd;
        layout.regions.append(SmilRegion());
        layout.regions.first().left = layout.regions.first().width = odd;
        return shown(SmilScreen(layout).regionRects().first());
    };
    QCOMPARE(areaOf(), QStringLiteral("50,0 50x100"));
    const QString whole = QStringLiteral("0,0 100x100");
    odd.valid = false;
    QCOMPARE(areaOf(), whole);
    odd.valid = true;
    for (const double value : {qInf(), -qInf(), qQNaN()}) {
        odd.value = value;
        QCOMPARE(areaOf(), whole);
    }
    odd = SmilUnit(QStringLiteral("50px"));
    for (const int unit : {int(SmilUnit::NoUnit), -1, 7}) {
        odd.unit = unit;
        QCOMPARE(areaOf(), whole);
    }
}

void Playback::fits()
{
    QFETCH(QString, pictures);
    QFETCH(QString, fits);
    QFETCH(QString, takes);
    for (const QString &picture : pictures.split(QLatin1Char(' '))) {
        for (const QString &fit : fits.split(QLatin1Char(' '))) {
            COMPARE_SEEN(QStringLiteral("shows %1 by %2").arg(picture, fit),
                         shown(SmilScreen::fitted(sizeOf(picture), QRectF(10, 20, 200, 100),
                                                  fit == QLatin1String("-") ? QString() : fit)),
                         takes);
        }
    }
}

void Playback::parts()
{
    QFETCH(QString, names);
    QFETCH(QString, src);
    QFETCH(QString, part);
    SmilParts parts;
    for (const QString &name : names.split(QLatin1Char(' '))) {
        const QString text = name.section(QLatin1Char('='), 1);
        parts.add(name.section(QLatin1Char('='), 0, 0).toInt(), text == QLatin1String("~") ? QString() : text);
    }
    COMPARE_SEEN(QStringLiteral("looks for %1 among %2").arg(src, names), QString::number(parts.find(src)), part);
}

QTEST_GUILESS_MAIN(Playback)

#include "playback.moc"
