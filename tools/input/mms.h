// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILTOOL_MMS_H
#define SMILTOOL_MMS_H

#include <smilparser/smilslideshow.h>

#include <QtCore/QDateTime>
#include <QtCore/QStringList>

/** A message as it is sent, of the content type application/vnd.wap.mms-message. */
struct MmsMessage {
    QString from;
    QStringList to;
    QString subject;
    QDateTime date; ///< in UTC; invalid if the message has none
    QString start; ///< a name of the part that is to be read first
    QList<SmilPart> parts;
    QList<QByteArray> data; ///< of each part
};

/** Whether the bytes are a message as it is sent, not SMIL. */
inline bool isMms(const QByteArray &bytes)
{
    return bytes.startsWith('\x8C');
}

/**
 * Takes a message apart; a multipart in it stays one part. Returns empty if it is whole, or else what is wrong, to
 * be written after its name. See OMA MMS Encapsulation for the headers, WAP-230-WSP section 8 for the rest.
 */
QString decodeMms(const QByteArray &bytes, MmsMessage &message);

#endif
