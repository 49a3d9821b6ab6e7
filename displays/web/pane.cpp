#include "displays/web/pane.h"

#include <chrono>
#include <cmath>
#include <cstddef>
#include <string>
#include <utility>
#include <variant>

#include "displays/web/control.h"
#include "toolkit/runtime/runtime.h"

namespace vamo {
namespace {

// Laying out the table at each step of a drag would double the cost of the step. So it follows a
// little later and is marked as busy until then.
constexpr std::chrono::milliseconds kTableFollows{200};

// Adds a number with two decimals. This runs many times at each step of a drag.
void AddNumber(std::string& text, double number) {
  const long long hundredths = std::llround(number * 100);
  const long long size = hundredths < 0 ? -hundredths : hundredths;
  if (hundredths < 0) text += '-';
  text += std::to_string(size / 100);
  if (size % 100 == 0) return;
  text += '.';
  text += static_cast<char>('0' + size / 10 % 10);
  if (size % 10 != 0) text += static_cast<char>('0' + size % 10);
}

std::string NumberText(double number) {
  std::string text;
  AddNumber(text, number);
  return text;
}

void AddPoint(std::string& path, char command, Drawing::Point point) {
  path += command;
  AddNumber(path, point.x);
  path += ' ';
  AddNumber(path, point.y);
}

std::string PathText(const std::vector<Drawing::Point>& points) {
  std::string path;
  path.reserve(points.size() * 14);
  for (const Drawing::Point& point : points) AddPoint(path, path.empty() ? 'M' : 'L', point);
  return path;
}

// Shows a mark in its element.
class MarkShower {
 public:
  MarkShower(PageElement& element, Colour background)
      : element_(element), background_(background) {}

  void operator()(const Drawing::Line& line) const {
    ShowPath(PathText({line.from, line.to}), line.pen);
    // A horizontal or vertical line covers whole pixels.
    element_.SetAttribute("shape-rendering", "crispEdges");
  }
  void operator()(const Drawing::Polyline& line) const {
    ShowPath(PathText(line.points), line.pen);
  }
  void operator()(const Drawing::Polygon& polygon) const {
    element_.SetAttribute("d", PathText(polygon.points) + 'Z');
    element_.SetAttribute("fill", ToCss(polygon.fill));
  }
  void operator()(const Drawing::Dot& dot) const {
    element_.SetAttribute("cx", NumberText(dot.middle.x));
    element_.SetAttribute("cy", NumberText(dot.middle.y));
    element_.SetAttribute("r", NumberText(dot.radius));
    element_.SetAttribute("fill", ToCss(dot.fill));
    element_.SetAttribute("stroke", ToCss(background_));
    element_.SetAttribute("stroke-width", NumberText(dot.rim));
  }
  void operator()(const Drawing::Text& text) const {
    element_.SetAttribute("x", NumberText(text.base.x));
    element_.SetAttribute("y", NumberText(text.base.y));
    const bool centred = text.alignment == TextAlignment::kCentre;
    const bool at_end = text.alignment == TextAlignment::kRight;
    element_.SetAttribute("text-anchor", centred ? "middle" : at_end ? "end" : "start");
    element_.SetAttribute("font-size", NumberText(text.size));
    element_.SetAttribute("font-weight", text.bold ? "bold" : "normal");
    element_.SetAttribute("fill", ToCss(text.colour));
    element_.SetAttribute("stroke", ToCss(background_));
    element_.SetAttribute("stroke-width", NumberText(Drawing::Text::kHalo));
    element_.SetText(text.text);
  }

 private:
  void ShowPath(const std::string& path, const Drawing::Pen& pen) const {
    element_.SetAttribute("d", path);
    element_.SetAttribute("fill", "none");
    element_.SetAttribute("stroke", ToCss(pen.colour));
    element_.SetAttribute("stroke-width", NumberText(pen.width));
    if (pen.gap > 0) {
      element_.SetAttribute("stroke-dasharray", NumberText(pen.dash) + ' ' + NumberText(pen.gap));
    } else {
      element_.RemoveAttribute("stroke-dasharray");
    }
  }

  PageElement& element_;
  const Colour background_;
};

std::string_view TagOf(const Drawing::Mark& mark) {
  if (std::holds_alternative<Drawing::Dot>(mark)) return "circle";
  return std::holds_alternative<Drawing::Text>(mark) ? "text" : "path";
}

}  // namespace

WebPane::WebPane(const PageElement& parent, const Pane& pane, double height)
    : pane_(pane),
      height_(height),
      box_(parent, "div"),
      picture_(box_, "svg"),
      table_(box_, "table") {
  box_.SetAttribute("class", "pane");
  box_.SetFlag("hidden", true);
  picture_.SetAttribute("role", "img");
  picture_.SetAttribute("aria-label", Pane::kName);
  picture_.SetAttribute("viewBox", "0 0 " + NumberText(Pane::kWidth) + ' ' + NumberText(height));
  table_.SetAttribute("class", "unseen");
  table_.SetAttribute("aria-label", Pane::kName);
}

void WebPane::Update() {
  box_.SetFlag("hidden", !pane_.IsOpen());
  if (!pane_.IsOpen()) return;
  ShowDrawing(pane_.Draw(Pane::kWidth, height_));
  picture_.SetAttribute("aria-description", pane_.Description());
  table_.SetAttribute("aria-busy", "true");
  if (table_timer_ != nullptr) return;
  table_timer_ = Runtime::Current().Display().StartTimer(kTableFollows, [this] {
    table_timer_ = nullptr;
    ShowTable();
  });
}

// Most marks do not change. A mark of the same kind keeps its element; from the first mark of
// another kind on, all elements are created again.
void WebPane::ShowDrawing(Drawing drawing) {
  picture_.SetStyle("background-color", ToCss(drawing.background));
  for (std::size_t i = 0; i < drawing.marks.size(); ++i) {
    const Drawing::Mark& mark = drawing.marks[i];
    if (i < marks_.size() && drawing_.marks[i].index() != mark.index()) marks_.resize(i);
    const bool is_new = i == marks_.size();
    if (is_new) marks_.push_back(std::make_unique<PageElement>(picture_, TagOf(mark)));
    if (is_new || drawing_.marks[i] != mark)
      std::visit(MarkShower(*marks_[i], drawing.background), mark);
  }
  marks_.resize(drawing.marks.size());
  drawing_ = std::move(drawing);
}

void WebPane::ShowTable() {
  const std::vector<std::vector<std::string>> rows = pane_.Table();
  table_.SetFlag("hidden", rows.empty());
  table_.RemoveAttribute("aria-busy");
  std::size_t cell = 0;
  for (std::size_t row = 0; row < rows.size(); ++row) {
    if (row == rows_.size()) rows_.push_back(std::make_unique<PageElement>(table_, "tr"));
    for (const std::string& text : rows[row]) {
      if (cell == cells_.size()) {
        cells_.push_back(std::make_unique<PageElement>(*rows_[row], row == 0 ? "th" : "td"));
      }
      cells_[cell++]->SetText(text);
    }
  }
}

}  // namespace vamo
