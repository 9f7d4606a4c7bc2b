// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "cases.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtNetwork/QTcpServer>
#include <QtQml/QQmlComponent>
#include <QtQml/QQmlContext>
#include <QtQml/QQmlEngine>
#include <QtQuick/QQuickImageProvider>
#include <QtQuick/QQuickItem>
#include <QtQuick/QQuickItemGrabResult>
#include <QtQuick/QQuickView>

class Quick : public QObject
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
    void places_data() { addCases("places.txt"); }
    void places();
    void messages_data() { addCases("messages.txt"); }
    void messages();
    void playing();
    void turning();
    void scrolling();
    void listed();
    void hugeTexts();
    void sounds();
    void installed();
    void codeOnPages();
};

/** With a part of each kind, and a QtMultimedia that plays nothing. */
static QString folder()
{
    return QFINDTESTDATA("media");
}

/** An app's own pictures, all of which are there. */
struct Memory : public QQuickImageProvider {
    Memory()
        : QQuickImageProvider(Image)
    {
    }
    QImage requestImage(const QString &, QSize *, const QSize &) override { return QImage(9, 9, QImage::Format_RGB32); }
};

/** A slideshow in a window. Before the installed QML modules come those in a folder. */
class Shown : public QQuickView
{
public:
    Shown(const QVariant &smil, const QVariantList &parts, const QString &modules = folder(),
          const QSize &window = QSize(360, 488))
    {
        engine()->addImportPath(QStringLiteral(MODULE_DIR));
        engine()->addImportPath(modules);
        engine()->addImageProvider(QStringLiteral("memory"), new Memory);
        setInitialProperties({{QStringLiteral("smil"), smil}, {QStringLiteral("parts"), parts}});
        setResizeMode(SizeRootObjectToView);
        resize(window);
        setSource(QUrl::fromLocalFile(folder() + QStringLiteral("/Message.qml")));
        item = rootObject();
        if (!item) {
            qFatal("%s", qPrintable(errors().value(0).toString()));
        }
        show();
    }

    QVariant get(const char *name) const { return item->property(name); }
    void set(const char *name, const QVariant &value) { item->setProperty(name, value); }
    void call(const char *name) { QMetaObject::invokeMethod(item, name); }

    /** Of all items that can be seen, those with that property. */
    QList<QQuickItem *> visible(const char *property) const
    {
        QList<QQuickItem *> all = item->childItems(), found;
        for (int i = 0; i < all.size(); ++i) {
            all += all.at(i)->childItems();
            if (all.at(i)->isVisible() && all.at(i)->property(property).isValid()) {
                found += all.at(i);
            }
        }
        return found;
    }

    /** What a reader sees: pictures by their file, texts with their colours, the bar, and what a log says. */
    QString seen() const
    {
        QStringList all;
        for (const QQuickItem *picture : visible("autoTransform")) {
            const QString file = picture->property("source").toUrl().fileName();
            all += picture->property("status").toInt() == 1 || file.isEmpty() ? file : QStringLiteral("no ") + file;
        }
        for (const QQuickItem *text : visible("textFormat")) {
            all += text->property("text").toString();
            const QVariant paper = text->parentItem()->childItems().first()->property("color");
            if (paper.isValid()) {
                all.last() += QStringLiteral(" %1 on %2").arg(text->property("color").toString(), paper.toString());
            }
        }
        const QString error = get("error").toString().section(QLatin1Char(':'), 0, 0); // Qt's words differ
        all += get("title").toString();
        all += error.isEmpty() ? error : QStringLiteral("wrong on line ") + error;
        all.removeAll(QString());
        return all.join(QStringLiteral("; "));
    }

    QQuickItem *item;
};

static void write(const QString &name, const QByteArray &bytes)
{
    QFile file(name);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
}

/** The parts of these names, divided by ", ": files of the folder, or what "name=source" or "name:=text" says. */
static QVariantList parts(const QString &names)
{
    QVariantList parts;
    for (const QString &each : names.split(QStringLiteral(", "), Qt::SkipEmptyParts)) {
        const QStringList sides = each.split(QRegularExpression(QStringLiteral(":?=")));
        const QString member = each.contains(QLatin1String(":=")) ? QStringLiteral("text") : QStringLiteral("source");
        const QString value =
            sides.value(1, QUrl::fromLocalFile(QDir(folder()).filePath(each)).toString(QUrl::FullyEncoded));
        const QString type = each.contains(u'=') ? QStringLiteral("*/*; charset=utf-8") : QString();
        parts.append(
            QVariantMap{{QStringLiteral("name"), sides.first()}, {QStringLiteral("type"), type}, {member, value}});
    }
    return parts;
}

/** That colour, when the area has a pixel that hardly differs from it, and else the colour of its first pixel. */
static QString colourIn(const QImage &area, const QColor &wanted)
{
    for (int i = 0; i < area.width() * area.height(); ++i) {
        const QColor seen = area.pixelColor(i % area.width(), i / area.width());
        if (qAbs(seen.red() - wanted.red()) + qAbs(seen.green() - wanted.green()) + qAbs(seen.blue() - wanted.blue())
            < 24) {
            return wanted.name();
        }
    }
    return area.isNull() ? QString() : area.pixelColor(0, 0).name();
}

/** Areas are in pixels of the message, each of which is two wide in these windows, from the left side on. */
void Quick::places()
{
    QFETCH(QString, width);
    QFETCH(QString, height);
    QFETCH(QString, left);
    QFETCH(QString, slide);
    QFETCH(QString, colours);
    QFile smil(QFINDTESTDATA("../examples/holiday.smil"));
    QVERIFY(smil.open(QIODevice::ReadOnly));
    const QDir parts(QFINDTESTDATA("../examples/holiday"));
    QVariantList all;
    for (const QString &name : parts.entryList(QDir::Files)) {
        all.append(QVariantMap{{QStringLiteral("contentId"), name},
                               {QStringLiteral("source"), QUrl::fromLocalFile(parts.filePath(name))}});
    }
    Shown shown(smil.readAll(), all, folder(), QSize(width.toInt(), height.toInt()));
    shown.set("slide", slide.toInt() - 1);
    QImage picture;
    QStringList seen;
    const QStringList expected = colours.split(QStringLiteral("; "));
    const auto looksRight = [&] { // pictures come later; a grab is null before there is a window, then of another size
        const auto grab = shown.item->grabToImage();
        picture = grab && QSignalSpy(grab.data(), &QQuickItemGrabResult::ready).wait() ? grab->image() : QImage();
        seen.clear();
        for (const QString &place : expected) {
            const QStringList numbers = place.split(QRegularExpression(QStringLiteral("[ ,x]")));
            const auto number = [&](int i) { return 2 * numbers.at(i).toInt(); };
            const QImage part = picture.copy(left.toInt() + number(0), number(1), number(2), number(3));
            seen += place.section(u' ', 0, 1) + u' ' + colourIn(part, QColor(numbers.at(4)));
        }
        return seen == expected;
    };
    (void)QTest::qWaitFor(looksRight);
    const QString name = QStringLiteral("/player-%1x%2-%3.png").arg(width, height, slide);
    picture.save(QCoreApplication::applicationDirPath() + name); // for whoever wants to look
    COMPARE_SEEN(QStringLiteral("looks at slide ") + slide, seen.join(QStringLiteral("; ")), colours);
}

/** A message shows only what is among its parts, and that legibly, whether it is given or is a part itself. */
void Quick::messages()
{
    QFETCH(QString, message);
    QFETCH(QString, parts);
    QFETCH(QString, seen);
    const QVariantMap smil{{QStringLiteral("type"), QStringLiteral("application/smil")},
                           {QStringLiteral("text"), message}};
    for (const bool isPart : {false, true}) {
        const Shown shown(isPart ? QVariant() : message,
                          ::parts(parts) + (isPart ? QVariantList{smil} : QVariantList()));
        (void)QTest::qWaitFor([&] { return shown.seen() == seen; });
        COMPARE_SEEN(QStringLiteral("shows ") + message, shown.seen(), seen);
        const QRectF window(0, 0, 360, 440);
        for (const QQuickItem *item : shown.visible("named")) {
            QVERIFY2(window.united(QRectF(item->position(), item->size())) == window, "all is in the window");
        }
    }
}

/** Where a slideshow is. */
static QString state(const Shown &shown)
{
    return QStringLiteral("slide %1 of %2, %3 of %4 s%5%6")
        .arg(shown.get("slide").toInt())
        .arg(shown.get("count").toInt())
        .arg(shown.get("position").toDouble())
        .arg(shown.get("duration").toDouble())
        .arg(shown.get("playing").toBool() ? QStringLiteral(", playing") : QString(),
             shown.get("atEnd").toBool() ? QStringLiteral(", at the end") : QString());
}

/** Compares the state after a step with what it should be then. */
#define STEP(step, expected) \
    step; \
    COMPARE_SEEN(QStringLiteral("does " #step), state(shown), QStringLiteral(expected))

void Quick::playing()
{
    const QString text = QStringLiteral(
        "<smil><head/><body><text dur='2s'/><par><text end='1s'/><text dur='2s'/></par><text/></body></smil>");
    Shown shown(text, QVariantList());
    STEP(, "slide 0 of 3, 0 of 9 s");
    STEP(shown.set("position", 2.5), "slide 1 of 3, 2.5 of 9 s");
    QCOMPARE(shown.visible("named").size(), 2);
    STEP(shown.set("position", 3.5), "slide 1 of 3, 3.5 of 9 s");
    QCOMPARE(shown.visible("named").size(), 1); // the one that ends last
    STEP(shown.set("position", qQNaN()), "slide 1 of 3, 3.5 of 9 s");
    STEP(shown.set("slide", 3), "slide 1 of 3, 3.5 of 9 s");
    STEP(shown.set("slide", -1), "slide 1 of 3, 3.5 of 9 s");
    STEP(shown.call("next"), "slide 2 of 3, 4 of 9 s");
    STEP(shown.call("next"), "slide 2 of 3, 4 of 9 s");
    STEP(shown.set("position", -1), "slide 0 of 3, 0 of 9 s");
    STEP(shown.set("position", 1), "slide 0 of 3, 1 of 9 s");
    STEP(shown.call("previous"), "slide 0 of 3, 0 of 9 s");
    STEP(shown.set("position", 1.9), "slide 0 of 3, 1.9 of 9 s");
    shown.call("play");
    QTRY_COMPARE(shown.get("slide").toInt(), 1);
    shown.call("pause");
    const QString paused = state(shown);
    QVERIFY2(shown.get("position").toDouble() >= 2 && !shown.get("playing").toBool(), qPrintable(paused));
    shown.set("smil", text); // an equal value changes nothing
    COMPARE_SEEN(QStringLiteral("sets an equal message"), state(shown), paused);
    shown.set("position", 8.9);
    shown.call("play");
    QTRY_VERIFY(shown.get("atEnd").toBool());
    STEP(, "slide 2 of 3, 9 of 9 s, at the end");
    QCOMPARE(shown.visible("named").size(), 1); // the last slide stays
    STEP(shown.call("play"), "slide 0 of 3, 0 of 9 s, playing");
    STEP(shown.set("parts", parts(QStringLiteral("text.txt"))), "slide 0 of 4, 0 of 14 s, playing");
    QSignalSpy turned(shown.item, SIGNAL(slideChanged()));
    STEP(shown.set("smil", QString()); shown.set("parts", QVariantList()), "slide -1 of 0, 0 of 0 s, playing");
    QCOMPARE(turned.count(), 1);
    // Slides that take no time are turned to like others.
    const QString endless = QStringLiteral("<smil><head/><body><text dur='1e300s'/></body></smil>");
    STEP(shown.call("pause"); shown.set("smil", endless), "slide 0 of 1, 0 of 1e+300 s");
    STEP(shown.set("parts", parts(QStringLiteral("text.txt, a.txt:=a")));
         shown.set("slide", 1), "slide 1 of 3, 1e+300 of 1e+300 s, at the end");
    STEP(shown.call("next"), "slide 2 of 3, 1e+300 of 1e+300 s, at the end");
}

void Quick::turning()
{
    const QString smil =
        QStringLiteral("<smil><head/><body><text dur='2s'/><text dur='2s'/><text dur='2s'/></body></smil>");
    Shown shown(smil, QVariantList());
    QVERIFY(QTest::qWaitForWindowExposed(&shown));
    const auto tap = [&](int x, int y) { QTest::mouseClick(&shown, Qt::LeftButton, {}, QPoint(x, y)); };
    STEP(tap(180, 10), "slide 1 of 3, 2 of 6 s"); // on a text
    STEP(tap(100, 300), "slide 0 of 3, 0 of 6 s");
    STEP(QTest::keyClick(&shown, Qt::Key_Right), "slide 1 of 3, 2 of 6 s");
    STEP(QTest::keyClick(&shown, Qt::Key_Left), "slide 0 of 3, 0 of 6 s");
    STEP(QTest::keyClick(&shown, Qt::Key_Space), "slide 0 of 3, 0 of 6 s, playing");
    STEP(QTest::keyClick(&shown, Qt::Key_Space); shown.set("slide", 0), "slide 0 of 3, 0 of 6 s");
    // The buttons, from edge to edge
    STEP(tap(142, 442), "slide 1 of 3, 2 of 6 s");
    STEP(tap(2, 486), "slide 0 of 3, 0 of 6 s");
    STEP(tap(50, 486), "slide 0 of 3, 0 of 6 s, playing");
    for (const QQuickItem *button : shown.visible("label")) {
        QVERIFY2(button->height() >= 44 && !button->property("label").toString().isEmpty(), "a finger can hit it");
    }
    shown.set("controls", false);
    QVERIFY(shown.visible("label").isEmpty());
}

/** A long text is read by dragging it, which turns no page. */
void Quick::scrolling()
{
    Shown shown(QString(), parts(QStringLiteral("text.txt, a.txt:=") + QStringLiteral("a ").repeated(4000)));
    shown.set("slide", 1);
    QVERIFY(QTest::qWaitForWindowExposed(&shown));
    QTest::mousePress(&shown, Qt::LeftButton, {}, QPoint(100, 300));
    for (int y = 300; y > 100; y -= 10) {
        QTest::mouseMove(&shown, QPoint(100, y));
    }
    STEP(QTest::mouseRelease(&shown, Qt::LeftButton, {}, QPoint(100, 100)), "slide 1 of 2, 5 of 10 s");
    QVERIFY2(shown.visible("contentY").first()->property("contentY").toDouble() > 0, "it moves");
}

/** What a chat lists. */
void Quick::listed()
{
    const QString smil =
        QStringLiteral("<smil><head/><body><par><img src='a b.jpg' alt='A'/><audio src='b.amr'/></par></body></smil>");
    const QString text = QString(1023, QLatin1Char('a')) + QStringLiteral("\U0001f600");
    const Shown shown(smil, parts(QStringLiteral("text.txt, huge.bmp, a b.jpg, card.vcf, c.txt:=") + text));
    QString seen = QString::fromUtf8(QJsonDocument(shown.get("slides").toJsonArray()).toJson(QJsonDocument::Compact));
    seen.replace(QUrl::fromLocalFile(folder()).toString(QUrl::FullyEncoded), QStringLiteral("file:"));
    seen.replace(text.left(1023), QStringLiteral("1023 letters"));
    COMPARE_SEEN(
        QStringLiteral("lists it"), seen,
        QStringLiteral(R"([[{"alt":"A","kind":"image","name":"a b.jpg","part":2,"source":"file:/a%20b.jpg","text":""},)"
                       R"({"alt":"","kind":"audio","name":"b.amr","part":-1,"source":"","text":""}],)"
                       R"([{"alt":"","kind":"text","name":"text.txt","part":0,"source":"","text":"<b>bold</b>"},)"
                       R"({"alt":"","kind":"image","name":"huge.bmp","part":1,"source":"","text":""}],)"
                       R"([{"alt":"","kind":"file","name":"card.vcf","part":3,"source":"","text":""},)"
                       R"({"alt":"","kind":"text","name":"c.txt","part":4,"source":"","text":"1023 letters"}]])"));
}

/** As much as Qt can lay out at once is shown, in words that break and of whole characters. */
void Quick::hugeTexts()
{
    QString media, texts;
    for (int i = 0; i < 40; ++i) {
        media += QStringLiteral("<text src='%1.txt'/>").arg(i);
        texts += QStringLiteral("%1.txt:=%2, ").arg(i).arg(QStringLiteral("\U0001f600").repeated(i ? 32768 : 9));
    }
    const Shown shown(QStringLiteral("<smil><head/><body><par>%1</par></body></smil>").arg(media), parts(texts));
    const QString seen = shown.seen().remove(QRegularExpression(QStringLiteral("[^\U0001f600\u200b8]")));
    const QString face = QStringLiteral("\U0001f600"), word = face.repeated(40) + QStringLiteral("\u200b");
    COMPARE_SEEN(QStringLiteral("shows 40 texts of 64 KiB"), seen,
                 QLatin1Char('8') + face.repeated(9) + (word.repeated(13) + face.repeated(8)).repeated(31));
}

/** What is handed to a player, and what it does with it: plays, or is paused, and where in milliseconds. */
static QString heard(const Shown &shown)
{
    QStringList all;
    for (const QQuickItem *item : shown.visible("player")) {
        const auto *const output = item->property("player").value<QObject *>();
        const auto *const media = output ? output->property("media").value<QObject *>() : nullptr;
        if (media) {
            all += media->property("source").toUrl().fileName()
                + (media->property("plays").toBool() ? QStringLiteral(" plays at ") : QStringLiteral(" paused at "))
                + media->property("position").toString();
        }
    }
    return all.join(QStringLiteral("; "));
}

#define HEARD(step, expected) \
    step; \
    COMPARE_SEEN(QStringLiteral("does " #step), heard(shown), QLatin1String(expected))

/** First with a QtMultimedia that cannot be imported. There is a server, which no message ever asks. */
void Quick::sounds()
{
    QTcpServer server;
    QVERIFY(server.listen(QHostAddress::LocalHost));
    const QString url = QStringLiteral("http://127.0.0.1:%1/a").arg(server.serverPort());
    const QTemporaryDir lists;
    const QByteArray list = "#EXTM3U\n" + url.toUtf8();
    write(lists.filePath(QStringLiteral("list.mp3")), list);
    write(lists.filePath(QStringLiteral("list.wma")), "[playlist]\nFile1=" + url.toUtf8());
    write(lists.filePath(QStringLiteral("hidden.mp3")), QByteArray("ID3\3\0\0\0\0\0\0", 10) + list);
    const QString smil = QStringLiteral(
        "<smil><head/><body><par><audio src='sound.amr' begin='1s'/><text end='2s'/><img src='b.jpg' dur='1s'/>"
        "<audio src='list.mp3'/><audio src='list.wma'/><audio src='hidden.mp3'/><audio src='list.wav'/>"
        "<audio src='text.txt'/><audio src='a.mp3'/></par><video src='film.3gp'/></body></smil>");
    const QVariantList given = parts(
        QStringLiteral("sound.amr, list.mp3=file:%2/list.mp3, list.wma=file:%2/list.wma, list.wav, text.txt, film.3gp, "
                       "hidden.mp3=file:%2/hidden.mp3, b.jpg=%1, a.mp3=%1")
            .arg(url, lists.path()));
    {
        static QString printed;
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &text) { printed += text; });
        const Shown shown(smil, given, folder() + QStringLiteral("/broken"));
        qInstallMessageHandler(nullptr);
        COMPARE_SEEN(QStringLiteral("has no player"), printed + heard(shown), QString());
    }
    Shown shown(smil, given);
    const QList<QQuickItem *> drawn = shown.visible("named");
    HEARD(STEP(, "slide 0 of 2, 0 of 7 s"), "sound.amr paused at 0");
    QTRY_COMPARE(shown.get("duration").toDouble(), 9.0);
    HEARD(shown.set("position", 2.5), "sound.amr paused at 1500");
    QVERIFY2(drawn.contains(shown.visible("named").value(0)), "what was drawn stays");
    HEARD(shown.call("play"), "sound.amr plays at 1500");
    HEARD(shown.set("position", 3), "sound.amr plays at 2000");
    HEARD(shown.call("pause"), "sound.amr paused at 2000");
    HEARD(shown.set("position", 0.9), "sound.amr paused at 2000");
    shown.call("play");
    QTRY_VERIFY(heard(shown).contains(QLatin1String("plays"))); // now it is its time
    QVERIFY2(!heard(shown).contains(QLatin1String("2000")), "it plays from its beginning");
    const bool films = QT_VERSION < QT_VERSION_CHECK(6, 0, 0) || QT_VERSION >= QT_VERSION_CHECK(6, 5, 0);
    HEARD(shown.set("slide", 1), films ? "film.3gp plays at 0" : "");
    QVERIFY2(!server.hasPendingConnections(), "nothing is fetched");
}

/** The installed QtMultimedia plays a sound, where there is one and something to hear it with. */
void Quick::installed()
{
    const QStringList paths = QQmlEngine().importPathList();
    const auto isThere = [](const QString &path) {
        return QFile::exists(path + QStringLiteral("/QtMultimedia/qmldir"));
    };
    const bool isHeard = QFile::exists(qEnvironmentVariable("XDG_RUNTIME_DIR") + QStringLiteral("/pulse/native"))
        || !QDir(QStringLiteral("/dev/snd")).entryList({QStringLiteral("pcm*p")}, QDir::System).isEmpty();
    if (!isHeard || std::none_of(paths.begin(), paths.end(), isThere)) {
        QSKIP("There is no QtMultimedia, or nothing to hear it with.");
    }
    const QTemporaryDir sounds;
    const QString sound = sounds.filePath(QStringLiteral("sound.wav"));
    write(sound,
          QByteArray::fromHex("52494646644b000057415645666d74201000000001000100401f0000401f000001000800"
                              "64617461404b0000")
              + QByteArray(0x1f40 * 2, '\x80'));
    Shown shown(QString(), parts(QStringLiteral("sound.wav=file:") + sound), QString());
    QTRY_COMPARE(qRound(shown.get("duration").toDouble()), 2);
    shown.call("play");
    QTRY_VERIFY(shown.get("atEnd").toBool());
}

/** What a reader copies first plays the message of the app. */
void Quick::codeOnPages()
{
    for (const char *const page : {"../README.md", "../docs/qml.md"}) {
        QFile file(QFINDTESTDATA(page));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QString code = QString::fromUtf8(file.readAll()).section(QStringLiteral("```qml\n"), 1, 1);
        QQmlEngine engine;
        engine.addImportPath(QStringLiteral(MODULE_DIR));
        const QVariantMap message{{QStringLiteral("parts"), parts(QStringLiteral("text.txt"))}};
        engine.rootContext()->setContextProperty(QStringLiteral("message"), message);
        QQmlComponent component(&engine);
        component.setData(code.section(QStringLiteral("```"), 0, 0).toUtf8(), QUrl());
        const QScopedPointer<QObject> slideshow(component.create());
        QVERIFY2(slideshow && slideshow->property("playing").toBool() && slideshow->property("count").toInt() == 1,
                 qPrintable(QLatin1String(page) + component.errorString()));
    }
}

QTEST_MAIN(Quick)
#include "quick.moc"
