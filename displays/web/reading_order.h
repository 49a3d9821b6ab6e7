#ifndef VAMO_DISPLAYS_WEB_READING_ORDER_H_
#define VAMO_DISPLAYS_WEB_READING_ORDER_H_

#include <cstddef>
#include <vector>

#include "toolkit/style.h"

namespace vamo {

// Boxes in reading order: a single box, or blocks beside or below each other.
struct Block {
  bool beside = false;
  std::vector<Block> parts = {};
  // The number of the box, if there are no parts.
  std::size_t box = 0;
};

// Returns the reading order of boxes with these places: row by row, each from the left, and a
// column within a row from the top. There must be at least one box.
Block InReadingOrder(const std::vector<Bounds>& boxes);

}  // namespace vamo

#endif  // VAMO_DISPLAYS_WEB_READING_ORDER_H_
