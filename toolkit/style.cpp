#include "toolkit/style.h"

#include <algorithm>

namespace vamo {
namespace {

// Stretched, in one dimension.
void Stretch(std::int64_t& begin, std::int64_t& length, std::int64_t growth, bool begin_locked,
             bool end_locked) {
  if (!end_locked) return;
  if (begin_locked) {
    length = std::max<std::int64_t>(0, length + growth);
  } else {
    begin += growth;
  }
}

}  // namespace

Bounds Stretched(const Bounds& bounds, const Locks& locks, std::int64_t wider,
                 std::int64_t taller) {
  Bounds stretched = bounds;
  Stretch(stretched.left, stretched.width, wider, locks.left, locks.right);
  Stretch(stretched.top, stretched.height, taller, locks.top, locks.bottom);
  return stretched;
}

}  // namespace vamo
