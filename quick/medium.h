// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILQUICK_MEDIUM_H
#define SMILQUICK_MEDIUM_H

#include "part.h"

#include <QtCore/QObject>
#include <QtGui/QColor>

/** A medium of the slide that is shown, for the QML file that draws or plays it. */
class Medium : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QVariantMap is MEMBER is CONSTANT) ///< describe(), and its colours
    Q_PROPERTY(QString text MEMBER text NOTIFY changed)
    Q_PROPERTY(QRectF area MEMBER area NOTIFY changed)
    Q_PROPERTY(double begin MEMBER begin NOTIFY changed) ///< in seconds
    Q_PROPERTY(bool active MEMBER active NOTIFY changed) ///< whether it is its time
    Q_PROPERTY(bool visible MEMBER visible NOTIFY changed) ///< the same, or it stands until the next slide

public:
    Medium(const SmilCue &cue, int index, const Part &part, const QColor &background, QObject *parent);

    Q_INVOKABLE QRectF fitted(const QSizeF &picture, const QSizeF &room) const ///< where the picture is in that room
    {
        return SmilScreen::fitted(picture, QRectF(QPointF(), room), cue.fit);
    }

    const SmilCue cue;
    const int part;
    QVariantMap is;
    QString text;
    QRectF area;
    double begin = 0;
    bool active = false, visible = false;

Q_SIGNALS:
    void changed();
};

/** What a medium is, that of part @p index: its "kind", "part", "name", "alt", and the "source" that may be opened. */
QVariantMap describe(const SmilCue &cue, int index, const Part &part);

/** The colour that @p text says, unless that is none or lets through what is beneath. */
QColor opaque(const QString &text, const QColor &otherwise = QColor());

#endif
