// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "cases.h"
#include "outline.h"

#include <smilparser/smilcomposer.h>

class Composing : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void messages_data() { addCases("composing.txt"); }
    void messages();
    void names_data() { addCases("names.txt"); }
    void names();
    void unknownKinds();
    void copies();
};

static SmilComposer composerOf(const QString &settings)
{
    if (settings.isNull()) {
        return SmilComposer();
    }
    const QStringList numbers = settings.split(QLatin1Char(' '));
    return SmilComposer(QSizeF(numbers.at(0).toDouble(), numbers.at(1).toDouble()), numbers.at(2).toDouble());
}

/** Adds each medium, "kind name seconds", where "next" ends a slide. */
static void add(SmilComposer &composer, const QString &media)
{
    static const QStringList kinds = {QStringLiteral("text"), QStringLiteral("img"), QStringLiteral("audio"),
                                      QStringLiteral("video"), QStringLiteral("ref")};
    for (const QString &medium : media.split(QStringLiteral(", "))) {
        const QStringList words = medium.split(QLatin1Char(' '));
        if (words.first() == QLatin1String("next")) {
            composer.nextSlide();
        } else if (kinds.contains(words.first())) {
            const auto type = SmilRef::Type(kinds.indexOf(words.first()));
            composer.add(type, words.value(1), words.value(2).toDouble());
        }
    }
}

/** The message; what is read of it, with both options, is equal to it. */
static SmilDocument readBack(const SmilComposer &composer)
{
    const SmilDocument message = composer.message();
    SmilParser reader(SmilParser(message).toXml());
    SmilParser::Outcome outcome;
    const SmilDocument &again = reader.parse(SmilParser::ClockDurations | SmilParser::KeepRootSize, &outcome);
    if (outcome != SmilParser::Complete || again != message) {
        qWarning() << Outline::of(again) << "is read of" << Outline::of(message);
        return SmilDocument();
    }
    return message;
}

/** The composed message as a host sees it: the size, the regions with their left, top, width and height, the slides. */
static QString seen(const SmilDocument &message)
{
    const SmilLayout &layout = message.header.layout;
    QStringList all = {layout.topLayoutWidth.toString() + QLatin1Char('x') + layout.topLayoutHeight.toString()};
    for (const SmilRegion &region : layout.regions) {
        all << QStringList({region.id, region.left.toString(), region.top.toString(), region.width.toString(),
                            region.height.toString(), region.fit})
                   .join(QLatin1Char(' '));
    }
    const bool sameSize =
        layout.rootLayoutWidth == layout.topLayoutWidth && layout.rootLayoutHeight == layout.topLayoutHeight;
    SmilDocument bare;
    bare.body = message.body;
    return all.join(QStringLiteral(", ")) + (sameSize ? QStringLiteral(": ") : QStringLiteral(" and another: "))
        + Outline::of(bare);
}

void Composing::messages()
{
    QFETCH(QString, settings);
    QFETCH(QString, media);
    QFETCH(QString, sees);
    SmilComposer composer = composerOf(settings);
    add(composer, media);
    COMPARE_SEEN(QStringLiteral("composes %1 for %2").arg(media, settings), seen(readBack(composer)), sees);
}

/** The names are divided by commas; "sees" is the last one's src. What holds of all is checked of each. */
void Composing::names()
{
    QFETCH(QString, names);
    QFETCH(QString, sees);
    static const QRegularExpression plain(QStringLiteral("^[A-Za-z0-9_][A-Za-z0-9._-]{0,26}$"));
    SmilComposer composer;
    QSet<QString> all;
    QString src;
    for (const QString &name : names.split(QLatin1Char(','))) {
        src = composer.add(SmilRef::Img, name);
        QVERIFY2(plain.match(src).hasMatch(), qPrintable(src));
        QVERIFY2(!all.contains(src.toLower()), qPrintable(src));
        all.insert(src.toLower());
    }
    COMPARE_SEEN(QStringLiteral("adds ") + names, src, sees);
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
