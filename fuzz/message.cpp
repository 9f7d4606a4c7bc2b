// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "base/escaping.h"
#include "commands/commands.h"
#include "output/outputfile.h"
#include "require.h"

#include <smilparser/mmslogger.h>

#include <smilparser/smilplayback.h>

#include <QtCore/QBuffer>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

#include <algorithm>
#include <functional>
#include <set>

bool MMSLogger::qdebugEnabled = false;

/** From bytes to a message, and from each of its names to a part. */
static void takeApart(const QByteArray &bytes)
{
    MmsMessage message;
    const QString problem = decodeMms(bytes, message);
    require(!problem.contains(QLatin1Char('\n')), "a problem is one line");
    require(message.parts.size() == message.data.size(), "each part has data");

    const QDateTime &date = message.date;
    require(date.isNull() || (date.isValid() && date.date().year() < 2107), "the date can be written");
    MessageParts parts(message);
    qint64 total = 0;
    for (int i = 0; i < parts.size(); ++i) {
        const SmilPart &part = message.parts.at(i);
        total += message.data.at(i).size();
        parts.read(i);
        require(!parts.at(i).type.isEmpty(), "what is in a part is of some type");
        // Of some names nothing is left without what stands around them.
        const int found = parts.find(part.contentId);
        require(found < 0 || found <= i || part.contentId != message.parts.at(found).contentId,
                "a part is found by its identifier, or the first that has it");
    }
    require(total <= bytes.size(), "there is no more data than there was");
}

/** That files can have these names, by the srcs of the message and what else its parts are called. */
static void nameFiles(const Message &message)
{
    QStringList srcs;
    const QList<SmilCue> cues = SmilTimeline(message.dom.documentElement()).cues();
    for (const SmilCue &cue : cues) {
        srcs.append(cue.ref.src);
    }
    for (const SmilPart &part : message.mms.parts) {
        srcs += {QLatin1String("cid:") + part.contentId, QString::fromLatin1(part.name.toUtf8().toPercentEncoding())};
    }
    const QVector<QString> names = fileNames(message, srcs);
    require(names.size() == message.parts.size(), "each part has a name");
    std::set<QString> folded;
    for (const QString &name : names) {
        require(!name.isEmpty() && safeName(name) == name, "a name is safe");
        require(name.toUtf8().size() <= 200 && QString::fromUtf8(name.toUtf8()) == name, "a name can be written");
        require(!name.contains(QLatin1Char('/')) && name.front() != QLatin1Char('.') && name.front() != QLatin1Char('-')
                    && !name.front().isSpace() && printable(name) == name,
                "a name is that of a file in the folder, and shows");
        require(folded.insert(name.toCaseFolded()).second, "no two have the same name in any letter case");
    }
}

/** Parts of every kind, for a document that came without any. */
static MmsMessage companions()
{
    MmsMessage message;
    for (const char *const name : {"a", "b", "c"}) {
        SmilPart part;
        part.name = QString::fromLatin1(name);
        message.parts.append(part);
    }
    message.data = {QByteArray("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16), "Hel\tlo \xe2\x80\xae\xd7\xa9", "#!AMR\n\x3c\x91"};
    return message;
}

/** What is written: a terminal obeys nothing in it, and there is not too much of it. */
static QByteArray written(qint64 most, const std::function<void(QIODevice &)> &write)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    write(buffer);
    const QByteArray out = buffer.data();
    const auto isControl = [](char c) { return uchar(c) < 0x20 && c != '\n'; };
    require(std::none_of(out.cbegin(), out.cend(), isControl), "no control character is written");
    require(QString::fromUtf8(out.constData(), out.size()).toUtf8() == out, "what is written is UTF-8");
    require(out.size() <= most, "what is written is in proportion to what was read");
    return out;
}

static void runCommands(Message message, qint64 size)
{
    const qint64 most = 4096 + 64 * size;
    written(most, [&](QIODevice &out) { show(message, out); });
    const QByteArray json = written(4 * most, [&](QIODevice &out) { showJson(message, out); });
    require(!QJsonDocument::fromJson(json).object().isEmpty() && json.indexOf('\n') == json.size() - 1,
            "JSON is one line that can be read");
    bool found = false;
    const QByteArray findings = written(most, [&](QIODevice &out) { found = check(message, {}, out); });
    require(found == !findings.isEmpty() && (!found || findings.endsWith("]\n")), "a finding is a line");
    const QByteArray picture = written(32 * most, [&](QIODevice &out) { storyboard(message, out); });
    require(picture.endsWith("</svg>\n"), "the picture is whole");
    written(most, [&](QIODevice &out) { render(message, out); });
}

/** Whatever the file: a message as it is sent, or a SMIL part with or without others. */
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    // Not copied: the fuzzer's bytes have nothing behind them that could be read by mistake.
    const QByteArray bytes = QByteArray::fromRawData(reinterpret_cast<const char *>(data), QByteArray::size_type(size));
    takeApart(bytes);

    Message message = readBytes(bytes, QStringLiteral("-"), QString());
    const Problem &problem = message.problem;
    require(!problem.toString().contains(QLatin1Char('\n')) && problem.isNone() == problem.text.isEmpty(),
            "a problem is one line");
    if (message.parts.areKnown()) {
        nameFiles(message);
    }
    if (message.isReadable()) {
        runCommands(message, qint64(size));
        if (!message.parts.areKnown()) {
            message.mms = companions();
            message.parts = MessageParts(message.mms);
            runCommands(message, qint64(size));
        }
    }
    return 0;
}
