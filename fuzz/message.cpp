// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "parts.h"
#include "require.h"

/** From bytes to a message, and from each of its names to a part. */
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    // Not copied: the fuzzer's bytes have nothing behind them that could be read by mistake.
    const QByteArray bytes = QByteArray::fromRawData(reinterpret_cast<const char *>(data), QByteArray::size_type(size));
    MmsMessage message;
    const QString problem = decodeMms(bytes, message);
    require(!problem.contains(QLatin1Char('\n')), "a problem is one line");
    require(!problem.isEmpty() || (message.smil >= 0 && message.smil < message.parts.size()), "there is a SMIL part");

    const QDateTime &date = message.date;
    require(date.isNull() || (date.isValid() && date.date().year() < 2107), "the date can be written");
    Parts parts = Parts::ofMessage(message);
    qint64 total = 0;
    for (int i = 0; i < parts.size(); ++i) {
        const MmsPart &part = message.parts.at(i);
        total += part.data.size();
        require(part.id.isEmpty() || parts.find(part.id) <= i, "a part is found by its identifier");
        for (const QString &name : {part.name, part.location, QLatin1String("cid:<") + part.id + QLatin1Char('>')}) {
            require(name.isEmpty() || name == QLatin1String("cid:<>") || parts.find(name) >= 0, "a name finds a part");
        }
        require(parts.find(parts.at(i).name) >= -1 && parts.read(i).kind != Parts::Unread, "a part has a kind");
    }
    require(total <= qint64(size), "there is no more data than there was");
    return 0;
}
