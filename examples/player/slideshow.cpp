// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "slideshow.h"

#include <QtCore/QUrl>
#include <QtGui/QImageReader>

#include <algorithm>

/** One of a format that names no other files, as SVG may, and that takes at most 128 MiB. */
static bool isPicture(const QString &path)
{
    QImageReader reader(path);
    static const QByteArrayList formats{"bmp", "gif", "jpeg", "jpg", "png", "wbmp", "webp"};
    const QSize size = !path.isEmpty() && formats.contains(reader.format()) ? reader.size() : QSize();
    return !size.isEmpty() && size.width() <= 32 * 1024 * 1024 / size.height();
}

/** Invalid for what is no colour, or lets through what is beneath. */
static QColor colour(const QString &text)
{
    const bool known = text.startsWith(QLatin1Char('#')) || QColor::colorNames().contains(text, Qt::CaseInsensitive);
    return known && QColor(text).alpha() == 255 ? QColor(text) : QColor();
}

Slideshow::Slideshow()
{
    m_timer.setTimerType(Qt::PreciseTimer);
    connect(&m_timer, &QTimer::timeout, this, [this] { setPosition(m_timeline.nextChange(m_position)); });
}

void Slideshow::open(const QString &smil, const QString &folder)
{
    QFile file(smil);
    const int limit = 1024 * 1024; // it comes from a stranger
    const QByteArray bytes = file.open(QIODevice::ReadOnly) ? file.read(limit + 1) : QByteArray();
    SmilParser parser(bytes.size() > limit ? QByteArray() : bytes);
    SmilParser::Outcome outcome;
    QString error;
    int line = 0, column = 0;
    m_layout = parser.parse(SmilParser::AsWritten, &outcome, &error, &line, &column).header.layout;
    const QDomElement root = parser.dom().documentElement();
    m_timeline = SmilTimeline(outcome == SmilParser::NotWellFormed ? QDomElement() : root);
    static const char *const missing[] = {"slide", "", "smil", "slide", "body"};
    m_problem = !file.isOpen()                 ? file.errorString()
        : bytes.size() > limit                 ? tr("The message is larger than 1 MiB.")
        : outcome == SmilParser::NotWellFormed ? tr("Line %1, column %2: %3").arg(line).arg(column).arg(error)
        : slides() == 0                        ? tr("The message has no %1.").arg(QLatin1String(missing[outcome]))
                                               : QString();
    m_colours.clear();
    m_background = Qt::white;
    static const QStringList screens{QStringLiteral("root-layout"), QStringLiteral("topLayout")};
    const QDomElement head = root.firstChildElement(QStringLiteral("head"));
    QDomElement e = head.firstChildElement(QStringLiteral("layout")).lastChildElement();
    for (; !e.isNull(); e = e.previousSiblingElement()) { // the first region of an id decides
        const QColor stated = colour(e.attribute(QStringLiteral("background-color")));
        if (e.tagName() == QLatin1String("region")) {
            m_colours[e.attribute(QStringLiteral("id"))] = stated;
        } else if (stated.isValid() && screens.contains(e.tagName())) {
            m_background = stated;
        }
    }
    m_colours.remove(QString()); // nothing is shown in a region without an id

    // A "src" means one of these and nothing else: no other folder, nothing on the network.
    m_files = QDir(folder).entryInfoList(QDir::Files | QDir::NoSymLinks);
    m_parts = SmilParts();
    for (int part = 0; part < m_files.size(); ++part) {
        m_parts.add(part, m_files.at(part).fileName());
    }
    m_slide = -1;
    setPosition(0.0);
}

void Slideshow::setPosition(double seconds)
{
    const QList<double> &slides = m_timeline.slideBegins();
    m_position = seconds > 0.0 ? qMin(seconds, m_timeline.duration()) : 0.0;
    const int slide = qMax(0, int(std::upper_bound(slides.begin(), slides.end(), m_position) - slides.begin()) - 1);
    if (slide != m_slide) {
        m_slide = slide;
        m_cues = m_timeline.cuesBetween(slides.value(slide, qInf()), slides.value(slide + 1, qInf()));
        m_more = qMax(0, int(m_cues.size()) - 32);
        m_cues = m_cues.mid(0, 32);
        Q_EMIT turned();
    }
    const double wait = playing() ? m_timeline.nextChange(m_position) - m_position : qInf();
    qIsFinite(wait) ? m_timer.start(int(1000 * qBound(0.05, wait, 86400.0))) : m_timer.stop();
    Q_EMIT moved();
}

QVariantList Slideshow::shown() const
{
    static const char *const kinds[] = {"Text", "Picture", "Sound", "Film", "Part"};
    const SmilScreen screen(m_layout);
    QVariantList all;
    double last = m_slide == slides() - 1 ? 0.0 : qInf(); // what ends then is left standing
    for (const SmilCue &cue : m_cues) {
        last = cue.ref.type == SmilRef::Audio ? last : qMax(last, cue.end);
    }
    for (const SmilCue &cue : m_cues) {
        const QFileInfo part = m_files.value(m_parts.find(cue.ref.src));
        const QString path = part.absoluteFilePath(); // empty when the part is missing
        QFile file(path);
        const bool text = cue.ref.type == SmilRef::Text && !path.isEmpty() && file.open(QIODevice::ReadOnly);
        const bool picture = (cue.ref.type == SmilRef::Img || cue.ref.type == SmilRef::Ref) && isPicture(path);
        const QColor stated = colour(cue.params.value(QStringLiteral("background-color")));
        const QColor area = stated.isValid() ? stated : m_colours.value(cue.ref.region);
        const QColor paper = area.isValid() ? area : m_background;
        const QColor ink = colour(cue.params.value(QStringLiteral("foreground-color")));
        const int light = qGray(paper.rgb());
        const bool legible = ink.isValid() && qAbs(qGray(ink.rgb()) - light) > 80;
        QVariantMap map;
        map[QStringLiteral("kind")] = QLatin1String(kinds[cue.ref.type]);
        map[QStringLiteral("name")] = path.isEmpty() ? tr("%1 (missing)").arg(cue.ref.src.left(99)) : part.fileName();
        map[QStringLiteral("alt")] = cue.alt;
        map[QStringLiteral("text")] = text ? QString::fromUtf8(file.read(32 * 1024 / m_cues.size())) : QString();
        map[QStringLiteral("source")] = picture ? QUrl::fromLocalFile(path) : QUrl();
        map[QStringLiteral("fit")] = m_layout.regions.value(screen.regionIndex(cue.ref.region)).fit;
        map[QStringLiteral("filled")] = area.isValid();
        map[QStringLiteral("paper")] = paper;
        map[QStringLiteral("ink")] = legible ? ink : QColor(light > 127 ? Qt::black : Qt::white);
        map[QStringLiteral("begin")] = cue.begin;
        map[QStringLiteral("end")] = cue.end < last ? cue.end : qInf();
        all.append(map);
    }
    return all;
}

QVariantMap Slideshow::screen(const QSizeF &window) const
{
    // A phone of the window's shape, as wide as those that messages are made for.
    const SmilScreen screen(m_layout, window * (240.0 / qMin(window.width(), window.height())));
    const QRectF all(QPointF(), screen.size()); // which may be so small that the zoom would be infinite
    const double zoom = qBound(0.0, qMin(window.width() / all.width(), window.height() / all.height()), 1e6);
    const QPointF corner = QRectF(QPointF(), window - zoom * all.size()).center();
    QVariantList areas;
    for (const QRectF &place : screen.rects(m_cues)) { // which may be too far out to be enlarged
        const QRectF seen = place.intersected(all);
        areas.append(QRectF(corner + zoom * seen.topLeft(), zoom * seen.size()));
    }
    return QVariantMap{std::make_pair(QStringLiteral("areas"), QVariant(areas)),
                       std::make_pair(QStringLiteral("zoom"), QVariant(zoom))};
}
