// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "input/content.h"
#include "input/message.h"
#include "mmsbytes.h"

#include <QtTest/QtTest>

#include <sys/stat.h>
#include <unistd.h>

static const QByteArray png = QByteArray::fromHex("89504e470d0a1a0a0000000d49484452");

class PartsOfMessages : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void smilOfMessage_data();
    void smilOfMessage();
    void srcOfFolder_data();
    void srcOfFolder();
    void onlyFilesOfTheFolder();
    void types_data();
    void types();
};

void PartsOfMessages::smilOfMessage_data()
{
    QTest::addColumn<QByteArray>("start");
    QTest::addColumn<QByteArray>("smil");
    QTest::newRow("the first") << QByteArray() << QByteArray("<smil>1</smil>");
    QTest::newRow("the one to start with") << QByteArray("<two>") << QByteArray("<smil>2</smil>");
    QTest::newRow("the start is a picture") << QByteArray("<png>") << QByteArray("<smil>1</smil>");
    QTest::newRow("the start is not there") << QByteArray("<three>") << QByteArray("<smil>1</smil>");
}

void PartsOfMessages::smilOfMessage()
{
    QFETCH(QByteArray, start);
    const QByteArray type = start.isEmpty() ? QByteArray("\xB3") : sized("\xB3\x8A" + text(start));
    const QByteArray parts = part("\xA0\xC0" + text("<png>"), png)
        + part(text("application/smil") + '\xC0' + text("<one>"), "<smil>1</smil>")
        + part(text("application/smil") + '\xC0' + text("<two>"), "<smil>2</smil>");
    QTEST(readBytes(message(type, 3, parts), QStringLiteral("-"), QString()).smil, "smil");
}

/** Writes a file, of that size if one is given. */
static bool write(const QString &name, qint64 size = 0)
{
    QFile file(name);
    return file.open(QIODevice::WriteOnly) && file.write(png) == png.size() && (size == 0 || file.resize(size));
}

void PartsOfMessages::srcOfFolder_data()
{
    QTest::addColumn<QString>("part");
    for (const auto &[src, part] : {std::pair("photo.png", "photo.png"),
                                    {"cid:a", "cid:a"},
                                    {"cid:<a>", "a"},
                                    {"100%25", "100%25"},
                                    {"%50hoto.png", "Photo.png"},
                                    {"PHOTO.%70ng", "Photo.png"},
                                    {".hidden", ".hidden"}}) {
        QTest::newRow(src) << QString::fromLatin1(part);
    }
    for (const char *const src : {"../secret", "%2e%2e/secret", "inner", "inner/photo.png", "link", "inwards", "pipe",
                                  ".", "..", "./photo.png", "photo.png/", "photo", "a%00b"}) {
        QTest::newRow(src) << QString();
    }
}

void PartsOfMessages::srcOfFolder()
{
    const QTemporaryDir outer;
    const QDir folder(outer.path() + QStringLiteral("/parts"));
    QVERIFY(folder.mkpath(QStringLiteral("inner")));
    for (const char *const name :
         {"photo.png", "Photo.png", "cid:a", "a", "100%25", ".hidden", "../secret", "inner/photo.png"}) {
        QVERIFY(write(folder.filePath(QString::fromLatin1(name))));
    }
    const auto path = [&folder](const char *name) { return QFile::encodeName(folder.path()) + '/' + name; };
    QCOMPARE(symlink("../secret", path("link").constData()), 0);
    QCOMPARE(symlink("a", path("inwards").constData()), 0);
    QCOMPARE(mkfifo(path("pipe").constData(), 0600), 0);

    QString problem;
    MessageParts parts(Folder(folder.path(), problem), folder.filePath(QStringLiteral("a")));
    QCOMPARE(problem, QString());
    QCOMPARE(parts.size(), 6);
    const auto meaning = [&parts](const QString &src) {
        const int found = parts.find(src);
        return found < 0 ? QString() : parts.at(found).name;
    };
    QVERIFY(parts.headers().at(parts.find(QStringLiteral("a"))).isSmil());
    QTEST(meaning(QString::fromLatin1(QTest::currentDataTag())), "part");
    QCOMPARE(meaning(folder.filePath(QStringLiteral("photo.png"))), QString());
    QCOMPARE(parts.read(0).data, png);
}

/** Also not if it took the place of a file after the folder was listed. */
void PartsOfMessages::onlyFilesOfTheFolder()
{
    const QTemporaryDir folder;
    const qint64 limit = 8 * 1024 * 1024;
    const QString file = folder.filePath(QStringLiteral("1"));
    const QString pipe = folder.filePath(QStringLiteral("2"));
    QVERIFY(write(file) && write(pipe) && write(folder.filePath(QStringLiteral("3")), limit + 1));
    for (int i = 0; i < 9; ++i) {
        QVERIFY(write(folder.filePath(QStringLiteral("4%1").arg(i)), limit));
    }
    QString problem;
    MessageParts parts(Folder(folder.path(), problem), QString());
    QVERIFY(QFile::remove(file) && QFile::link(QStringLiteral("3"), file));
    QVERIFY(QFile::remove(pipe) && mkfifo(QFile::encodeName(pipe).constData(), 0600) == 0);
    QCOMPARE(parts.read(0).problem, QStringLiteral("cannot be read"));
    QCOMPARE(parts.read(1).problem, QStringLiteral("cannot be read"));
    QCOMPARE(parts.read(2).problem, QStringLiteral("is larger than 8 MiB"));
    for (int i = 3; i < 11; ++i) {
        QCOMPARE(parts.read(i).problem, QString());
        QCOMPARE(qint64(parts.read(i).data.size()), limit);
    }
    QCOMPARE(parts.read(11).problem, QStringLiteral("would be more than 64 MiB with the files before it"));
    QCOMPARE(Folder(QStringLiteral("/dev"), problem).files().indexOf(QStringLiteral("zero")), -1);
    QCOMPARE(problem, QString());
    QCOMPARE(Folder(file, problem).files().size(), 0);
    QCOMPARE(problem, QStringLiteral("is not a folder that can be read"));
}

void PartsOfMessages::types_data()
{
    QTest::addColumn<QByteArray>("data");
    QTest::addColumn<QString>("type");
    const auto row = [](const char *type, const QByteArray &data, const char *name = "") {
        QTest::newRow(*name ? name : type) << data << QString::fromLatin1(type);
    };
    row("image/png", png);
    row("image/webp", QByteArray("RIFF\x1A\x00\x00\x00WEBPVP8L", 16));
    row("image/svg+xml", "<svg xmlns='http://www.w3.org/2000/svg'/>");
    row("text/plain", "Hello");
    row("text/plain", QByteArray(), "empty");
    row("text/plain", "Gru\xDF", "Latin-1");
    row("text/plain", QByteArray("\xFF\xFEH\x00i\x00", 6), "UTF-16");
    row("text/plain", "ID3 is what I need", "text that begins as something else");
    row("application/smil+xml", "<smil><head/><body/></smil>");
    row("audio/AMR", "#!AMR\n\x3C\x91");
    row("video/3gpp", QByteArray::fromHex("000000186674797033677034"));
    row("application/octet-stream", QByteArray("\x00\x01\x02\x03", 4));
}

void PartsOfMessages::types()
{
    QFETCH(QByteArray, data);
    QTEST(recognisedType(data), "type");
}

QTEST_APPLESS_MAIN(PartsOfMessages)
#include "parts.moc"
