// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILQUICK_STAGE_H
#define SMILQUICK_STAGE_H

#include "medium.h"

/** What is seen and heard of the slide that is shown, and where: View.qml draws it. */
class Stage : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QObject *slideshow READ parent CONSTANT)
    Q_PROPERTY(QList<QObject *> seen MEMBER m_seen NOTIFY seenChanged) ///< of class Medium
    Q_PROPERTY(QList<QObject *> heard MEMBER m_heard NOTIFY heardChanged)
    Q_PROPERTY(int more MEMBER m_more NOTIFY placed) ///< how many media the slide has beyond these
    Q_PROPERTY(QColor background MEMBER m_background NOTIFY placed)
    Q_PROPERTY(QSizeF size MEMBER m_size WRITE setSize NOTIFY placed)
    Q_PROPERTY(int jumps MEMBER m_jumps NOTIFY jumped) ///< how often the position was set
    Q_PROPERTY(double zoom MEMBER m_zoom NOTIFY placed) ///< how large a pixel of the message is

public:
    using QObject::QObject; ///< of a slideshow

    void setMessage(const SmilSlideshow &show); ///< forgets what it showed
    void setSlide(const SmilSlide &slide, const QList<Part> &parts); ///< keeps of the media those that it shows, too
    void setPosition(double seconds);
    void jump() { ++m_jumps, Q_EMIT jumped(); }
    void setSize(const QSizeF &size) { m_size = size, place(); }

Q_SIGNALS:
    void seenChanged();
    void heardChanged();
    void placed();
    void jumped();
    void lengthKnown(int part, double seconds); ///< a player has read that

private:
    void place();

    SmilLayout m_layout;
    QList<SmilCue> m_cues; // of the slide, 32 at most
    QList<Medium *> m_media; // one for each
    QList<QObject *> m_seen, m_heard;
    int m_more = 0, m_jumps = 0;
    QColor m_background = Qt::white;
    QSizeF m_size;
    double m_zoom = 1;
};

#endif
