// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "smilparser/model/duration.h"
#include "smilparser/model/slots.h"

#include <smilparser/smilslideshow.h>

#include <algorithm>
#include <tuple>
#include <vector>

class SmilSlideshowData : public QSharedData
{
public:
    /** A slide of parts that no slide of the SMIL shows: some in a row in the list of them. */
    struct LeftSlide {
        double begin;
        double end;
        int first;
        int count;
    };

    QList<SmilPart> parts;
    SmilParts names;
    SmilLayout layout;
    SmilScreen screen;
    SmilTimeline timeline;
    QString title;
    std::vector<int> left; ///< the parts that no slide of the SMIL shows
    std::vector<LeftSlide> leftSlides;
    SmilParser::Outcome outcome = SmilParser::NotWellFormed;
    QString error;
    int errorLine = 0;
    int errorColumn = 0;
};

static SmilParts namesOf(const QList<SmilPart> &parts)
{
    SmilParts names;
    for (QString SmilPart::*const name : {&SmilPart::contentId, &SmilPart::location, &SmilPart::name}) {
        for (int i = 0; i < int(parts.size()); ++i) {
            names.add(i, parts.at(i).*name);
        }
    }
    return names;
}

static QString titleOf(const SmilHeader &header)
{
    if (!header.title.isEmpty()) {
        return header.title;
    }
    const auto isTitle = [](const SmilMeta &meta) {
        return meta.name.compare(QLatin1String("title"), Qt::CaseInsensitive) == 0;
    };
    const auto meta = std::find_if(header.metas.begin(), header.metas.end(), isTitle);
    return meta != header.metas.end() && !meta->content.isEmpty() ? meta->content : QString();
}

/** The part of each of @p cues. */
static std::vector<int> partsOf(const QList<SmilCue> &cues, const SmilParts &names)
{
    std::vector<int> parts;
    for (const SmilCue &cue : cues) {
        parts.push_back(names.find(cue.ref.src));
    }
    return parts;
}

/** The parts that are no SMIL and that nothing on the timeline shows. */
static std::vector<int> findLeft(const SmilSlideshowData &show)
{
    std::vector<bool> shown(show.parts.size());
    const QList<SmilCue> cues = show.timeline.cues();
    for (const SmilCue &cue : cues) {
        const int part = cue.begin < cue.end ? show.names.find(cue.ref.src) : -1;
        if (part >= 0) {
            shown[part] = true;
        }
    }
    std::vector<int> left;
    for (int i = 0; i < int(show.parts.size()); ++i) {
        if (!shown[i] && !show.parts.at(i).isSmil()) {
            left.push_back(i);
        }
    }
    return left;
}

/** Puts what is left on slides, as SmilComposer would. */
static void addLeftSlides(SmilSlideshowData &show, double slideDuration, const std::function<double(int)> &length)
{
    double begin = show.timeline.slideBegins().isEmpty() ? 0 : show.timeline.duration();
    Slots taken = 0;
    double longest = 0;
    const auto endSlide = [&] {
        if (!show.leftSlides.empty()) {
            begin += longest > 0 ? longest : slideDuration;
            show.leftSlides.back().end = begin;
        }
    };
    for (int i = 0; i < int(show.left.size()); ++i) {
        const int part = show.left[i];
        const SmilRef::Type kind = show.parts.at(part).kind();
        const Slots slots = slotsOf(kind);
        if (show.leftSlides.empty() || (taken & slots)) {
            endSlide();
            show.leftSlides.push_back({begin, begin, i, 0});
            taken = 0;
            longest = 0;
        }
        const double known = length ? length(part) : 0;
        longest = std::max(longest, isDuration(known) ? known : kind == SmilRef::Audio ? 0 : slideDuration);
        taken |= slots;
        ++show.leftSlides.back().count;
    }
    endSlide();
}

static SmilCue cueOf(const SmilPart &part, const SmilSlideshowData::LeftSlide &slide)
{
    SmilCue cue;
    cue.ref.type = part.kind();
    for (const QString &name : {part.contentId, part.location, part.name}) {
        cue.ref.src = cue.ref.src.isEmpty() ? name : cue.ref.src;
    }
    cue.begin = slide.begin;
    cue.end = slide.end;
    return cue;
}

/** Puts @p slide in reading order, with @p parts, which has the part of each of its cues. */
static void arrange(SmilSlide &slide, const std::vector<int> &parts, const SmilScreen &screen)
{
    const QList<SmilCue> cues = slide.cues;
    const QList<QRectF> rects = screen.rects(cues);
    std::vector<int> order(cues.size());
    for (int i = 0; i < int(order.size()); ++i) {
        order[i] = i;
    }
    std::stable_sort(order.begin(), order.end(), [&](int a, int b) {
        const auto key = [&](int i) {
            return std::make_tuple(cues.at(i).ref.type == SmilRef::Audio, rects.at(i).y(), rects.at(i).x());
        };
        return key(a) < key(b);
    });
    slide.cues.clear();
    for (const int i : order) {
        slide.cues.append(cues.at(i));
        slide.parts.append(parts[i]);
    }
}

SmilSlideshow::SmilSlideshow()
    : d(new SmilSlideshowData)
{
}

SmilSlideshow::SmilSlideshow(const QByteArray &smil, const QList<SmilPart> &parts, SmilParser::ReadOptions options,
                             double slideDuration, const std::function<double(int)> &length)
    : d(new SmilSlideshowData)
{
    SmilSlideshowData &show = *d;
    slideDuration = isDuration(slideDuration) ? slideDuration : 5;
    show.parts = parts;
    show.names = namesOf(parts);
    if (!smil.isEmpty()) {
        SmilParser parser(smil);
        const SmilHeader header =
            parser.parse(options, &show.outcome, &show.error, &show.errorLine, &show.errorColumn).header;
        show.layout = header.layout;
        show.title = titleOf(header);
        std::function<double(const SmilRef &)> lengthOfRef;
        if (length) {
            lengthOfRef = [&](const SmilRef &ref) {
                const int part = show.names.find(ref.src);
                return part < 0 ? 0 : length(part);
            };
        }
        show.timeline = SmilTimeline(parser.dom().documentElement(), slideDuration, lengthOfRef);
    }
    show.screen = SmilScreen(show.layout);
    show.left = findLeft(show);
    addLeftSlides(show, slideDuration, length);
}

SmilSlideshow::SmilSlideshow(const SmilSlideshow &other) = default;
SmilSlideshow::SmilSlideshow(SmilSlideshow &&other) noexcept = default;
SmilSlideshow &SmilSlideshow::operator=(const SmilSlideshow &other) = default;
SmilSlideshow &SmilSlideshow::operator=(SmilSlideshow &&other) noexcept = default;
SmilSlideshow::~SmilSlideshow() = default;

int SmilSlideshow::count() const
{
    return int(d->timeline.slideBegins().size()) + int(d->leftSlides.size());
}

SmilSlide SmilSlideshow::slide(int index) const
{
    SmilSlide slide;
    std::vector<int> parts;
    const QList<double> begins = d->timeline.slideBegins();
    const int read = int(begins.size());
    if (index < 0 || index >= count()) {
        return slide;
    }
    if (index < read) {
        slide.begin = begins.at(index);
        slide.end = begins.value(index + 1, d->timeline.duration());
        slide.cues = d->timeline.cuesOnSlide(index);
        parts = partsOf(slide.cues, d->names);
    } else {
        const SmilSlideshowData::LeftSlide &left = d->leftSlides[index - read];
        slide.begin = left.begin;
        slide.end = left.end;
        parts.assign(d->left.begin() + left.first, d->left.begin() + left.first + left.count);
        for (const int part : parts) {
            slide.cues.append(cueOf(d->parts.at(part), left));
        }
    }
    arrange(slide, parts, d->screen);
    return slide;
}

double SmilSlideshow::duration() const
{
    if (!d->leftSlides.empty()) {
        return d->leftSlides.back().end;
    }
    return d->timeline.slideBegins().isEmpty() ? 0 : d->timeline.duration();
}

SmilLayout SmilSlideshow::layout() const
{
    return d->layout;
}

QString SmilSlideshow::title() const
{
    return d->title;
}

QString SmilSlideshow::background() const
{
    return d->timeline.background();
}

SmilParser::Outcome SmilSlideshow::outcome() const
{
    return d->outcome;
}

QString SmilSlideshow::error() const
{
    return d->error;
}

int SmilSlideshow::errorLine() const
{
    return d->errorLine;
}

int SmilSlideshow::errorColumn() const
{
    return d->errorColumn;
}

bool SmilSlideshow::operator==(const SmilSlideshow &other) const
{
    if (d == other.d) {
        return true;
    }
    const auto plain = [](const SmilSlideshowData &show) {
        return std::tie(show.outcome, show.error, show.errorLine, show.errorColumn, show.title, show.layout);
    };
    // What never plays is on no slide, and without slides the timeline may have a duration that nobody sees.
    const QList<SmilCue> cues = d->timeline.cuesBetween(-qInf(), qInf());
    bool same = count() == other.count() && duration() == other.duration() && background() == other.background()
        && plain(*d) == plain(*other.d) && d->timeline.slideBegins() == other.d->timeline.slideBegins()
        && cues == other.d->timeline.cuesBetween(-qInf(), qInf())
        && partsOf(cues, d->names) == partsOf(cues, other.d->names);
    for (int i = int(d->timeline.slideBegins().size()); same && i < count(); ++i) {
        same = slide(i) == other.slide(i);
    }
    return same;
}

bool SmilSlideshow::operator!=(const SmilSlideshow &other) const
{
    return !(*this == other);
}
