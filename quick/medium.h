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
    Q_PROPERTY(QString kind MEMBER kind CONSTANT)
    Q_PROPERTY(QString name MEMBER name CONSTANT)
    Q_PROPERTY(QString alt MEMBER alt CONSTANT)
    Q_PROPERTY(int part MEMBER part CONSTANT) ///< -1 when it is missing
    Q_PROPERTY(QUrl source MEMBER source CONSTANT) ///< of what is shown or played; empty when that must not be
    Q_PROPERTY(bool moves MEMBER moves CONSTANT)
    Q_PROPERTY(bool filled MEMBER filled CONSTANT) ///< whether its whole area has a colour
    Q_PROPERTY(QColor paper MEMBER paper CONSTANT) ///< what is behind it
    Q_PROPERTY(QColor ink MEMBER ink CONSTANT)
    Q_PROPERTY(QString text MEMBER text NOTIFY changed)
    Q_PROPERTY(QRectF area MEMBER area NOTIFY changed)
    Q_PROPERTY(double begin MEMBER begin NOTIFY changed) ///< in seconds
    Q_PROPERTY(bool active MEMBER active NOTIFY changed) ///< whether it is its time
    Q_PROPERTY(bool visible MEMBER visible NOTIFY changed) ///< the same, or it stands until the next slide

public:
    Medium(const SmilCue &cue, int index, const Part &of, const QColor &background, QObject *parent);

    Q_INVOKABLE QRectF fitted(const QSizeF &picture, const QSizeF &room) const; ///< where the picture is in that room

    const SmilCue cue;
    const int part;
    const QString kind;
    QString name, alt, text;
    QUrl source;
    bool moves, filled, active, visible;
    QColor paper, ink;
    QRectF area;
    double begin;

Q_SIGNALS:
    void changed();
};

/** The colour that @p text says; invalid for what is none, or lets through what is beneath. */
QColor opaque(const QString &text);

#endif
