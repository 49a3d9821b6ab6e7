#include "displays/headless/window.h"

#include <utility>

#include "toolkit/control/canvas.h"
#include "toolkit/control/label.h"
#include "toolkit/control/push_button.h"
#include "toolkit/control/rectangle.h"
#include "toolkit/control/slider.h"
#include "toolkit/text/text_area.h"
#include "toolkit/text/text_field.h"
#include "toolkit/window/pane.h"
#include "toolkit/window/window.h"

namespace vamo {
namespace {

// Copies the state that is specific to one class of control.
void CopyOwn(const Canvas& /*canvas*/, ShownControl& /*shown*/) {}

void CopyOwn(const Rectangle& /*rectangle*/, ShownControl& /*shown*/) {}

void CopyOwn(const Label& label, ShownControl& shown) {
  shown.text = label.Text();
  if (shown.name.empty()) shown.name = shown.text;
}

void CopyOwn(const PushButton& button, ShownControl& shown) {
  shown.role = Role::kButton;
  shown.text = button.Caption();
}

void CopyOwn(const Slider& slider, ShownControl& shown) {
  shown.role = Role::kSlider;
  shown.position = slider.Value();
  shown.value = slider.InUnits(shown.position);
}

void CopyOwn(const TextEdit& text, ShownControl& shown) {
  shown.role = Role::kText;
  shown.text = text.Text();
  shown.selected_text = text.SelectedText();
}

}  // namespace

HeadlessControl::HeadlessControl(HeadlessWindow& window, AnyControl control)
    : window_(window),
      any_(control),
      control_(*std::visit([](auto* one) -> RectControl* { return one; }, control)) {
  window_.controls_.push_back(this);
  shown_ = Present();
}

HeadlessControl::~HeadlessControl() { std::erase(window_.controls_, this); }

ShownControl HeadlessControl::Present() const {
  ShownControl present;
  present.name = control_.AccessibleName();
  present.description = control_.AccessibleDescription();
  const Ref<Label> caption = control_.LabelledBy();
  present.labelled_by = caption ? caption->Text() : "";
  present.visible = control_.Visible();
  present.enabled = control_.Enabled();
  std::visit([&](const auto* one) { CopyOwn(*one, present); }, any_);
  return present;
}

HeadlessWindow::HeadlessWindow(HeadlessDisplay& display, vamo::Window& window)
    : display_(display), window_(window) {
  display_.order_.Add(*this);
}

HeadlessWindow::~HeadlessWindow() { display_.order_.Remove(*this); }

std::unique_ptr<ControlView> HeadlessWindow::CreateControl(AnyControl control) {
  return std::make_unique<HeadlessControl>(*this, control);
}

void HeadlessWindow::Show(bool activate) {
  on_screen_ = true;
  // A desktop activates a window some time after the program has asked for it, not during the call.
  if (activate) display_.order_.Show(*this);
}

ShownControl HeadlessWindow::PresentPane() const {
  const Pane* pane = window_.SidePane();
  if (pane == nullptr || !pane->IsOpen()) return {};
  ShownControl present;
  present.role = Role::kChart;
  present.name = Pane::kName;
  present.description = pane->Description();
  present.text = present.name;
  present.visible = present.enabled = true;
  return present;
}

bool HeadlessWindow::ShowPane() {
  const Pane& pane = *window_.SidePane();
  if (pane.IsOpen() && !display_.has_room_for_panes_) return false;
  ++pane_showings_;
  pane_ = PresentPane();
  const auto height = static_cast<double>(window_.InitialState().height);
  pane_drawing_ = pane.IsOpen() ? pane.Draw(Pane::kWidth, height) : Drawing{};
  return true;
}

void HeadlessWindow::UpdateFocus() { focus_ = window_.Focus() ? &*window_.Focus() : nullptr; }

const HeadlessControl* HeadlessWindow::Focus() const {
  for (const HeadlessControl* control : controls_) {
    if (&control->Control() == focus_) return control;
  }
  return nullptr;
}

HeadlessTimer::HeadlessTimer(HeadlessDisplay& display, std::chrono::milliseconds period,
                             std::function<void()> fire)
    : display_(display), period_(period), due_(display.now_ + period), fire_(std::move(fire)) {
  display_.timers_.push_back(this);
}

HeadlessTimer::~HeadlessTimer() { std::erase(display_.timers_, this); }

void HeadlessTimer::Fire() {
  due_ += period_;
  const std::function<void()> fire = fire_;
  fire();
}

}  // namespace vamo
