// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SMILQUICK_SLIDESHOW_H
#define SMILQUICK_SLIDESHOW_H

#include "part.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QTimer>
#include <QtQuick/QQuickItem>

class Stage;

/** The type that QML has: a message that plays. */
class Slideshow : public QQuickItem
{
    Q_OBJECT
    Q_PROPERTY(QVariant smil MEMBER m_smil WRITE setSmil NOTIFY smilChanged)
    Q_PROPERTY(QVariantList parts MEMBER m_given WRITE setParts NOTIFY partsChanged)
    Q_PROPERTY(int count READ count NOTIFY countChanged)
    Q_PROPERTY(int slide MEMBER m_slide WRITE setSlide NOTIFY slideChanged)
    Q_PROPERTY(double position MEMBER m_position WRITE setPosition NOTIFY positionChanged)
    Q_PROPERTY(double duration READ duration NOTIFY durationChanged)
    Q_PROPERTY(bool playing MEMBER m_playing WRITE setPlaying NOTIFY playingChanged)
    Q_PROPERTY(bool atEnd READ isAtEnd NOTIFY atEndChanged)
    Q_PROPERTY(QString title READ title NOTIFY titleChanged)
    Q_PROPERTY(QString error READ error NOTIFY errorChanged)
    Q_PROPERTY(bool controls MEMBER m_controls NOTIFY controlsChanged)
    Q_PROPERTY(QVariantList slides READ slides NOTIFY slidesChanged)

public:
    explicit Slideshow(QQuickItem *parent = nullptr);

    void setSmil(const QVariant &smil);
    void setParts(const QVariantList &parts);
    int count() const { return m_show.count(); }
    void setSlide(int slide);
    void setPosition(double seconds);
    double duration() const { return m_show.duration(); }
    void setPlaying(bool playing);
    bool isAtEnd() const { return count() > 0 && m_position >= duration(); }
    QString title() const { return m_show.title(); }
    QString error() const;
    QVariantList slides() const;

    Q_INVOKABLE void play() { setPlaying(true); }
    Q_INVOKABLE void pause() { setPlaying(false); }
    Q_INVOKABLE void next() { setSlide(m_slide + 1); }
    Q_INVOKABLE void previous() { setSlide(qMax(0, m_slide - 1)); }

Q_SIGNALS:
    void smilChanged();
    void partsChanged();
    void countChanged();
    void slideChanged();
    void positionChanged();
    void durationChanged();
    void playingChanged();
    void atEndChanged();
    void titleChanged();
    void errorChanged();
    void controlsChanged();
    void slidesChanged();

private:
    void componentComplete() override;

    void open(); ///< what is set
    void setLength(int part, double seconds);
    void takeLengths();
    void layTimes();
    SmilSlide slideAt(int index) const;
    int slideAtTime(double seconds, int first) const;
    void goTo(int index, double position);
    void tick();
    void change(const std::function<void()> &how); ///< does that, and emits signals for what it has changed

    QVariant m_smil;
    QVariantList m_given;
    QList<Part> m_parts;
    QByteArray m_bytes; // of the SMIL
    SmilParser::ReadOptions m_options;
    QVector<double> m_lengths; // of the parts, in seconds; 0 while it is not known
    SmilSlideshow m_show;
    mutable QVariantList m_slides; // empty until someone asks
    int m_slide = -1;
    double m_begin = 0, m_end = 0; // of the slide
    double m_position = 0;
    bool m_playing = false, m_controls = true;
    QTimer m_timer, m_lengthsTimer;
    QElapsedTimer m_clock; // since the position was moved
    Stage *const m_stage;
};

#endif
