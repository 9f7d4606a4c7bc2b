// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include <smilparser/smilslideshow.h>

class SmilSlideData : public QSharedData
{
};

SmilSlide::SmilSlide()
    : begin(0.0)
    , end(0.0)
{
}

SmilSlide::SmilSlide(const SmilSlide &other) = default;
SmilSlide::SmilSlide(SmilSlide &&other) noexcept = default;
SmilSlide &SmilSlide::operator=(const SmilSlide &other) = default;
SmilSlide &SmilSlide::operator=(SmilSlide &&other) noexcept = default;
SmilSlide::~SmilSlide() = default;

bool SmilSlide::operator==(const SmilSlide &other) const
{
    return begin == other.begin && end == other.end && cues == other.cues && parts == other.parts;
}

bool SmilSlide::operator!=(const SmilSlide &other) const
{
    return !(*this == other);
}
