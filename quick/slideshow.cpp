// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "slideshow.h"

#include "stage.h"

#include <QtQml/QQmlComponent>
#include <QtQml/QQmlContext>
#include <QtQml/QQmlEngine>

#include <algorithm>
#include <utility>

static const int mostBytes = 1024 * 1024; // of a SMIL; it comes from a stranger

Slideshow::Slideshow(QQuickItem *parent)
    : QQuickItem(parent)
    , m_stage(new Stage(this))
{
    setFlag(ItemIsFocusScope);
    setImplicitSize(240, 320);
    connect(&m_timer, &QTimer::timeout, this, &Slideshow::tick);
    // Not at once: a player may report a length while it is being made, and others do so soon after.
    m_lengthsTimer.setSingleShot(true);
    connect(&m_lengthsTimer, &QTimer::timeout, this, &Slideshow::takeLengths);
    connect(m_stage, &Stage::lengthKnown, this, &Slideshow::setLength);
}

void Slideshow::componentComplete()
{
    QQuickItem::componentComplete();
    open();
    QQmlComponent view(qmlEngine(this), QUrl(QStringLiteral("qrc:/smilparser/quick/View.qml")));
    const QVariantMap properties{std::make_pair(QStringLiteral("stage"), QVariant::fromValue(m_stage))};
    auto *const item = qobject_cast<QQuickItem *>(view.createWithInitialProperties(properties, qmlContext(this)));
    if (item) {
        item->setParent(this);
        item->setParentItem(this);
    }
}

void Slideshow::setSmil(const QVariant &smil)
{
    if (smil != m_smil || smil.userType() != m_smil.userType()) {
        m_smil = smil;
        open();
        Q_EMIT smilChanged();
    }
}

void Slideshow::setParts(const QVariantList &parts)
{
    if (parts != m_given) {
        m_given = parts;
        open();
        Q_EMIT partsChanged();
    }
}

void Slideshow::open()
{
    if (!isComponentComplete()) {
        return;
    }
    m_parts.clear();
    for (const QVariant &part : std::as_const(m_given)) {
        m_parts.append(Part(part.toMap()));
    }
    bool decoded = m_smil.userType() == QMetaType::QString;
    m_bytes = decoded ? m_smil.toString().toUtf8() : m_smil.toByteArray();
    const auto isSmil = [](const Part &part) { return part.headers.isSmil(); };
    const auto smil = std::find_if(m_parts.begin(), m_parts.end(), isSmil);
    if (m_bytes.isEmpty() && smil != m_parts.end()) {
        decoded = smil->hasText();
        m_bytes = smil->content(mostBytes);
    }
    m_bytes = m_bytes.left(mostBytes); // more is a broken message
    m_options = decoded ? SmilParser::DecodedText : SmilParser::AsWritten;
    m_lengths = QVector<double>(m_parts.size());
    change([this] {
        m_slide = -1;
        layTimes();
        m_stage->setMessage(m_show);
        goTo(0, 0);
    });
    Q_EMIT slidesChanged();
}

void Slideshow::setLength(int part, double seconds)
{
    if (m_lengths.value(part, seconds) != seconds) {
        m_lengths[part] = seconds;
        m_lengthsTimer.start(50);
    }
}

void Slideshow::takeLengths()
{
    change([this] {
        const double played = m_position - m_begin;
        layTimes();
        const int slide = qMin(std::exchange(m_slide, -1), count() - 1);
        goTo(slide, m_show.slide(slide).begin + played);
    });
    Q_EMIT slidesChanged();
}

void Slideshow::layTimes()
{
    QList<SmilPart> headers;
    for (const Part &part : std::as_const(m_parts)) {
        headers.append(part.headers);
    }
    m_show = SmilSlideshow(m_bytes, headers, m_options, 5, [this](int part) { return m_lengths.at(part); });
    m_slides.clear();
}

/** With each medium as what its part is, whatever the SMIL calls it. */
SmilSlide Slideshow::slideAt(int index) const
{
    SmilSlide slide = m_show.slide(index);
    for (int i = 0; i < int(slide.cues.size()); ++i) {
        if (slide.parts.at(i) >= 0) {
            slide.cues[i].ref.type = m_parts.at(slide.parts.at(i)).headers.kind();
        }
    }
    return slide;
}

void Slideshow::goTo(int index, double position)
{
    if (index != m_slide && index < count()) {
        const SmilSlide slide = slideAt(index);
        m_slide = index;
        m_begin = slide.begin;
        m_end = slide.end;
        m_stage->setSlide(slide, m_parts);
    }
    m_position = qBound(0.0, position, duration());
    m_stage->setPosition(m_position);
    m_clock.start();
    m_playing = m_playing && !isAtEnd();
    count() > 0 && m_playing ? m_timer.start(50) : m_timer.stop();
}

/** The slide that is shown then, from @p first on; of those that take no time, the last one. */
int Slideshow::slideAtTime(double seconds, int first) const
{
    int last = count() - 1;
    while (first < last) {
        const int middle = last - (last - first) / 2;
        m_show.slide(middle).begin <= seconds ? first = middle : last = middle - 1;
    }
    return first;
}

void Slideshow::tick()
{
    change([this] {
        const double position = m_position + m_clock.restart() / 1000.0;
        goTo(position < m_end || m_slide == count() - 1 ? m_slide : slideAtTime(position, m_slide + 1), position);
    });
}

void Slideshow::setPosition(double seconds)
{
    if (!qIsNaN(seconds) && count() > 0) {
        change([&] { goTo(slideAtTime(seconds, 0), seconds); });
        m_stage->jump();
    }
}

void Slideshow::setSlide(int slide)
{
    if (slide >= 0 && slide < count()) {
        change([&] { goTo(slide, m_show.slide(slide).begin); });
        m_stage->jump();
    }
}

void Slideshow::setPlaying(bool playing)
{
    if (playing && isAtEnd()) {
        setSlide(0);
    }
    change([&] {
        m_playing = playing;
        goTo(m_slide, m_position);
    });
}

QString Slideshow::error() const
{
    const QString text = QStringLiteral("%1:%2: %3").arg(m_show.errorLine()).arg(m_show.errorColumn());
    return m_show.error().isNull() ? QString() : text.arg(m_show.error());
}

QVariantList Slideshow::slides() const
{
    for (int i = int(m_slides.size()); i < qMin(100, count()); ++i) {
        const SmilSlide slide = slideAt(i);
        QVariantList media;
        for (int j = 0; j < qMin(32, int(slide.cues.size())); ++j) {
            const Part part = m_parts.value(slide.parts.at(j));
            QVariantMap medium = describe(slide.cues.at(j), slide.parts.at(j), part);
            medium[QStringLiteral("text")] = shortened(part.text(), 1024);
            media.append(medium);
        }
        m_slides.append(QVariant(media));
    }
    return m_slides;
}

void Slideshow::change(const std::function<void()> &how)
{
    static void (Slideshow::*const changed[])() = {
        &Slideshow::countChanged,   &Slideshow::slideChanged, &Slideshow::positionChanged, &Slideshow::durationChanged,
        &Slideshow::playingChanged, &Slideshow::atEndChanged, &Slideshow::titleChanged,    &Slideshow::errorChanged};
    const auto state = [this] {
        return QVariantList{count(), m_slide, m_position, duration(), m_playing, isAtEnd(), title(), error()};
    };
    const QVariantList before = state();
    how();
    const QVariantList after = state();
    for (int i = 0; i < int(after.size()); ++i) {
        if (after.at(i) != before.at(i)) {
            Q_EMIT(this->*changed[i])();
        }
    }
}
