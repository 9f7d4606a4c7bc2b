// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "cases.h"
#include "guardtesthelpers.h"

#include <smilparser/smilplayback.h>

#include <cmath>

class Playback : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void timelines_data() { addCases("timelines.txt"); }
    void timelines();
    void slideDurations();
    void askedForLengths();
    void cues_data() { addCases("cues.txt"); }
    void cues();
    void ownElements();
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
    return QStringLiteral("%1,%2 %3x%4")
        .arg(shown(area.x()), shown(area.y()), shown(area.width()), shown(area.height()));
}

/** As "0-5 img a in Image, text b; 5-8 img c". */
static QString shown(const QList<SmilCue> &cues)
{
    QStringList times;
    for (const SmilCue &cue : cues) {
        const QString time = shown(cue.begin) + u'-' + shown(cue.end) + u' ';
        const QString medium = QLatin1String(kinds[cue.ref.type])
            + (cue.ref.src.isNull() ? QString() : u' ' + cue.ref.src)
            + (cue.ref.region.isNull() ? QString() : QLatin1String(" in ") + cue.ref.region);
        if (!times.isEmpty() && times.last().startsWith(time)) {
            times.last() += QLatin1String(", ") + medium;
        } else {
            times << time + medium;
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
    return texts.join(u' ');
}

static QSizeF sizeOf(const QString &text)
{
    return QSizeF(text.section(u'x', 0, 0).toDouble(), text.section(u'x', 1).toDouble());
}

static SmilTimeline timelineOf(const QString &elements, double slideDuration = 5,
                               const std::function<double(const SmilRef &)> &length = nullptr)
{
    QDomDocument dom;
    dom.setContent(QStringLiteral("<smil>%1</smil>").arg(elements));
    return SmilTimeline(dom.documentElement(), slideDuration, length);
}

static double lengthOf(const SmilRef &ref)
{
    return ref.src.section(QStringLiteral("-takes-"), 1).toDouble();
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

void Playback::cues()
{
    QFETCH(QString, elements);
    QFETCH(QString, sees);
    const SmilTimeline timeline = timelineOf(elements);
    QString seen = timeline.background();
    for (const SmilCue &cue : timeline.cues()) {
        seen += u'<' + QLatin1String(kinds[cue.ref.type]);
        const auto add = [&](const QString &name, const QString &value) {
            seen += value.isNull() ? value : QStringLiteral(" %1='%2'").arg(name, value);
        };
        add(QStringLiteral("src"), cue.ref.src);
        add(QStringLiteral("region"), cue.ref.region);
        add(QStringLiteral("alt"), cue.alt);
        add(QStringLiteral("background"), cue.background);
        add(QStringLiteral("fit"), cue.fit);
        for (auto param = cue.params.begin(); param != cue.params.end(); ++param) {
            add(param.key(), QLatin1String("") + param.value());
        }
        add(QStringLiteral("line"), QString::number(cue.line));
        seen += QStringLiteral("/>");
    }
    COMPARE_SEEN(QStringLiteral("looks at ") + elements, seen, sees);
}

/** Not of a document that was read: without "smil" nothing plays, and what was rendered stands on no line. */
void Playback::ownElements()
{
    QDomDocument dom;
    for (const char *text : {"<SMIL><body><img/></body></SMIL>", "<body><img/></body>", ""}) {
        dom.setContent(QString::fromLatin1(text));
        const SmilTimeline timeline(dom.documentElement());
        QVERIFY2(timeline.cues().isEmpty() && timeline.slideBegins().isEmpty() && timeline.duration() == 0, text);
    }
    SmilDocument model;
    model.body.root.children << SmilNode();
    model.body.root.children.first().refs << SmilRef(SmilRef::Img);
    SmilParser writer(model);
    QCOMPARE(SmilTimeline(writer.getContent().documentElement()).cues().first().line, -1);
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
    SmilCue other;
    other.background = QStringLiteral("a");
    QVERIFY(other != SmilCue());
    other = SmilCue();
    other.fit = QStringLiteral("a");
    QVERIFY(other != SmilCue());
    QVERIFY(cueOf("<img/>") == cueOf("\n<img/>")); // on another line
}

void Playback::moments()
{
    const SmilTimeline timeline =
        timelineOf(QStringLiteral("<body><par><img src='a' dur='5s'/><img src='never' begin='3s' end='0s'/></par>"
                                  "<img src='b' dur='3s' begin='1s'/></body>"));
    QStringList playing;
    for (const double second : {-1.0, 0.0, 3.0, 5.0, 6.0, qInf(), qQNaN()}) {
        playing << shown(timeline.cuesAt(second));
    }
    QCOMPARE(playing.join(u'|'), QStringLiteral("nothing|0-5 img a|0-5 img a|nothing|6-9 img b|nothing|nothing"));
    playing.clear();
    for (const QPointF &times :
         {QPointF(0, 6), QPointF(4, 7), QPointF(5, qInf()), QPointF(5, 6), QPointF(qQNaN(), 6)}) {
        playing << shown(timeline.cuesBetween(times.x(), times.y()));
    }
    QCOMPARE(playing.join(u'|'), QStringLiteral("0-5 img a|0-5 img a; 6-9 img b|6-9 img b|nothing|nothing"));
    playing.clear();
    for (const int slide : {-1, 0, 1, 2}) {
        playing << shown(timeline.cuesOnSlide(slide));
    }
    QCOMPARE(playing.join(u'|'), QStringLiteral("nothing|0-5 img a|6-9 img b|nothing"));
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
    const auto areaOf = [](double value, int unit, bool valid = true) {
        SmilUnit odd(value, SmilUnit::Unit(unit));
        odd.valid = valid;
        SmilLayout layout;
        layout.rootLayoutWidth = layout.rootLayoutHeight = SmilUnit(100, SmilUnit::Px);
        layout.topLayoutWidth = odd;
        layout.regions.append(SmilRegion());
        layout.regions.first().left = layout.regions.first().width = odd;
        return shown(SmilScreen(layout).regionRects().first());
    };
    QCOMPARE(areaOf(50, SmilUnit::Px), QStringLiteral("50,0 50x100"));
    QCOMPARE(areaOf(50, SmilUnit::Px, false), QStringLiteral("0,0 100x100"));
    for (const double value : {qInf(), -qInf(), qQNaN()}) {
        QCOMPARE(areaOf(value, SmilUnit::Px), QStringLiteral("0,0 100x100"));
    }
    for (const int unit : {int(SmilUnit::NoUnit), -1, 7}) {
        QCOMPARE(areaOf(50, unit), QStringLiteral("0,0 100x100"));
    }
    QVERIFY(SmilScreen().size() == QSizeF(0, 0) && SmilScreen().regionIndex(QString()) == -1);
}

void Playback::fits()
{
    QFETCH(QString, picture);
    QFETCH(QString, fits);
    QFETCH(QString, takes);
    for (const QString &fit : fits.split(u' ')) {
        const QRectF area = SmilScreen::fitted(sizeOf(picture), QRectF(10, 20, 200, 100), fit);
        COMPARE_SEEN(QStringLiteral("puts a picture of %1 by \"%2\"").arg(picture, fit), shown(area), takes);
    }
}

void Playback::parts()
{
    QFETCH(QString, names);
    QFETCH(QString, src);
    QFETCH(QString, part);
    SmilParts parts;
    for (const QString &name : names.split(u' ')) {
        parts.add(name.section(u'=', 0, 0).toInt(), name.section(u'=', 1));
    }
    COMPARE_SEEN(QStringLiteral("looks for %1 among %2").arg(src, names), QString::number(parts.find(src)), part);
}

QTEST_GUILESS_MAIN(Playback)

#include "playback.moc"
