// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "cases.h"
#include "commands/commands.h"
#include "mmsbytes.h"

#include <sys/stat.h>

/**
 * A message of these parts, divided by ";", each "name,id,location,type". The first is SMIL in which each of @p srcs
 * plays; any other has its number for content.
 */
static QByteArray messageOf(const QString &parts, const QString &srcs)
{
    QByteArray smil = "<smil><head><layout><region id='A'/></layout></head><body>";
    for (const QString &src : srcs.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        smil += "<text src=\"" + src.toHtmlEscaped().toUtf8() + "\" region='A'/>";
    }
    const QStringList rows = parts.split(QLatin1Char(';'));
    QByteArray all;
    for (int i = 0; i < int(rows.size()); ++i) {
        QByteArrayList fields;
        for (const QString &field : rows.at(i).split(QLatin1Char(','))) {
            fields.append(text(field.toUtf8()));
        }
        const auto header = [&fields](const char *key, int field) {
            return fields.value(field).size() > 1 ? key + fields.value(field) : QByteArray();
        };
        const QByteArray type = sized(fields.value(3) + header("\x85\x7F", 0));
        all += part(type + header("\xC0\x22", 1) + header("\x8E\x7F", 2),
                    i == 0 ? smil + "</body></smil>" : QByteArray::number(i));
    }
    return message("\xB3", int(rows.size()), all);
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

/** The storyboard, without the numbers of the parts, which are others in a folder. */
static QString drawn(const QByteArray &bytes, const QString &folder)
{
    Message message;
    QBuffer out;
    out.open(QIODevice::WriteOnly);
    const Problem problem = readBytes(bytes, QStringLiteral("-"), folder, SmilParser::AsWritten, message);
    static const QRegularExpression number(QStringLiteral("\\bp\\d+-"));
    if (!problem.isNone()) {
        return problem.text;
    }
    storyboard(message, out);
    return QString::fromUtf8(out.data()).remove(number);
}

class Extracting : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void names_data() { addCases("extracting.txt"); }
    void names();
    void withoutSmil();
    void brokenSmil();
    void whatIsThereStays();
};

void Extracting::names()
{
    QFETCH(QString, parts);
    QFETCH(QString, srcs);
    QFETCH(QString, files);
    QFETCH(QString, said);
    const QTemporaryDir folder;
    const QByteArray bytes = messageOf(QStringLiteral("smil,,,application/smil;") + parts, srcs);
    const QString path = folder.filePath(QStringLiteral("new/parts"));
    for (const char *const time : {"extracts", "extracts again"}) {
        const Result result = extract(folder, bytes);
        COMPARE_SEEN(QLatin1String(time), filesIn(path), files);
        QCOMPARE(result.problems.join(QLatin1Char(';')), said);
        QVERIFY(result.ok);
    }
    QFile smil(path + QLatin1String("/smil"));
    QVERIFY(smil.open(QIODevice::ReadOnly));
    if (said.isEmpty()) {
        COMPARE_SEEN(QStringLiteral("draws the files"), drawn(smil.readAll(), path), drawn(bytes, QString()));
    }
}

void Extracting::withoutSmil()
{
    const QTemporaryDir folder;
    QByteArray lines;
    const Result result = extract(folder, message("\xB3", 1, part("\x83", "Hello")), &lines);
    QCOMPARE(result.problems.join(QLatin1Char(';')), QString());
    QVERIFY(result.ok);
    QCOMPARE(lines, QByteArray("\"1.txt\", text/plain, 5 bytes\n"));
    QCOMPARE(showCommand.run(folder.filePath(QStringLiteral("message.mms")), Arguments(), *std::make_unique<QBuffer>())
                 .problems.value(0)
                 .section(QStringLiteral(": "), 1),
             QStringLiteral("has no SMIL part"));
}

void Extracting::brokenSmil()
{
    const QTemporaryDir folder;
    const Result result = extract(
        folder, messageOf(QStringLiteral("smil,,,application/smil;a,,,x/y"), QString()).replace("</body>", "</boby>"));
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
    const Result result = extract(folder,
                                  messageOf(QStringLiteral("smil,,,application/smil;folder,,,x/y;other,,,x/y;same,,,x/"
                                                           "y;link,,,x/y;link-to-same,,,x/y;pipe,,,x/y;new,,,x/y"),
                                            QString()));
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
