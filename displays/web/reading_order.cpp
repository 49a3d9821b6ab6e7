#include "displays/web/reading_order.h"

#include <algorithm>
#include <cstdint>
#include <functional>
#include <numeric>

namespace vamo {
namespace {

// Boxes that overlap by no more than this count as separate.
constexpr std::int64_t kTolerance = 4;

using Numbers = std::vector<std::size_t>;

// The overlap of two ranges; 0 or less if they are separate.
std::int64_t Overlap(std::int64_t a, std::int64_t a_length, std::int64_t b, std::int64_t b_length) {
  return std::min(a + a_length, b + b_length) - std::max(a, b);
}

bool SameRow(const Bounds& a, const Bounds& b) {
  return Overlap(a.top, a.height, b.top, b.height) > kTolerance;
}

// Whether one box is above the other in a column.
bool SameColumn(const Bounds& a, const Bounds& b) {
  const std::int64_t in_height = Overlap(a.top, a.height, b.top, b.height);
  return Overlap(a.left, a.width, b.left, b.width) > kTolerance &&
         2 * in_height < std::min(a.height, b.height);
}

// The sets of numbers that belong together, directly or through others, in the order of their first
// members.
std::vector<Numbers> Gathered(const Numbers& numbers,
                              const std::function<bool(std::size_t, std::size_t)>& together) {
  std::vector<Numbers> sets;
  for (const std::size_t number : numbers) {
    Numbers joined;
    std::erase_if(sets, [&](Numbers& set) {
      const bool joins = std::any_of(set.begin(), set.end(),
                                     [&](std::size_t other) { return together(number, other); });
      if (joins) joined.insert(joined.end(), set.begin(), set.end());
      return joins;
    });
    joined.push_back(number);
    sets.push_back(std::move(joined));
  }
  return sets;
}

Block Ordered(const std::vector<Bounds>& boxes, Numbers numbers) {
  if (numbers.size() == 1) return {.box = numbers.front()};
  const auto by = [&](std::int64_t Bounds::*start) {
    std::stable_sort(numbers.begin(), numbers.end(), [&](std::size_t a, std::size_t b) {
      return boxes[a].*start < boxes[b].*start;
    });
  };
  by(&Bounds::top);
  std::vector<Numbers> sets =
      Gathered(numbers, [&](std::size_t a, std::size_t b) { return SameRow(boxes[a], boxes[b]); });
  Block block;
  if (sets.size() == 1) {
    by(&Bounds::left);
    sets = Gathered(numbers,
                    [&](std::size_t a, std::size_t b) { return SameColumn(boxes[a], boxes[b]); });
    block.beside = sets.size() > 1;
  }
  for (const Numbers& set : sets) {
    // Boxes that cannot be separated stay in their order.
    if (sets.size() == 1) {
      for (const std::size_t number : numbers) block.parts.push_back({.box = number});
    } else {
      block.parts.push_back(Ordered(boxes, set));
    }
  }
  return block;
}

}  // namespace

Block InReadingOrder(const std::vector<Bounds>& boxes) {
  Numbers numbers(boxes.size());
  std::iota(numbers.begin(), numbers.end(), std::size_t{0});
  return Ordered(boxes, std::move(numbers));
}

}  // namespace vamo
