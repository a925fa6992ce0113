#pragma once

#include "app/RunTimeError.h"

#include <algorithm>
#include <cstddef>
#include <vector>

namespace tarn {

/// A zero-based array whose upper bound is set once and never grows. Every access is checked: an
/// index outside 0 .. UpperBound() raises "Subscript out of range".
template <typename T>
class BoundedArray {
  public:
    /// An array without elements: every access is out of range.
    BoundedArray() = default;
    /// Elements 0 .. `upper`, each T{}.
    explicit BoundedArray(long long upper)
        : items_(static_cast<std::size_t>(upper + 1)) {}

    /// The last valid index; -1 for an array without elements.
    long long UpperBound() const noexcept { return static_cast<long long>(items_.size()) - 1; }

    T& operator[](long long index) { return items_[Checked(index)]; }
    const T& operator[](long long index) const { return items_[Checked(index)]; }

    /// Set every element to `value`.
    void Fill(const T& value) { std::fill(items_.begin(), items_.end(), value); }

  private:
    std::size_t Checked(long long index) const {
        if (index < 0 || index > UpperBound()) {
            RaiseSubscript();
        }
        return static_cast<std::size_t>(index);
    }

    std::vector<T> items_;
};

/// The same in two dimensions: rows 0 .. `upperRow`, columns 0 .. `upperColumn`.
template <typename T>
class BoundedTable {
  public:
    BoundedTable() = default;
    BoundedTable(long long upperRow, long long upperColumn)
        : columns_(upperColumn + 1)
        , rows_(upperRow + 1)
        , items_((upperRow + 1) * (upperColumn + 1) - 1) {}

    T& operator()(long long row, long long column) { return items_[Flat(row, column)]; }
    const T& operator()(long long row, long long column) const { return items_[Flat(row, column)]; }

  private:
    long long Flat(long long row, long long column) const {
        if (row < 0 || row >= rows_ || column < 0 || column >= columns_) {
            RaiseSubscript();
        }
        return row * columns_ + column;
    }

    long long columns_ = 0;
    long long rows_ = 0;
    BoundedArray<T> items_;
};

} // namespace tarn
