// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "stage.h"

#include <QtCore/QRegularExpression>

#include <algorithm>
#include <utility>

void Stage::setMessage(const SmilSlideshow &show)
{
    m_layout = show.layout();
    m_background = opaque(show.background(), Qt::white);
    setSlide(SmilSlide(), QList<Part>());
}

/** Takes the medium that is there already out of @p pool, so that its player goes on; null when there is none. */
static Medium *take(QList<Medium *> &pool, const SmilCue &cue, int part)
{
    for (int i = 0; i < int(pool.size()); ++i) {
        const Medium &medium = *pool.at(i);
        if (medium.part == part && medium.cue.line == cue.line && medium.cue.ref == cue.ref) {
            return pool.takeAt(i);
        }
    }
    return nullptr;
}

/** How long each text may be, so that those of @p lengths are together short enough to be laid out at once. */
static int longest(QList<int> lengths)
{
    std::sort(lengths.begin(), lengths.end());
    int left = 32 * 1024;
    for (int i = 0; i < int(lengths.size()); left -= lengths.at(i++)) {
        const int share = left / int(lengths.size() - i);
        if (lengths.at(i) > share) {
            return share;
        }
    }
    return left;
}

/** Qt needs minutes to lay out a word of some thousand characters. */
static QString breakable(QString text)
{
    static const QRegularExpression word(QStringLiteral("(\\S{40})"));
    return text.replace(word, QStringLiteral("\\1\u200b"));
}

void Stage::setSlide(const SmilSlide &slide, const QList<Part> &parts)
{
    m_cues = slide.cues.mid(0, 32);
    m_more = int(slide.cues.size() - m_cues.size());
    QList<Medium *> pool = m_media;
    m_media.clear();
    QList<QObject *> seen, heard;
    QStringList texts;
    QList<int> lengths;
    for (int i = 0; i < int(m_cues.size()); ++i) {
        const SmilCue &cue = m_cues.at(i);
        const int part = slide.parts.at(i);
        Medium *const there = take(pool, cue, part);
        m_media.append(there ? there : new Medium(cue, part, parts.value(part), m_background, this));
        m_media.last()->begin = cue.begin;
        (cue.ref.type == SmilRef::Audio ? heard : seen).append(m_media.last());
        texts += parts.value(part).text();
        lengths += int(texts.last().size());
    }
    const int length = longest(lengths);
    for (int i = 0; i < int(m_media.size()); ++i) {
        m_media.at(i)->text = breakable(shortened(texts.at(i), length));
    }
    place();
    if (std::exchange(m_seen, seen) != seen) {
        Q_EMIT seenChanged();
    }
    if (std::exchange(m_heard, heard) != heard) {
        Q_EMIT heardChanged();
    }
    for (Medium *const medium : pool) {
        medium->deleteLater();
    }
}

void Stage::setPosition(double seconds)
{
    double last = 0; // what ends then stands until the next slide
    for (const SmilCue &cue : m_cues) {
        last = cue.ref.type == SmilRef::Audio ? last : qMax(last, cue.end);
    }
    for (int i = 0; i < int(m_media.size()); ++i) {
        const SmilCue &cue = m_cues.at(i);
        Medium *const medium = m_media.at(i);
        const bool active = seconds >= cue.begin && seconds < cue.end;
        const bool visible = active || (seconds >= cue.begin && cue.end >= last);
        if (visible != medium->visible || active != medium->active) {
            medium->visible = visible;
            medium->active = active;
            Q_EMIT medium->changed();
        }
    }
}

void Stage::place()
{
    // A phone of the window's shape, as wide as those that messages are made for.
    const SmilScreen screen(m_layout, m_size * (240 / qMin(m_size.width(), m_size.height())));
    const QRectF all(QPointF(), screen.size()); // which may be so small that the zoom would be infinite
    m_zoom = qBound(0.0, qMin(m_size.width() / all.width(), m_size.height() / all.height()), 1e6);
    const QPointF corner = QRectF(QPointF(), m_size - m_zoom * all.size()).center();
    const QList<QRectF> rects = screen.rects(m_cues);
    for (int i = 0; i < int(rects.size()); ++i) { // which may be too far out to be enlarged
        const QRectF seen = rects.at(i).intersected(all);
        m_media.at(i)->area = QRectF(corner + m_zoom * seen.topLeft(), m_zoom * seen.size());
        Q_EMIT m_media.at(i)->changed();
    }
    Q_EMIT placed();
}
