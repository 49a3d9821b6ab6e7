// The windows, controls and timers of the display without pixels.
#include "displays/headless/window.h"

#include "toolkit/label.h"
#include "toolkit/push_button.h"
#include "toolkit/runtime.h"
#include "toolkit/slider.h"
#include "toolkit/text_edit.h"

namespace vamo {

HeadlessControl::HeadlessControl(HeadlessWindow& window, RectControl& control)
    : window_(window), control_(control) {
  window_.controls_.push_back(this);
  Update();
}

HeadlessControl::~HeadlessControl() { std::erase(window_.controls_, this); }

void HeadlessControl::Update() {
  shown_.name = control_.AccessibleName();
  shown_.description = control_.AccessibleDescription();
  const Ref<Label> caption = control_.LabelledBy();
  shown_.labelled_by = caption ? caption->Text() : "";
  shown_.visible = control_.Visible();
  shown_.enabled = control_.Enabled();
  if (const auto* text = dynamic_cast<TextEdit*>(&control_)) {
    shown_.role = Role::kText;
    shown_.text = text->Text();
    shown_.selected_text = text->SelectedText();
  } else if (const auto* slider = dynamic_cast<Slider*>(&control_)) {
    shown_.role = Role::kSlider;
    shown_.position = slider->Value();
    shown_.value = slider->InUnits(shown_.position);
  } else if (const auto* button = dynamic_cast<PushButton*>(&control_)) {
    shown_.role = Role::kButton;
    shown_.text = button->Caption();
  } else if (const auto* label = dynamic_cast<Label*>(&control_)) {
    shown_.text = label->Text();
    if (shown_.name.empty()) shown_.name = shown_.text;
  }
}

HeadlessWindow::HeadlessWindow(HeadlessDisplay& display, vamo::Window& window)
    : display_(display), window_(window) {
  display_.windows_.push_back(this);
}

HeadlessWindow::~HeadlessWindow() { std::erase(display_.windows_, this); }

std::unique_ptr<ControlView> HeadlessWindow::CreateControl(RectControl& control) {
  return std::make_unique<HeadlessControl>(*this, control);
}

void HeadlessWindow::Show() {
  on_screen_ = true;
  // A screen activates a window when it comes around to it, not while the program asks for it.
  display_.Post([&display = display_, window = WeakRef(Self(&window_))] {
    const Ref<vamo::Window> shown = Cast<vamo::Window>(window.Value());
    for (HeadlessWindow* view : display.windows_) {
      if (shown && &view->window_ == &*shown && view->on_screen_) return display.Activate(*view);
    }
  });
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
