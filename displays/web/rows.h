#ifndef VAMO_DISPLAYS_WEB_ROWS_H_
#define VAMO_DISPLAYS_WEB_ROWS_H_

#include <cstdint>
#include <vector>

#include "toolkit/style.h"

namespace vamo {

// Where things lie that a finger is to hit: what is free between their rows is shared out evenly,
// and half as much below the last one.
struct SpacedRows {
  // Of each box, in logical pixels.
  std::vector<double> tops;
  // From the middle of a row to that of the next one where they are the closest; 0 for a single
  // row.
  double pitch = 0;
};

// `boxes` are the places as designed, in a window of that height. Boxes that are beside each other
// are one row. A single row stays where it is.
SpacedRows SpaceRows(const std::vector<Bounds>& boxes, std::int64_t height);

}  // namespace vamo

#endif  // VAMO_DISPLAYS_WEB_ROWS_H_
