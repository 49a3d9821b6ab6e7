#ifndef VAMO_CONTROLWND_CHART_PANE_H_
#define VAMO_CONTROLWND_CHART_PANE_H_

#include <optional>
#include <string>
#include <vector>

#include "controlwnd/interval_chart.h"
#include "toolkit/window/pane.h"

namespace vamo {

// The pane with the chart of the interval. It follows the calculation, not the model, because an
// activation resets the model but not the results, and the chart must agree with the results.
class ChartPane : public Pane {
 public:
  using Pane::Pane;

  // A calculation has begun.
  void Follow(const Calculation& calculation) {
    last_ = calculation;
    Changed();
  }

  Drawing Draw(double width, double height) const override {
    return DrawIntervalChart(last_, width, height);
  }
  std::string Description() const override { return DescribeIntervalChart(last_); }
  std::vector<std::vector<std::string>> Table() const override {
    return TabulateIntervalChart(last_);
  }

 private:
  std::optional<Calculation> last_;
};

}  // namespace vamo

#endif  // VAMO_CONTROLWND_CHART_PANE_H_
