// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "input/messageparts.h"

#include <QtTest/QtTest>

#include <sys/stat.h>
#include <unistd.h>

static const QByteArray png = QByteArray::fromHex("89504e470d0a1a0a0000000d49484452");

Q_DECLARE_METATYPE(PartKind)

class PartsOfMessages : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void srcOfMessage_data();
    void srcOfMessage();
    void srcOfFolder_data();
    void srcOfFolder();
    void onlyFilesOfTheFolder();
    void kinds_data();
    void kinds();
};

/** Adds a row for each "src=part"; without a part, the src means none. */
static void addMeanings(const char *rows)
{
    QTest::addColumn<QString>("src");
    QTest::addColumn<QString>("part");
    const QStringList each = QString::fromLatin1(rows).split(QLatin1Char(' '));
    for (const QString &row : each) {
        QTest::newRow(qPrintable(row)) << row.section(QLatin1Char('='), 0, 0) << row.section(QLatin1Char('='), 1);
    }
}

static QString meaning(const Parts &parts, const QString &src)
{
    const int found = parts.find(src);
    return found < 0 ? QString() : parts.at(found).name;
}

void PartsOfMessages::srcOfMessage_data()
{
    // "shared" is the location of one part, and the name of a part before it.
    addMeanings("cid:one=shared CID:<ONE>=shared shared=photo.png photo.png=photo.png hello.txt=hello.txt "
                "%68ello%2Etxt=hello.txt cid:start=start cid:3= cid:=");
}

void PartsOfMessages::srcOfMessage()
{
    MmsMessage read;
    for (const char *const headers : {"|start|", "shared|one|", "photo.png|two|shared", "||hello.txt"}) {
        const QStringList each = QString::fromLatin1(headers).split(QLatin1Char('|'));
        read.parts.append({each.at(0), each.at(1), each.at(2), QString(), png});
    }
    read.smil = 0;
    QFETCH(QString, src);
    QTEST(meaning(Parts(read), src), "part");
    QCOMPARE(Parts(read).smil(), 0);
}

/** Writes a file, of that size if one is given. */
static bool write(const QString &name, qint64 size = 0)
{
    QFile file(name);
    return file.open(QIODevice::WriteOnly) && file.write(png) == png.size() && (size == 0 || file.resize(size));
}

void PartsOfMessages::srcOfFolder_data()
{
    addMeanings(
        "photo.png=photo.png cid:a=cid:a cid:<a>=a 100%25=100%25 cid:100%2525=100%25 %50hoto.png=Photo.png "
        "PHOTO.%70ng=Photo.png .hidden=.hidden ../secret= %2e%2e/secret= inner= inner/photo.png= link= inwards= "
        "pipe= .= ..= ./photo.png= photo.png/= photo= a%00b=");
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
    Parts parts(Folder(folder.path(), problem), folder.filePath(QStringLiteral("a")));
    QCOMPARE(problem, QString());
    QCOMPARE(parts.size(), 6);
    QCOMPARE(parts.at(parts.smil()).name, QStringLiteral("a"));
    QFETCH(QString, src);
    QTEST(meaning(parts, src), "part");
    QCOMPARE(meaning(parts, folder.filePath(QStringLiteral("photo.png"))), QString());
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
    Parts parts(Folder(folder.path(), problem), QString());
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
    QCOMPARE(parts.smil(), -1);
    QCOMPARE(Folder(QStringLiteral("/dev"), problem).files().indexOf(QStringLiteral("zero")), -1);
    QCOMPARE(problem, QString());
    QCOMPARE(Folder(file, problem).files().size(), 0);
    QCOMPARE(problem, QStringLiteral("is not a folder that can be read"));
}

void PartsOfMessages::kinds_data()
{
    QTest::addColumn<QByteArray>("data");
    QTest::addColumn<PartKind>("kind");
    QTest::newRow("PNG") << png << PartKind::Picture;
    QTest::newRow("WebP") << QByteArray("RIFF\x1A\x00\x00\x00WEBPVP8L", 16) << PartKind::Picture;
    QTest::newRow("SVG") << QByteArray("<svg xmlns='http://www.w3.org/2000/svg'/>") << PartKind::OtherPicture;
    QTest::newRow("text") << QByteArray("Hello") << PartKind::Text;
    QTest::newRow("empty") << QByteArray() << PartKind::Text;
    QTest::newRow("Latin-1") << QByteArray("Gru\xDF") << PartKind::Text;
    QTest::newRow("UTF-16") << QByteArray("\xFF\xFEH\x00i\x00", 6) << PartKind::Text;
    QTest::newRow("SMIL") << QByteArray("<smil><head/><body/></smil>") << PartKind::Xml;
    QTest::newRow("AMR") << QByteArray("#!AMR\n\x3C\x91") << PartKind::Audio;
    QTest::newRow("3GP") << QByteArray::fromHex("000000186674797033677034") << PartKind::Video;
    QTest::newRow("anything") << QByteArray("\x00\x01\x02\x03", 4) << PartKind::Other;
}

void PartsOfMessages::kinds()
{
    QFETCH(QByteArray, data);
    MmsMessage read;
    read.parts.append({QStringLiteral("photo.png"), QString(), QString(), QStringLiteral("image/png"), data});
    QTEST(Parts(read).read(0).content.kind, "kind");
}

QTEST_APPLESS_MAIN(PartsOfMessages)
#include "parts.moc"
