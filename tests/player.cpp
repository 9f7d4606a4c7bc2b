// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "cases.h"
#include "slideshow.h"

#include <QtQuick/QQuickItem>
#include <QtQuick/QQuickItemGrabResult>
#include <QtQuick/QQuickView>

class Player : public QObject
{
    Q_OBJECT

public:
    static void initMain()
    {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        qputenv("QT_QUICK_BACKEND", "software");
        qputenv("QML_DISABLE_DISK_CACHE", "1");
    }

private Q_SLOTS:
    void slides_data() { addCases("slides.txt"); }
    void slides();
    void untrusted_data() { addCases("untrusted.txt"); }
    void untrusted();
    void turning();
};

/** The example, in a window of that size. */
class Holiday : public QQuickView
{
public:
    explicit Holiday(const QSize &size)
    {
        slideshow.open(QFINDTESTDATA("../examples/holiday.smil"), QFINDTESTDATA("../examples/holiday"));
        setInitialProperties({std::make_pair(QStringLiteral("slideshow"), QVariant::fromValue(&slideshow))});
        setResizeMode(SizeRootObjectToView);
        setSource(QUrl(QStringLiteral("qrc:/Player.qml")));
        resize(size);
        show();
    }
    ~Holiday() override { setSource(QUrl()); }

    Slideshow slideshow;
};

/** The colour of the area that is nearest to the one looked for; that itself when there is hardly a difference. */
static QString nearest(const QColor &wanted, const QImage &area)
{
    QColor found = wanted;
    int least = 1000;
    for (int i = 0; i < area.width() * area.height(); ++i) {
        const QColor seen = area.pixelColor(i % area.width(), i / area.width());
        const int difference =
            qAbs(seen.red() - wanted.red()) + qAbs(seen.green() - wanted.green()) + qAbs(seen.blue() - wanted.blue());
        found = difference < least ? seen : found;
        least = qMin(least, difference);
    }
    return least < 24 ? wanted.name() : found.name();
}

/** Areas are in pixels of the message, each of which is two wide in these windows, from the left side on. */
void Player::slides()
{
    QFETCH(QString, width);
    QFETCH(QString, height);
    QFETCH(QString, left);
    QFETCH(QString, slide);
    QFETCH(QString, colours);
    Holiday player(QSize(width.toInt(), height.toInt()));
    for (int next = 1; next < slide.toInt(); ++next) {
        player.slideshow.next();
    }
    QImage picture;
    QStringList seen;
    const QStringList expected = colours.split(QStringLiteral("; "));
    const auto looksRight = [&] { // pictures come later; a grab is null before there is a window, then of another size
        const auto grab = player.rootObject()->grabToImage();
        picture = grab && QSignalSpy(grab.data(), &QQuickItemGrabResult::ready).wait() ? grab->image() : QImage();
        seen.clear();
        for (const QString &place : expected) {
            const QStringList numbers = place.split(QRegularExpression(QStringLiteral("[ ,x]")));
            const QRect area(numbers.at(0).toInt(), numbers.at(1).toInt(), numbers.at(2).toInt(),
                             numbers.at(3).toInt());
            const QImage part =
                picture.copy(left.toInt() + 2 * area.x(), 2 * area.y(), 2 * area.width(), 2 * area.height());
            seen += place.section(QLatin1Char(' '), 0, 1) + QLatin1Char(' ') + nearest(QColor(numbers.at(4)), part);
        }
        return seen == expected;
    };
    (void)QTest::qWaitFor(looksRight);
    picture.save(QStringLiteral("player-%1x%2-%3.png").arg(width, height, slide)); // for whoever wants to look
    COMPARE_SEEN(QStringLiteral("looks at slide ") + slide, seen.join(QStringLiteral("; ")), colours);
}

/** A message shows only what is in its folder, and that legibly, or says what is wrong. */
void Player::untrusted()
{
    QFETCH(QString, message);
    QFETCH(QString, seen);
    QTemporaryDir folder;
    const auto write = [&folder](const char *name, const QByteArray &bytes) {
        QFile file(folder.filePath(QLatin1String(name)));
        return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
    };
    const char hugeBitmap[] = "424d0000000000000000360000002800000020a1070020a107000100180000000000";
    const QString beach = QFINDTESTDATA("../examples/holiday/beach.jpg");
    const QString secret = folder.filePath(QStringLiteral("secret.jpg"));
    QVERIFY(write("message.smil", message.toUtf8()) && QDir(folder.path()).mkdir(QStringLiteral("parts")));
    QVERIFY(QFile::copy(beach, secret) && QFile::link(secret, folder.filePath(QStringLiteral("parts/link.jpg"))));
    QVERIFY(QFile::copy(beach, folder.filePath(QStringLiteral("parts/a b.jpg"))));
    QVERIFY(write("parts/huge.bmp", QByteArray::fromHex(hugeBitmap) + QByteArray(99, '\0')));
    QVERIFY(write("parts/drawn.png", "<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'/>"));
    QVERIFY(write("parts/text.txt", "<b>bold</b>"));
    Slideshow slideshow;
    slideshow.open(folder.filePath(QStringLiteral("message.smil")), folder.filePath(QStringLiteral("parts")));
    QStringList all(slideshow.property("problem").toString().section(QLatin1Char(','), 0, 0)); // Qt's words differ
    const QVariantList shown = slideshow.shown();
    for (const QVariant &cue : shown) {
        const auto value = [&cue](const char *key) { return cue.toMap().value(QLatin1String(key)).toString(); };
        all +=
            QStringLiteral("%1 %2 [%3] %4 on %5")
                .arg(value("kind"), slideshow.breakable(value("name")),
                     value("source").isEmpty() ? value("text") : QStringLiteral("shown"), value("ink"), value("paper"));
    }
    all +=
        slideshow.property("more").toInt() ? QStringLiteral("+ ") + slideshow.property("more").toString() : QString();
    const QRectF window(0, 0, 360, 480);
    const QVariantList areas = slideshow.screen(window.size()).value(QStringLiteral("areas")).toList();
    for (const QVariant &area : areas) {
        all += window.united(area.toRectF()) == window ? QString() : QStringLiteral("out of the window");
    }
    all.removeAll(QString());
    COMPARE_SEEN(QStringLiteral("opens ") + message, all.join(QStringLiteral("; ")), seen);
}

/** By click, by key, by time; and no further than the last slide. */
void Player::turning()
{
    Holiday player(QSize(360, 480));
    QVERIFY(QTest::qWaitForWindowExposed(&player));
    Slideshow &slideshow = player.slideshow;
    slideshow.setPosition(4.99);
    QCOMPARE(slideshow.slide(), 0);
    slideshow.play();
    QTRY_COMPARE(slideshow.slide(), 1);
    QTest::mouseClick(&player, Qt::LeftButton, {}, QPoint(180, 310)); // on the text
    QCOMPARE(slideshow.slide(), 2);
    QTest::keyClick(&player, Qt::Key_Left);
    QCOMPARE(slideshow.slide(), 1);
    QTest::keyClick(&player, Qt::Key_Right);
    QTest::keyClick(&player, Qt::Key_Right);
    QCOMPARE(slideshow.slide(), 2);
    slideshow.setPosition(1000.0);
    QVERIFY2(slideshow.slide() == 2 && !slideshow.playing(), "the last slide is left standing");

    QTemporaryFile message;
    QVERIFY(message.open());
    message.write("<smil><body><par><img end='2s'/><img dur='3s'/><audio dur='9s'/></par></body></smil>");
    message.close();
    slideshow.open(message.fileName(), QString());
    slideshow.setPosition(9.0);
    const QList<QQuickItem *> cues = player.rootObject()->childItems().mid(0, 3);
    QVERIFY2(!cues[0]->isVisible() && cues[1]->isVisible(), "only what ends last is left standing");
}

QTEST_MAIN(Player)
#include "player.moc"
