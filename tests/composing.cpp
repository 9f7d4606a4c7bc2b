// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "cases.h"
#include "modeldump.h"

#include <smilparser/smilcomposer.h>

struct Medium {
    SmilRef::Type type;
    const char *name; ///< null where a slide ends
    double seconds;
};
using Media = QList<Medium>;
Q_DECLARE_METATYPE(Media)

class Composing : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void slides_data();
    void slides();
    void durations();
    void sizes();
    void names_data();
    void names();
    void unknownKinds();
    void copies();
};

/** The message; what is read of it, with both options, is equal to it. */
static SmilDocument readBack(const SmilComposer &composer)
{
    const SmilDocument message = composer.message();
    SmilParser reader(SmilParser(message).toXml());
    SmilParser::Outcome outcome;
    const SmilDocument &again = reader.parse(SmilParser::ClockDurations | SmilParser::KeepRootSize, &outcome);
    if (outcome != SmilParser::Complete || again != message) {
        qWarning() << ModelDump::of(again) << "is read of" << ModelDump::of(message);
        return SmilDocument();
    }
    return message;
}

void Composing::slides_data()
{
    const Medium next = {SmilRef::Ref, nullptr, 0};
    const auto text = [](const char *name) { return Medium{SmilRef::Text, name, 0}; };
    const auto img = [](const char *name) { return Medium{SmilRef::Img, name, 0}; };
    const auto audio = [](const char *name, double seconds = 0) { return Medium{SmilRef::Audio, name, seconds}; };
    const auto video = [](const char *name) { return Medium{SmilRef::Video, name, 0}; };
    const auto ref = [](const char *name) { return Medium{SmilRef::Ref, name, 0}; };
    const QString picture = QStringLiteral("Image 0% 0% 100% 100% meet");
    const QString words = QStringLiteral("Text 0% 0% 100% 100% scroll");
    const QString both = QStringLiteral("Image 0% 0% 100% 70% meet, Text 0% 70% 100% 30% scroll");
    QTest::addColumn<Media>("media");
    QTest::addColumn<QString>("regions"); // with their left, top, width and height
    QTest::addColumn<QString>("slides");
    const auto row = [](const char *name, const Media &media, const QString &regions, const char *slides) {
        QTest::newRow(name) << media << regions << QString::fromLatin1(slides);
    };

    row("nothing", {}, QString(), "");
    row("slides that nobody fills", {next, next}, QString(), "");
    row("picture", {img("a")}, picture, "5s: img a in Image");
    row("text", {text("a")}, words, "5s: text a in Text");
    row("sound", {audio("a")}, QString(), "5s: audio a");
    row("full slide, another order", {audio("a"), text("b"), ref("c")}, both,
        "5s: audio a, text b in Text, ref c in Image");
    row("texts on other slides", {img("a"), next, text("b")}, both, "5s: img a in Image; 5s: text b in Text");
    row("two of a kind", {img("a"), text("b"), img("c"), audio("d"), audio("e"), text("f"), text("g")}, both,
        "5s: img a in Image, text b in Text; 5s: img c in Image, audio d; 5s: audio e, text f in Text; "
        "5s: text g in Text");
    row("a film has a sound", {audio("a"), video("b"), audio("c"), ref("d"), video("e"), img("f")}, picture,
        "5s: audio a; 5s: video b in Image; 5s: audio c, ref d in Image; 5s: video e in Image; 5s: img f in Image");
    row("next before, between and after", {next, audio("a"), next, next, text("b"), next}, words,
        "5s: audio a; 5s: text b in Text");
    row("sounds of known length", {img("a"), audio("b", 1.5), next, audio("c", 9), img("d"), next, audio("e", 1.5)},
        picture, "5s: img a in Image, audio b; 9s: audio c, img d in Image; 1.5s: audio e");
}

void Composing::slides()
{
    QFETCH(Media, media);
    QFETCH(QString, regions);
    QFETCH(QString, slides);
    static const char *const kinds[] = {"text", "img", "audio", "video", "ref"};
    SmilComposer composer;
    for (const Medium &medium : media) {
        if (medium.name) {
            composer.add(medium.type, QString::fromLatin1(medium.name), medium.seconds);
        } else {
            composer.nextSlide();
        }
    }
    const SmilDocument message = readBack(composer);
    QStringList seenRegions;
    for (const SmilRegion &region : message.header.layout.regions) {
        seenRegions << QStringList({region.id, region.left.toString(), region.top.toString(), region.width.toString(),
                                    region.height.toString(), region.fit})
                           .join(u' ');
    }
    QStringList seenSlides;
    for (const SmilNode &slide : message.body.root.children) {
        QStringList refs;
        for (const SmilRef &ref : slide.refs) {
            refs << QLatin1String(kinds[ref.type]) + u' ' + ref.src
                    + (ref.region.isNull() ? QString() : QStringLiteral(" in ") + ref.region);
        }
        seenSlides << slide.dur.toString() + QStringLiteral(": ") + refs.join(QStringLiteral(", "));
    }
    QCOMPARE(seenRegions.join(QStringLiteral(", ")), regions);
    QCOMPARE(seenSlides.join(QStringLiteral("; ")), slides);
}

/** Those of slides without a known duration, and of one picture that has a duration. */
void Composing::durations()
{
    const auto duration = [](double slide, double picture) {
        SmilComposer composer(QSizeF(10, 10), slide);
        composer.add(SmilRef::Img, QStringLiteral("a"), picture);
        return readBack(composer).body.root.children.first().dur.toString();
    };
    for (const double none : {0.0, -3.0, qInf(), qQNaN()}) {
        QCOMPARE(duration(none, none), QStringLiteral("5s"));
        QCOMPARE(duration(4, none), QStringLiteral("4s"));
    }
    QCOMPARE(duration(1e6, 0), QStringLiteral("999999s"));
    QCOMPARE(duration(1.23456789, 0), QStringLiteral("1.23457s"));
    QCOMPARE(duration(4, 33.33333333), QStringLiteral("33.3333s"));
    QCOMPARE(duration(4, 1e300), QStringLiteral("999999s"));
    QCOMPARE(duration(4, 5e-324), QStringLiteral("0.001s"));
}

void Composing::sizes()
{
    const auto size = [](const SmilComposer &composer) {
        const SmilLayout layout = readBack(composer).header.layout;
        const QString root = layout.rootLayoutWidth.toString() + u' ' + layout.rootLayoutHeight.toString();
        const QString top = layout.topLayoutWidth.toString() + u' ' + layout.topLayoutHeight.toString();
        return root == top ? top : QStringLiteral("two sizes: ") + root + u' ' + top;
    };
    QCOMPARE(size(SmilComposer()), QStringLiteral("320px 480px"));
    QCOMPARE(size(SmilComposer(QSizeF(1e9, 0.4))), QStringLiteral("1e+09px "));
    QCOMPARE(size(SmilComposer(QSizeF(0.99, 1))), QStringLiteral(" 1px"));
    QCOMPARE(size(SmilComposer(QSizeF(240.5, 1234567.4))), QStringLiteral("241px 1.23457e+06px"));
    QCOMPARE(size(SmilComposer(QSizeF(qQNaN(), -1))), QStringLiteral(" "));
    QCOMPARE(size(SmilComposer(QSizeF(qInf(), -qInf()))), QStringLiteral(" "));
}

void Composing::names_data()
{
    QTest::addColumn<QByteArrayList>("names");
    QTest::addColumn<QByteArray>("src"); // of the last
    const auto row = [](const char *name, const QByteArrayList &names, const QByteArray &src) {
        QTest::newRow(name) << names << src;
    };
    const auto many = [](int number, const QByteArray &name) {
        QByteArrayList names;
        for (int i = 0; i < number; ++i) {
            names << name;
        }
        return names;
    };
    const auto a = [](int number) { return QByteArray(number, 'a'); };

    row("fine", {"AZ_09-az.b.jpg"}, "AZ_09-az.b.jpg");
    row("as long as it may be", {a(22) + ".jpeg"}, a(22) + ".jpeg");
    row("path", {"/media/me/My pictures/a&b.jpg"}, "a_b.jpg");
    row("path of another system", {"C:\\pictures/x\\a.jpg"}, "a.jpg");
    row("each code unit", {"\u00e9\U0001f30a\u0661.jpg"}, "____.jpg");
    row("in front", {".-..hidden-.txt"}, "hidden-.txt");
    row("blank in front", {" -a.txt"}, "_-a.txt");
    row("folder", {"pictures/"}, "part");
    row("nothing left", {".-."}, "part");
    row("empty", {"", ""}, "part-2");
    row("again", {"a.jpg", "a.jpg", "a.jpg"}, "a-3.jpg");
    row("in another case", {"a.jpg", "A.JPG"}, "A-2.JPG");
    row("number that is there", {"a-2.jpg", "a.jpg", "a.jpg"}, "a-3.jpg");
    row("number that comes later", {"a.jpg", "a.jpg", "a-2.jpg"}, "a-2-2.jpg");
    row("made the same", {"a b", "a&b"}, "a_b-2");
    row("numbered for each extension", {"a.jpg", "a.jpg", "a.jpg", "a.txt", "a.txt"}, "a-2.txt");
    row("two extensions", {"a.tar.z", "a.tar.z"}, "a.tar-2.z");
    row("extension of eight", {"a.12345678", "a.12345678"}, "a-2.12345678");
    row("extension of nine", {"a.123456789", "a.123456789"}, "a.123456789-2");
    row("no extension after the dot", {"a.", "a."}, "a.-2");
    row("extension alone", {".jpg", ".jpg"}, "jpg-2");
    row("too long", {a(40) + ".jpeg"}, a(22) + ".jpeg");
    row("too long without an extension", {a(40)}, a(27));
    row("too long, again", {a(40) + ".jpeg", a(41) + ".jpeg"}, a(20) + "-2.jpeg");
    row("too long, two digits", many(11, a(40) + ".jpeg"), a(19) + "-11.jpeg");
    row("long ones of different ends", {a(22) + "b.jpg", a(22) + "c.jpg", a(22) + "b.jpg", a(22) + "c.jpg"},
        a(21) + "-3.jpg");
    row("short number of a name that others have cut", many(11, a(21) + "b.jpg") + many(2, a(20) + ".jpg"),
        a(20) + "-2.jpg");
    row("often", many(100000, "a.jpg"), "a-100000.jpg");
    row("often, cut", many(10000, a(40) + ".jpg"), a(17) + "-10000.jpg");
}

/** What holds of all is checked of each. */
void Composing::names()
{
    QFETCH(QByteArrayList, names);
    QFETCH(QByteArray, src);
    static const QRegularExpression plain(QStringLiteral("^[A-Za-z0-9_][A-Za-z0-9._-]{0,26}$"));
    SmilComposer composer;
    QSet<QString> all;
    QString last;
    for (const QByteArray &name : std::as_const(names)) {
        last = composer.add(SmilRef::Img, QString::fromUtf8(name));
        QVERIFY2(plain.match(last).hasMatch(), qPrintable(last));
        QVERIFY2(!all.contains(last.toLower()), qPrintable(last));
        all.insert(last.toLower());
    }
    QCOMPARE(last, QString::fromLatin1(src));
    QVERIFY(readBack(composer) == composer.message());
}

/** Nothing is added, not even a slide. */
void Composing::unknownKinds()
{
    SmilComposer composer;
    for (const int kind : {-1, 5}) {
        QVERIFY(composer.add(SmilRef::Type(kind), QStringLiteral("a.jpg")).isNull());
    }
    QVERIFY(composer.message() == SmilComposer().message());
}

/** Two copies go on by themselves, and a message stays as it was. */
void Composing::copies()
{
    SmilComposer one;
    one.add(SmilRef::Img, QStringLiteral("a.jpg"));
    SmilComposer other = one;
    const SmilDocument before = one.message();
    QCOMPARE(one.add(SmilRef::Text, QStringLiteral("a.jpg")), QStringLiteral("a-2.jpg"));
    QCOMPARE(other.add(SmilRef::Audio, QStringLiteral("a.jpg")), QStringLiteral("a-2.jpg"));
    QCOMPARE(one.name(QStringLiteral("A.jpg")), QStringLiteral("A-3.jpg")); // of a part that is on no slide
    QCOMPARE(one.message().body.root.children.first().refs.size(), 2);
    QCOMPARE(before.body.root.children.first().refs.size(), 1);
    QCOMPARE(int(other.message().body.root.children.first().refs.last().type), int(SmilRef::Audio));
}

QTEST_GUILESS_MAIN(Composing)

#include "composing.moc"
