#ifndef VAMO_DISPLAYS_WEB_READING_ORDER_H_
#define VAMO_DISPLAYS_WEB_READING_ORDER_H_

#include <cstddef>
#include <vector>

#include "toolkit/style.h"

namespace vamo {

// Things that follow each other as one reads: a single one, or blocks beside or below each other.
struct Block {
  bool beside = false;
  std::vector<Block> parts = {};
  // Where there are no parts, the number of the box.
  std::size_t box = 0;
};

// The order in which one reads boxes that are placed like this: row by row, from the left, and a
// column that stands in a row from above. There is at least one.
Block InReadingOrder(const std::vector<Bounds>& boxes);

}  // namespace vamo

#endif  // VAMO_DISPLAYS_WEB_READING_ORDER_H_
