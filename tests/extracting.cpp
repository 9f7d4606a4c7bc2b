// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "cases.h"
#include "commands/commands.h"
#include "mmsbytes.h"

#include <sys/stat.h>

struct Named {
    const char16_t *name = u"";
    const char16_t *id = u"";
    const char16_t *location = u"";
};

/** A message of SMIL in which each of @p srcs plays, and of parts with these names. Each has its number for content. */
static QByteArray messageOf(const std::initializer_list<Named> &parts, const char16_t *srcs = u"")
{
    QByteArray smil = "<smil><head><layout><region id='A'/></layout></head><body>";
    for (const QString &src : QString::fromUtf16(srcs).split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        smil += "<text src=\"" + src.toHtmlEscaped().toUtf8() + "\" region='A'/>";
    }
    const auto header = [](const char *key, const char16_t *value) {
        return *value ? key + text(QString::fromUtf16(value).toUtf8()) : QByteArray();
    };
    QByteArray all = part(sized(text("application/smil") + header("\x85\x7F", u"smil")), smil + "</body></smil>");
    int i = 0;
    for (const Named &each : parts) {
        const QByteArray type = sized(text("x/y") + header("\x85\x7F", each.name));
        all += part(type + header("\xC0\x22", each.id) + header("\x8E\x7F", each.location), QByteArray::number(++i));
    }
    return message("\xB3", int(parts.size()) + 1, all);
}

static bool write(const QString &name, const QByteArray &content)
{
    QFile file(name);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

/** "name=content" of each file in the folder but for the SMIL, which is the longest. */
static QString filesIn(const QString &folder)
{
    QStringList files;
    for (const QFileInfo &entry :
         QDir(folder).entryInfoList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot)) {
        QFile file(entry.filePath());
        const bool isFile = entry.isFile() && !entry.isSymLink() && file.open(QIODevice::ReadOnly);
        const QByteArray content = isFile ? file.readAll() : "no file";
        files += content.startsWith("<smil>")
            ? QStringList()
            : QStringList(entry.fileName() + QLatin1Char('=') + QString::fromUtf8(content));
    }
    return files.join(QLatin1Char(' '));
}

static Result extract(const QTemporaryDir &folder, const QByteArray &bytes, QByteArray *lines = nullptr)
{
    const QString file = folder.filePath(QStringLiteral("message.mms"));
    Arguments arguments;
    arguments.folder = folder.filePath(QStringLiteral("new/parts"));
    QBuffer out;
    out.open(QIODevice::WriteOnly);
    const Result result =
        write(file, bytes) ? extractCommand.run(file, arguments, out) : failure(file, QStringLiteral("not written"));
    if (lines) {
        *lines = out.data();
    }
    return result;
}

class Extracting : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void names_data();
    void names();
    void withoutSmil();
    void brokenSmil();
    void whatIsThereStays();
};

void Extracting::names_data()
{
    QTest::addColumn<QByteArray>("message");
    QTest::addColumn<QString>("files");
    QTest::addColumn<QString>("said");
    const auto row = [](const char *name, std::initializer_list<Named> parts, const char16_t *srcs,
                        const char16_t *files, const char16_t *said = u"") {
        QTest::newRow(name) << messageOf(parts, srcs) << QString::fromUtf16(files) << QString::fromUtf16(said);
    };
    row("as the SMIL calls them", {{u"a.txt", u"one"}, {u"b.txt", u"", u"x.txt"}}, u"cid:one x.txt", u"one=1 x.txt=2");
    row("as the message calls them", {{u"a.txt", u"one"}, {u"", u"two", u"b.txt"}, {u"", u"three"}}, u"",
        u"a.txt=1 b.txt=2 three=3");
    row("without a name", {{}, {u"/"}}, u"", u"2.txt=1 3.txt=2");
    row("two of one name", {{u"a.txt"}, {u"a.txt"}, {u"a"}, {u"a"}, {u"a.txt"}}, u"",
        u"a=3 a-2.txt=2 a-3=4 a-4.txt=5 a.txt=1");
    row("two that differ in letter case", {{u"A.txt"}, {u"a.txt"}}, u"a.txt A.txt", u"A-2.txt=1 a.txt=2",
        u"A.txt: means A-2.txt, but finds a.txt");
    row("the first src that means it", {{u"a b.txt"}}, u"a%20b.txt A%20B.txt", u"a%20b.txt=1",
        u"A%20B.txt: means a%20b.txt, but finds no file");
    row("another src that means it", {{u"a b.txt", u"id"}}, u"cid:id a%20b.txt", u"id=1",
        u"a%20b.txt: means id, but finds no file");
    row("folders of a src", {{u"b", u"a/b"}}, u"cid:a/b", u"b=1", u"cid:a/b: means b, but finds no file");
    row("out of the folder", {{u"../../../a.txt"}, {u"/etc/passwd"}, {u".."}, {u"..\\b"}},
        u"../../../a.txt ../../../a.txt", u"4.txt=3 a.txt=1 b=4 passwd=2",
        u"../../../a.txt: means a.txt, but finds no file");
    row("what begins a name", {{u"-rf"}, {u".profile"}, {u" . -\u00a0x"}}, u"", u"profile=2 rf=1 x=3");
    row("unsafe as it stands", {{u"-a"}, {u".b", u"b"}}, u"-a .b cid:b", u"a=1 b=2",
        u"-a: means a, but finds no file;.b: means b, but finds no file");
    row("control and format characters", {{u"a\ab\u202egpj.exe"}, {u"\u200bc\u200d\u2028d\ufeff"}}, u"",
        u"abgpj.exe=1 cd=2");
    row("a src of another part", {{u"a", u"b"}, {u"b"}}, u"cid:b", u"b=1 b-2=2");
    row("a src of no part", {{u"a/b"}}, u"b x", u"b=1", u"b: means no part, but finds b");
    row("no code, and a code", {{u"%zzA.txt"}}, u"%zz%41.txt", u"%zz%41.txt=1");
    row("a src of the SMIL", {{u"a"}}, u"cid:smil", u"a=1");
    const std::u16string accents(120, u'\u00e9');
    const std::u16string letters(240, u'a');
    row("long", {{(accents + u".jpeg").c_str()}, {(accents + u".jpeg").c_str()}, {(letters + u'.').c_str()}}, u"",
        (letters.substr(41) + u".=3 " + accents.substr(24) + u"-2.jpeg=2 " + accents.substr(23) + u".jpeg=1").c_str());
}

void Extracting::names()
{
    QFETCH(QByteArray, message);
    QFETCH(QString, files);
    QFETCH(QString, said);
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("new/parts"));
    for (const char *const time : {"extracts", "extracts again"}) {
        const Result result = extract(folder, message);
        COMPARE_SEEN(QLatin1String(time), filesIn(path), files);
        QCOMPARE(result.problems.join(QLatin1Char(';')), said);
        QVERIFY(result.ok);
    }
}

void Extracting::withoutSmil()
{
    const QTemporaryDir folder;
    QByteArray lines;
    const QByteArray png = QByteArray::fromHex("89504e470d0a1a0a0000000d49484452");
    const Result result = extract(folder, message("\xB3", 2, part("\x83", "Hello") + part("\x83", png)), &lines);
    QCOMPARE(result.problems.join(QLatin1Char(';')), QString());
    QVERIFY(result.ok);
    QCOMPARE(lines, QByteArray("\"1.txt\", text/plain, 5 bytes\n\"2.png\", text/plain, 16 bytes\n"));
}

void Extracting::brokenSmil()
{
    const QTemporaryDir folder;
    const Result result = extract(folder, messageOf({{u"a"}}).replace("</body>", "</boby>"));
    QCOMPARE(result.problems.size(), 1);
    QVERIFY(!result.ok);
    QCOMPARE(filesIn(folder.filePath(QStringLiteral("new/parts"))), QStringLiteral("a=1"));
}

void Extracting::whatIsThereStays()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("new/parts/"));
    QVERIFY(QDir().mkpath(path + QLatin1String("folder")));
    QVERIFY(write(path + QLatin1String("other"), "something else") && write(path + QLatin1String("same"), "3"));
    QVERIFY(QFile::link(folder.filePath(QStringLiteral("outside")), path + QLatin1String("link")));
    QVERIFY(QFile::link(path + QLatin1String("same"), path + QLatin1String("link-to-same")));
    QCOMPARE(::mkfifo(QFile::encodeName(path + QLatin1String("pipe")).constData(), 0600), 0);
    const Result result = extract(
        folder, messageOf({{u"folder"}, {u"other"}, {u"same"}, {u"link"}, {u"link-to-same"}, {u"pipe"}, {u"new"}}));
    QCOMPARE(filesIn(path),
             QStringLiteral(
                 "folder=no file link=no file link-to-same=no file new=7 other=something else pipe=no file same=3"));
    QVERIFY(!QFileInfo::exists(folder.filePath(QStringLiteral("outside"))));
    QStringList left;
    for (const QString &problem : result.problems) {
        left += problem.section(QLatin1Char('/'), -1);
    }
    QCOMPARE(left.join(QLatin1Char(';')),
             QStringLiteral("folder: File exists;other: File exists;link: File exists;link-to-same: File exists;"
                            "pipe: File exists"));
    QVERIFY(!result.ok);
}

QTEST_APPLESS_MAIN(Extracting)
#include "extracting.moc"
