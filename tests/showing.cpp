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
    void titles_data();
    void titles();
    void outcomes();
    void texts_data();
    void texts();
    void kinds();
    void equality();
    void manyParts();
};

using Parts = QList<SmilPart>;

static SmilPart part(const char *type, const char *name, const char *contentId = nullptr,
                     const char *location = nullptr)
{
    SmilPart part;
    part.type = QString::fromLatin1(type);
    part.name = QString::fromLatin1(name);
    part.contentId = QString::fromLatin1(contentId);
    part.location = QString::fromLatin1(location);
    return part;
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
    Parts all;
    for (const QString &typeAndName : parts.split(QStringLiteral(", "), Qt::SkipEmptyParts)) {
        all << part(qPrintable(typeAndName.section(u' ', 0, 0)), qPrintable(typeAndName.section(u' ', 1)));
    }
    const SmilSlideshow show(smil.toUtf8(), all);
    COMPARE_SEEN(QStringLiteral("shows ") + smil, seen(show), shows);
    QCOMPARE(show.duration(), show.count() ? show.slide(show.count() - 1).end : 0.0);
    QVERIFY(show.slide(-1) == SmilSlide() && show.slide(show.count()) == SmilSlide());
}

/** A Content-ID comes first, then a Content-Location, then a name. */
void Showing::names()
{
    const QByteArray one = smil("<par dur='3s'><img src='a.jpg'/></par>");
    const SmilPart location = part("", "", nullptr, "a.jpg");
    QCOMPARE(seen(SmilSlideshow(one, {part("", "a.jpg"), location, part("", "", "a.jpg")})),
             QStringLiteral("0-3 img a.jpg is 2; 3-8 ref a.jpg is 0; 8-13 ref a.jpg is 1"));
    QCOMPARE(seen(SmilSlideshow(one, {part("", "a.jpg"), location})),
             QStringLiteral("0-3 img a.jpg is 1; 3-8 ref a.jpg is 0"));
    const Parts left = {part("", "c", "<a>", "b"), part("", "c", nullptr, "b"), part("", "")};
    QCOMPARE(seen(SmilSlideshow(QByteArray(), left)),
             QStringLiteral("0-5 ref <a> is 0; 5-10 ref b is 1; 10-15 ref  is 2"));
}

/** How long parts take is asked of media that state no time, and then of each part that is left. */
void Showing::lengths()
{
    const Parts parts = {part("audio/amr", "a"), part("audio/amr", "b"), part("image/gif", "c"),
                         part("text/plain", "d")};
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

void Showing::titles_data()
{
    QTest::addColumn<QByteArray>("head");
    QTest::addColumn<QString>("title");
    QTest::newRow("of the head") << QByteArray("<head title='A'><meta name='title' content='B'/></head>") << "A";
    QTest::newRow("of the meta") << QByteArray("<head title=''><meta content='C'/><meta name='Title' content='B'/>"
                                               "<meta name='title' content='C'/></head>")
                                 << "B";
    QTest::newRow("empty") << QByteArray("<head><meta name='title' content=''/></head>") << QString();
}

void Showing::titles()
{
    QFETCH(QByteArray, head);
    QFETCH(QString, title);
    const SmilSlideshow show("<smil>" + head + "<body/></smil>", {});
    QCOMPARE(show.title(), title);
    QCOMPARE(show.title().isNull(), title.isNull());
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

void Showing::texts_data()
{
    const QString euro = QString(QChar(0x20ac));
    const QString bad = QString(QChar(QChar::ReplacementCharacter));
    QTest::addColumn<QString>("type");
    QTest::addColumn<QByteArray>("data");
    QTest::addColumn<QString>("text");
    const auto row = [](const char *name, const char *type, const QByteArray &data, const QString &text) {
        QTest::newRow(name) << QString::fromLatin1(type) << data << text;
    };
    row("UTF-8", "", "\xe2\x82\xac", euro);
    row("not UTF-8", "", "\xe2\x82", QString::fromLatin1("\xe2\x82"));
    row("a mark decides", "text/plain; charset=iso-8859-1", "\xef\xbb\xbf\xe2\x82\xac", euro);
    row("a mark of UTF-16", "text/plain; charset=utf-8", "\xff\xfe\xac\x20", euro);
    row("a mark, big-endian", "", QByteArray("\xfe\xff\x20\xac\0a", 6), euro + u'a');
    row("as stated", "text/plain;charset=windows-1252", "\x80", euro);
    row("after a name with a semicolon", "text/plain; name=\"ab;charset=utf-16\"; charset=windows-1252", "\x80", euro);
    row("in quotation marks", "text/plain;name=\"; charset=utf-16\" ; Charset = \"Windows-1252\"", "\x80", euro);
    row("as stated, whole", "text/plain; charset=utf-16le", QByteArray::fromHex("610000d86200"), u'a' + bad + u'b');
    row("UTF-16", "text/plain; charset=UTF-16", "\x20\xac", euro);
    row("UCS-2", "text/plain; charset=iso-10646-ucs-2", "\x20\xac", euro);
    row("no such charset", "text/plain; charset=x-none", "\xe2\x82\xac", euro);
    for (const char *const vague : {"us-ascii", "ASCII", "ansi_x3.4-1968", "utf-8", ""}) {
        QTest::addRow("vague: %s", vague) << QLatin1String("text/plain; charset=") + QLatin1String(vague)
                                          << QByteArray("\xe4") << QString(QChar(0xe4));
    }
    row("with a zero", "", QByteArray("a\0b", 3), QString::fromLatin1("a\0b", 3));
    row("Latin-1 with a zero", "", QByteArray("\xe4\0b", 3), QString::fromLatin1("\xe4\0b", 3));
}

void Showing::texts()
{
    QFETCH(QString, type);
    QFETCH(QByteArray, data);
    QFETCH(QString, text);
    SmilPart part;
    part.type = type;
    QCOMPARE(part.text(data), text);
}

void Showing::kinds()
{
    for (const char *const type : {"application/smil", " Application/X-SMIL ;charset=utf-8", "application/smil+xml"}) {
        QVERIFY2(part(type, "").isSmil(), type);
    }
    QVERIFY(!part("application/smilx", "").isSmil() && !SmilPart().isSmil());
    QCOMPARE(part(" IMAGE/gif;x", "").kind(), SmilRef::Img);
    QCOMPARE(part("Text/Plain; charset=x", "").kind(), SmilRef::Text);
    QCOMPARE(part("audio/amr", "").kind(), SmilRef::Audio);
    QCOMPARE(part("video/mp4", "").kind(), SmilRef::Video);
    for (const char *const type : {"text/html", "image", "application/octet-stream", ""}) {
        QVERIFY2(part(type, "").kind() == SmilRef::Ref, type);
    }
}

/** A host that keeps two of them sees whether a change matters. */
void Showing::equality()
{
    const QByteArray bytes = smil("<par><img src='a.jpg'/></par>");
    const Parts parts = {part("image/jpeg", "a.jpg"), part("text/plain", "b.txt")};
    const SmilSlideshow show(bytes, parts);
    QVERIFY(show == SmilSlideshow(bytes, parts) && show == SmilSlideshow(show));
    QVERIFY(show == SmilSlideshow("<!-- -->\n" + bytes, parts)); // the same is shown
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
    for (const auto &change :
         {+[](SmilSlide &other) { other.begin = 1; }, +[](SmilSlide &other) { other.end = 1; },
          +[](SmilSlide &other) { other.cues.clear(); }, +[](SmilSlide &other) { other.parts.clear(); }}) {
        SmilSlide other = slide;
        change(other);
        QVERIFY(other != slide);
    }
    QVERIFY(parts.at(0) == part("image/jpeg", "a.jpg"));
    for (QString SmilPart::*const field :
         {&SmilPart::contentId, &SmilPart::location, &SmilPart::name, &SmilPart::type}) {
        SmilPart other = parts.at(0);
        other.*field += u'x';
        QVERIFY(other != parts.at(0));
    }
}

void Showing::manyParts()
{
    Parts parts;
    for (int i = 0; i < 1000; ++i) {
        parts << part("image/jpeg", "a.jpg");
    }
    const SmilSlideshow show(smil("<par dur='1s'><img src='a.jpg'/></par>"), parts);
    QCOMPARE(show.count(), 1000);
    const SmilSlide last = show.slide(999);
    QCOMPARE(last.parts, QList<int>({999}));
    QVERIFY(last.cues.first().begin == last.begin && last.cues.first().end == last.end);
}

QTEST_GUILESS_MAIN(Showing)

#include "showing.moc"
