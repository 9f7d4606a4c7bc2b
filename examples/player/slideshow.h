// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#ifndef SLIDESHOW_H
#define SLIDESHOW_H

#include <smilparser/smilplayback.h>

#include <QtCore/QDir>
#include <QtCore/QRegularExpression>
#include <QtCore/QTimer>
#include <QtCore/QVariantMap>
#include <QtGui/QColor>

/** A message that plays: what it shows, when and where. Player.qml draws it. */
class Slideshow : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString problem MEMBER m_problem NOTIFY turned) ///< why there is nothing to show; else empty
    Q_PROPERTY(QColor background MEMBER m_background NOTIFY turned)
    Q_PROPERTY(int slides READ slides NOTIFY turned) ///< how many
    Q_PROPERTY(int slide READ slide NOTIFY turned) ///< from 0 on
    Q_PROPERTY(QVariantList shown READ shown NOTIFY turned) ///< what the slide shows, a map each: 32 at most
    Q_PROPERTY(int more MEMBER m_more NOTIFY turned) ///< how many the slide has beyond those
    Q_PROPERTY(double position MEMBER m_position WRITE setPosition NOTIFY moved) ///< seconds from the beginning
    Q_PROPERTY(bool playing READ playing WRITE play NOTIFY moved)

public:
    Slideshow();
    void open(const QString &smil, const QString &folder); ///< its parts are the files of the folder
    Q_INVOKABLE void next() { setPosition(m_timeline.slideBegins().value(m_slide + 1, m_position)); }
    Q_INVOKABLE void previous() { setPosition(m_timeline.slideBegins().value(m_slide - 1)); }
    void play(bool on = true) { on ? m_timer.start() : m_timer.stop(), setPosition(m_position); }
    void setPosition(double seconds);
    Q_INVOKABLE QVariantMap screen(const QSizeF &window) const; ///< the "areas" of what is shown there, and the "zoom"
    Q_INVOKABLE QRectF fit(QSizeF picture, QRectF area, QString how) { return SmilScreen::fitted(picture, area, how); }
    Q_INVOKABLE QString breakable(QString text) { return text.replace(m_word, QStringLiteral("\\1\u200b")); }

    int slides() const { return int(m_timeline.slideBegins().size()); }
    int slide() const { return m_slide; }
    QVariantList shown() const;
    bool playing() const { return m_timer.isActive(); }

Q_SIGNALS:
    void turned();
    void moved();

private:
    SmilLayout m_layout;
    QHash<QString, QColor> m_colours; // behind the regions
    QColor m_background;
    SmilTimeline m_timeline;
    QFileInfoList m_files;
    SmilParts m_parts;
    QString m_problem;
    double m_position = 0.0;
    int m_slide = 0, m_more = 0;
    QList<SmilCue> m_cues; // of the slide, 32 at most
    const QRegularExpression m_word{QStringLiteral("(\\S{40})")}; // so long a word would cost minutes
    QTimer m_timer; // to the next change
};

#endif
