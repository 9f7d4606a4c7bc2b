// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILQUICK_PART_H
#define SMILQUICK_PART_H

#include <smilparser/smilslideshow.h>

#include <QtCore/QUrl>
#include <QtCore/QVariantMap>

/** A part of a message as the host describes it. Files are opened here and nowhere else. */
class Part
{
public:
    Part() = default; ///< one that is missing
    explicit Part(const QVariantMap &fields);

    SmilPart headers; ///< with the type that was found when none is stated

    QString name(const QString &otherwise) const; ///< what a reader knows it by: one line, shortened
    QByteArray content(int limit) const; ///< its first @p limit bytes
    bool hasText() const { return !m_text.isEmpty(); } ///< whether the host has decoded its content
    QString text() const; ///< what a text says, or its beginning when it is too long to be shown; null for all else

    QUrl source(int as) const; ///< from what it is shown or played as that; empty when it must not be
    bool moves() const; ///< whether it is a picture that does, of a size that may

private:
    QString file() const;
    bool isPicture(int limit) const;
    bool isPlayable(int as) const;

    QUrl m_source;
    QString m_text;
};

QString shortened(const QString &text, int length); ///< cut between two characters

#endif
