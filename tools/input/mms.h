// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILTOOL_MMS_H
#define SMILTOOL_MMS_H

#include <QtCore/QDateTime>
#include <QtCore/QStringList>
#include <QtCore/QVector>

/** A part of a message; empty is what its headers do not give. The first three are as bareId(). */
struct MmsPart {
    QString name; ///< that of the content type, or else the file name of the disposition
    QString id;
    QString location;
    QString type; ///< such as "image/jpeg", or "0x7b" for a number without a known name
    QByteArray data;
};

/** A message as it is sent, of the content type application/vnd.wap.mms-message. */
struct MmsMessage {
    QString from;
    QStringList to;
    QString subject;
    QDateTime date; ///< in UTC; invalid if the message has none
    QVector<MmsPart> parts;
    int smil = -1; ///< which of the parts is the presentation; -1 if none is
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
