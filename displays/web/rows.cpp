#include "displays/web/rows.h"

#include <algorithm>
#include <cstddef>

namespace vamo {
namespace {

struct Row {
  std::int64_t top;
  std::int64_t bottom;
};

// From above.
std::vector<Row> RowsOf(const std::vector<Bounds>& boxes) {
  std::vector<Row> rows;
  for (const Bounds& box : boxes) {
    Row row{box.top, box.top + box.height};
    const auto beside = std::stable_partition(rows.begin(), rows.end(), [&](const Row& other) {
      return other.bottom <= row.top || row.bottom <= other.top;
    });
    for (auto other = beside; other != rows.end(); ++other) {
      row = {std::min(row.top, other->top), std::max(row.bottom, other->bottom)};
    }
    rows.erase(beside, rows.end());
    rows.push_back(row);
  }
  std::sort(rows.begin(), rows.end(), [](const Row& a, const Row& b) { return a.top < b.top; });
  return rows;
}

}  // namespace

SpacedRows SpaceRows(const std::vector<Bounds>& boxes, std::int64_t height) {
  SpacedRows spaced;
  const std::vector<Row> rows = RowsOf(boxes);
  std::int64_t free = height - (rows.empty() ? 0 : rows.front().top);
  for (const Row& row : rows) free -= row.bottom - row.top;
  const bool moves = rows.size() > 1 && free > 0;
  const double gap =
      moves ? static_cast<double>(free) / (static_cast<double>(rows.size()) - 0.5) : 0;
  for (std::size_t i = 1; moves && i < rows.size(); ++i) {
    const auto height_of = [&](const Row& row) {
      return static_cast<double>(row.bottom - row.top);
    };
    const double pitch = gap + (height_of(rows[i - 1]) + height_of(rows[i])) / 2;
    spaced.pitch = i == 1 ? pitch : std::min(spaced.pitch, pitch);
  }
  for (const Bounds& box : boxes) {
    auto top = static_cast<double>(box.top);
    double shift = 0;
    for (std::size_t i = 1; moves && i < rows.size() && rows[i].top <= box.top; ++i) {
      shift += gap - static_cast<double>(rows[i].top - rows[i - 1].bottom);
    }
    spaced.tops.push_back(top + shift);
  }
  return spaced;
}

}  // namespace vamo
