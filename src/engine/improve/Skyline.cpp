#include "engine/improve/Skyline.h"

#include <algorithm>

namespace tarn {

namespace {

template <typename T>
auto At(std::vector<T>& values, std::size_t i) {
    return values.begin() + static_cast<std::ptrdiff_t>(i);
}

} // namespace

void Skyline::Reset(Long width) {
    x_.assign(1, 0);
    y_.assign(1, 0);
    width_.assign(1, width);
}

Gap Skyline::Lowest() const {
    const auto lowest = std::min_element(y_.begin(), y_.end());
    const auto i = static_cast<std::size_t>(lowest - y_.begin());
    return {i,
            x_[i],
            y_[i],
            width_[i],
            i > 0 ? y_[i - 1] - y_[i] : NoWall,
            i + 1 < y_.size() ? y_[i + 1] - y_[i] : NoWall};
}

Long Skyline::Place(const Gap& gap, bool atLeft, Long width, Long length) {
    const std::size_t i = gap.Segment;
    const Long x = atLeft ? gap.X : gap.X + gap.Width - width;
    if (width == gap.Width) {
        y_[i] += length;
        JoinWithNeighbours(i);
        return x;
    }
    // The piece becomes a segment of its own beside what is left of the gap.
    const std::size_t piece = atLeft ? i : i + 1;
    x_.insert(At(x_, i), gap.X);
    y_.insert(At(y_, i), gap.Y);
    width_.insert(At(width_, i), gap.Width);
    x_[piece] = x;
    y_[piece] = gap.Y + length;
    width_[piece] = width;
    const std::size_t rest = atLeft ? i + 1 : i;
    x_[rest] = atLeft ? gap.X + width : gap.X;
    width_[rest] = gap.Width - width;
    JoinWithNeighbours(piece);
    return x;
}

void Skyline::Raise(const Gap& gap, Long height) {
    y_[gap.Segment] += height;
    JoinWithNeighbours(gap.Segment);
}

void Skyline::JoinWithNeighbours(std::size_t segment) {
    if (segment + 1 < y_.size() && y_[segment + 1] == y_[segment]) {
        width_[segment] += width_[segment + 1];
        Erase(segment + 1);
    }
    if (segment > 0 && y_[segment - 1] == y_[segment]) {
        width_[segment - 1] += width_[segment];
        Erase(segment);
    }
}

void Skyline::Erase(std::size_t segment) {
    x_.erase(At(x_, segment));
    y_.erase(At(y_, segment));
    width_.erase(At(width_, segment));
}

} // namespace tarn
