// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "cases.h"
#include "modeldump.h"

#include <smilparser/smilcomposer.h>

class Composing : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void slides_data() { addCases("slides.txt"); }
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
    const SmilDocument &again = reader.parse(SmilParser::ClockDurations | SmilParser::KeepRootSize);
    if (again != message) {
        qWarning() << ModelDump::of(again) << "is read of" << ModelDump::of(message);
    }
    return again == message ? message : SmilDocument();
}

void Composing::slides()
{
    QFETCH(QString, media);
    QFETCH(QString, regions);
    QFETCH(QString, slides);
    static const QByteArrayList kinds = {"text", "img", "audio", "video", "ref"};
    SmilComposer composer;
    for (const QString &medium : media.split(QStringLiteral(", "), Qt::SkipEmptyParts)) {
        const QStringList words = medium.split(u' ');
        if (medium == QLatin1String("next")) {
            composer.nextSlide();
        } else {
            composer.add(SmilRef::Type(kinds.indexOf(words.at(0).toLatin1())), words.at(1), words.value(2).toDouble());
        }
    }
    const QString message = QStringLiteral("<head><layout><root-layout width='320px' height='480px'/>"
                                           "<topLayout width='320px' height='480px'/>%1</layout></head>%2");
    COMPARE_SEEN(QStringLiteral("composes ") + media, ModelDump::of(readBack(composer)), message.arg(regions, slides));
}

/** Those of slides without a known duration, and of one picture that has a duration. */
void Composing::durations()
{
    const auto duration = [](double slide, double picture) {
        SmilComposer composer(QSizeF(10, 10), slide);
        composer.add(SmilRef::Img, QStringLiteral("a"), picture);
        return readBack(composer).body.root.children.value(0).dur.toString();
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
    const auto size = [](double width, double height) {
        const SmilLayout layout = readBack(SmilComposer(QSizeF(width, height))).header.layout;
        return layout.topLayoutWidth.toString() + u' ' + layout.topLayoutHeight.toString();
    };
    QCOMPARE(size(1e9, 0.4), QStringLiteral("1e+09px "));
    QCOMPARE(size(0.99, 1), QStringLiteral(" 1px"));
    QCOMPARE(size(240.5, 1234567.4), QStringLiteral("241px 1.23457e+06px"));
    QCOMPARE(size(qQNaN(), -1), QStringLiteral(" "));
    QCOMPARE(size(qInf(), -qInf()), QStringLiteral(" "));
}

void Composing::names_data()
{
    addCases("names.txt");
    const QString a = QString(40, u'a');
    const QString often = QStringLiteral("a.jpg;").repeated(99999);
    const QString cut = a.left(21) + QStringLiteral("b.jpg;");
    QTest::newRow("often") << often + QStringLiteral("a.jpg") << "a-100000.jpg";
    QTest::newRow("two digits, too long") << (a + u';').repeated(10) + a << a.left(24) + QStringLiteral("-11");
    QTest::newRow("short number of a name that others have cut")
        << cut.repeated(11) + a.left(20) + QStringLiteral(".jpg;") + a.left(20) + QStringLiteral(".jpg")
        << a.left(20) + QStringLiteral("-2.jpg");
}

/** What holds of all is checked of each. */
void Composing::names()
{
    QFETCH(QString, names);
    QFETCH(QString, src);
    static const QRegularExpression plain(QStringLiteral("^[A-Za-z0-9_][A-Za-z0-9._-]{0,26}$"));
    SmilComposer composer;
    QSet<QString> all;
    QString last;
    for (const QString &name : names.split(u';')) {
        last = composer.add(SmilRef::Img, name);
        QVERIFY2(plain.match(last).hasMatch(), qPrintable(last));
        QVERIFY2(!all.contains(last.toLower()), qPrintable(last));
        all.insert(last.toLower());
    }
    QCOMPARE(last, src);
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
