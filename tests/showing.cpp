// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "cases.h"
#include "messages.h"

#include <smilparser/smilslideshow.h>

class Showing : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void slides_data() { addCases("slideshows.txt"); }
    void slides();
    void names();
    void lengths();
    void titles();
    void outcomes();
    void texts_data() { addCases("texts.txt"); }
    void texts();
    void kinds();
    void equality();
};

using Parts = QList<SmilPart>;

static SmilPart part(const QString &type, const QString &name, const QString &contentId = QString(),
                     const QString &location = QString())
{
    SmilPart part;
    part.type = type;
    part.name = name;
    part.contentId = contentId;
    part.location = location;
    return part;
}

/** Of "TYPE NAME, TYPE NAME". */
static Parts partsOf(const QString &texts)
{
    Parts parts;
    for (const QString &text : texts.split(QStringLiteral(", "), Qt::SkipEmptyParts)) {
        parts << part(text.section(u' ', 0, 0), text.section(u' ', 1));
    }
    return parts;
}

static QByteArray smil(const QByteArray &body, const QByteArray &head = QByteArray())
{
    return "<smil><head>" + head + "</head><body>" + body + "</body></smil>";
}

/** As "0-5 img a.jpg is 0, text b.txt missing; 5-8 audio c is 2". */
static QString seen(const SmilSlideshow &show)
{
    static const char *const elements[] = {"text", "img", "audio", "video", "ref"};
    QStringList slides;
    for (int i = 0; i < show.count(); ++i) {
        const SmilSlide slide = show.slide(i);
        QStringList cues;
        for (int j = 0; j < int(slide.cues.size()); ++j) {
            const SmilRef &ref = slide.cues.at(j).ref;
            const QString part = QString::number(slide.parts.at(j));
            cues << QStringLiteral("%1 %2 is %3").arg(QLatin1String(elements[ref.type]), ref.src, part);
        }
        slides << QStringLiteral("%1-%2 %3").arg(slide.begin).arg(slide.end).arg(cues.join(QStringLiteral(", ")));
    }
    return slides.join(QStringLiteral("; ")).replace(QLatin1String("is -1"), QLatin1String("missing"));
}

void Showing::slides()
{
    QFETCH(QString, smil);
    QFETCH(QString, parts);
    QFETCH(QString, shows);
    const SmilSlideshow show(smil.toUtf8(), partsOf(parts));
    COMPARE_SEEN(QStringLiteral("shows %1 with %2").arg(smil, parts), seen(show), shows);
    QCOMPARE(show.duration(), show.count() ? show.slide(show.count() - 1).end : 0.0);
    QVERIFY(show.slide(-1) == SmilSlide() && show.slide(show.count()) == SmilSlide());
}

/** A Content-ID comes before a Content-Location, and that before a name. */
void Showing::names()
{
    const QString a = QStringLiteral("a");
    const Parts parts = {part({}, a), part({}, {}, {}, a), part({}, {}, a)};
    const QByteArray bytes = smil("<par dur='3s'><img src='a'/></par>");
    QCOMPARE(seen(SmilSlideshow(bytes, parts)), QStringLiteral("0-3 img a is 2; 3-8 ref a is 0; 8-13 ref a is 1"));
    QCOMPARE(seen(SmilSlideshow(bytes, parts.mid(0, 2))), QStringLiteral("0-3 img a is 1; 3-8 ref a is 0"));
    const QString b = QStringLiteral("b"), c = QStringLiteral("c");
    const SmilSlideshow left({}, {part({}, c, QStringLiteral("<a>"), b), part({}, c, {}, b), part({}, {})});
    QCOMPARE(seen(left), QStringLiteral("0-5 ref <a> is 0; 5-10 ref b is 1; 10-15 ref  is 2"));
    const SmilSlide last = left.slide(2);
    QVERIFY(last.cues.first().begin == last.begin && last.cues.first().end == last.end);
}

/** How long parts take is asked of media that state no time, and then of each part that is left. */
void Showing::lengths()
{
    const Parts parts = partsOf(QStringLiteral("audio/amr a, audio/amr b, image/gif c, text/plain d"));
    const QByteArray bytes = smil("<audio src='a'/><audio src='missing'/><audio src='b' dur='1s'/>");
    QList<int> asked;
    const auto length = [&](int part) {
        asked << part;
        return part == 0 ? 8.0 : part == 2 ? qQNaN() : 0.5;
    };
    QCOMPARE(seen(SmilSlideshow(bytes, parts, SmilParser::AsWritten, 2, length)),
             QStringLiteral("0-8 audio a is 0; 8-10 audio missing missing; 10-11 audio b is 1; "
                            "11-13 img c is 2, text d is 3"));
    QCOMPARE(asked, QList<int>({0, 2, 3}));
    QCOMPARE(seen(SmilSlideshow(QByteArray(), parts.mid(0, 2), SmilParser::AsWritten, 2, length)),
             QStringLiteral("0-8 audio a is 0; 8-8.5 audio b is 1"));
    for (const double none : {0.0, -1.0, qInf(), qQNaN()}) {
        QCOMPARE(SmilSlideshow(QByteArray(), parts.mid(2), SmilParser::AsWritten, none).duration(), 5.0);
    }
    const auto half = [](int) { return 0.5; };
    QCOMPARE(SmilSlideshow(QByteArray(), parts.mid(0, 1), SmilParser::AsWritten, 2, half).duration(), 0.5);
}

void Showing::titles()
{
    const auto title = [](const char *head) {
        return SmilSlideshow(QByteArray("<smil>") + head + "<body/></smil>", {}).title();
    };
    QCOMPARE(title("<head title='A'><meta name='title' content='B'/></head>"), QStringLiteral("A"));
    QCOMPARE(title("<head title=''><meta content='C'/><meta name='Title' content='B'/><meta name='title'/></head>"),
             QStringLiteral("B"));
    QVERIFY(title("<head><meta name='title' content=''/></head>").isNull());
}

void Showing::outcomes()
{
    Messages messages(0);
    const SmilSlideshow none(QByteArray(), {});
    QCOMPARE(messages.take(), QString()); // no SMIL is nothing to warn of
    QVERIFY(none.outcome() == SmilParser::NotWellFormed && none.error().isNull() && none == SmilSlideshow());
    QVERIFY(none.errorLine() == 0 && none.errorColumn() == 0);
    const QByteArray head = "<layout><root-layout width='9' height='9' background-color='red'/></layout>";
    const SmilSlideshow whole(smil("<img/>", head), {}, SmilParser::KeepRootSize);
    QVERIFY(whole.outcome() == SmilParser::Complete && whole.error().isNull() && whole.errorLine() == 0);
    QCOMPARE(whole.layout().topLayoutWidth.toString(), QStringLiteral("9px")); // as the options ask
    QCOMPARE(whole.background(), QStringLiteral("red"));
    const SmilSlideshow broken("<smil>\n<head><", {});
    QVERIFY(broken.outcome() == SmilParser::NotWellFormed && !broken.error().isEmpty());
    QCOMPARE(broken.errorLine(), 2);
    QVERIFY(broken.layout() == SmilLayout() && broken.title().isNull());
}

void Showing::texts()
{
    QFETCH(QString, type);
    QFETCH(QString, data);
    QFETCH(QString, text);
    COMPARE_SEEN(QStringLiteral("decodes a part of ") + type, part(type, {}).text(data.toLatin1()), text);
}

void Showing::kinds()
{
    const auto isSmil = [](const char *type) { return part(QLatin1String(type), {}).isSmil(); };
    QVERIFY(isSmil("application/smil") && isSmil("application/smil+xml"));
    QVERIFY(isSmil(" Application/X-SMIL ;charset=utf-8") && !isSmil("application/smilx") && !isSmil(""));
    const auto kind = [](const char *type) { return part(QLatin1String(type), {}).kind(); };
    QCOMPARE(kind(" IMAGE/gif;x"), SmilRef::Img);
    QCOMPARE(kind("Text/Plain; charset=x"), SmilRef::Text);
    QCOMPARE(kind("audio/amr"), SmilRef::Audio);
    QCOMPARE(kind("video/mp4"), SmilRef::Video);
    for (const char *const type : {"text/html", "image", "application/octet-stream", ""}) {
        QVERIFY2(kind(type) == SmilRef::Ref, type);
    }
}

/** A host that keeps two of them sees whether a change matters. */
void Showing::equality()
{
    const QByteArray bytes = smil("<par><img src='a.jpg'/></par>");
    const Parts parts = partsOf(QStringLiteral("image/jpeg a.jpg, text/plain b.txt"));
    const SmilSlideshow show(bytes, parts);
    QVERIFY(show == SmilSlideshow(bytes, parts) && show == SmilSlideshow(show));
    QVERIFY(show == SmilSlideshow("<!-- -->\n" + bytes, parts)); // the same is shown
    QVERIFY(show == SmilSlideshow(smil("<par><img src='a.jpg'/></par><img src='b.txt' end='0s'/>"), parts));
    QVERIFY(SmilSlideshow("<smil><head/><body dur='3s'/></smil>", {})
            == SmilSlideshow("<smil><head/><body/></smil>", {}));
    for (const QByteArray &other :
         {smil("<par><img src='a.jpg' alt='x'/></par>"), smil("<par dur='3s'><img src='a.jpg'/></par>"),
          smil("<par><img src='a.jpg'/></par>", "<layout/><meta/><meta name='title' content='x'/>"),
          smil("<par><img src='a.jpg'/></par>", "<layout><region/></layout>"), bytes + '<'}) {
        QVERIFY2(show != SmilSlideshow(other, parts), other.constData());
    }
    QVERIFY(show != SmilSlideshow(bytes, {parts.at(1), parts.at(0)}));
    QVERIFY(show != SmilSlideshow(bytes, parts.mid(0, 1)));
    QVERIFY(show != SmilSlideshow(bytes, {parts.at(0), parts.at(0)})); // on the slide of what is left
    const SmilSlide slide = show.slide(0);
    QVERIFY(slide == show.slide(0) && !(slide != show.slide(0)));
    SmilSlide later = slide, longer = slide, empty = slide, missing = slide;
    later.begin = longer.end = 1;
    empty.cues.clear();
    missing.parts.clear();
    QVERIFY(later != slide && longer != slide && empty != slide && missing != slide);
    QVERIFY(parts.at(0) == partsOf(QStringLiteral("image/jpeg a.jpg")).first());
    for (const SmilPart &other : {part(QStringLiteral("x"), parts.at(0).name), part(parts.at(0).type, {}),
                                  part(parts.at(0).type, parts.at(0).name, QStringLiteral("x")),
                                  part(parts.at(0).type, parts.at(0).name, {}, QStringLiteral("x"))}) {
        QVERIFY(other != parts.at(0));
    }
}

QTEST_GUILESS_MAIN(Showing)

#include "showing.moc"
