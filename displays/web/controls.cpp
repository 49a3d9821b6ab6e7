#include "displays/web/controls.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

#include "displays/web/window.h"
#include "toolkit/window/text_room.h"
#include "toolkit/window/window.h"

namespace vamo {
namespace {

// A caption is a label, a result is an output, and any other text is a span.
std::string_view TagOf(const Label& label) {
  for (const Ref<RectControl>& control : label.Window()->Controls()) {
    if (control->IsLabelledBy(label)) return "label";
  }
  return label.AccessibleDescription().empty() ? "span" : "output";
}

}  // namespace

WebCanvas::WebCanvas(WebWindow& window, Canvas& canvas)
    : WebControl(window, canvas, "img"), canvas_(canvas) {
  // The picture says nothing that the texts do not.
  Element().SetAttribute("alt", "");
  Update();
}

void WebCanvas::ShowState() {
  const Ref<Picture>& backdrop = canvas_.Backdrop();
  const auto* picture = backdrop ? dynamic_cast<WebPicture*>(backdrop->Image().get()) : nullptr;
  if (picture == nullptr) return Element().SetFlag("hidden", true);
  Element().ShowPicture(picture->Name());
}

WebRectangle::WebRectangle(WebWindow& window, Rectangle& rectangle)
    : WebControl(window, rectangle, "div") {
  // A side of the border must not vanish if a unit is shorter than a pixel.
  const double thickness = std::max(0.0, rectangle.BorderThickness());
  const std::string width =
      (thickness > 0 ? "max(1px, " + Units(thickness) + ")" : "0") + " solid ";
  const std::string light = width + ToCss(rectangle.TopLeftColour());
  const std::string dark = width + ToCss(rectangle.BottomRightColour());
  Element().SetStyle("border-top", light);
  Element().SetStyle("border-left", light);
  Element().SetStyle("border-bottom", dark);
  Element().SetStyle("border-right", dark);
  Element().SetStyle("background-color", ToCss(rectangle.FillColour()));
  Update();
}

WebLabel::WebLabel(WebWindow& window, Label& label)
    : WebControl(window, label, TagOf(label)), label_(label) {
  // An output would be spoken at every step of a drag; the toolkit decides what is announced. No
  // other element is spoken by itself.
  Element().SetAttribute("aria-live", "off");
  // The designed sizes of small print and of headings.
  constexpr float kSmall = 10;
  constexpr float kLarge = 20;
  const float size = label.Font().size;
  Element().SetAttribute("class", "control text " + std::string(ClassOf(label.Alignment())) +
                                      (size < kSmall   ? " small"
                                       : size > kLarge ? " large"
                                                       : ""));
  Element().SetStyle("color", ToCss(Legible(label.TextColour())));
  SetFont(label.Font());
  Update();
}

void WebLabel::ShowState() {
  if (Element().SetText(label_.Text())) Fit();
}

// Without a transform, a text that is too wide for its box would extend beyond it to the right
// only.
void WebLabel::Fit() {
  const double width = page::TextWidth(label_.Text(), ToCss(label_.Font()));
  const auto box = static_cast<double>(label_.Bounds().width);
  if (width <= box) return Element().SetStyle("transform", "none");
  const FittedText fitted = FitText(RoomOfText(label_), box, label_.Alignment(), width);
  Element().SetStyle("transform", "translateX(" + Units(fitted.left) + ") scaleX(" +
                                      std::to_string(fitted.scale) + ")");
}

WebButton::WebButton(WebWindow& window, PushButton& button)
    : WebControl(window, button, "button"), button_(button) {
  Element().SetAttribute("type", "button");
  Element().SetAttribute("tabindex", "-1");
  if (window.Shown().KeyThatPresses(button) == KeyCode::kHelp)
    Element().SetAttribute("aria-keyshortcuts", "F1");
  SetFont(button.Font());
  Update();
}

void WebButton::ShowState() {
  Element().SetText(button_.Caption());
  Element().SetFlag("disabled", !button_.Enabled());
}

PageAnswer WebButton::Handle(const PageReport& report) {
  const PageAnswer answer = WebControl::Handle(report);
  const Bounds& box = button_.Bounds();
  if (report.event == PageEvent::kPress && button_.Enabled()) {
    button_.UserPressed(std::llround(report.x * static_cast<double>(box.width)),
                        std::llround(report.y * static_cast<double>(box.height)));
    // The button never gets the focus.
    return PageAnswer::kPrevented;
  }
  // A mouse click ends a press that was handled; any other click comes from assistive technology.
  if (report.event == PageEvent::kClick && report.x == 0) {
    button_.UserPressedByAssistiveTechnology();
  }
  return answer;
}

WebSlider::WebSlider(WebWindow& window, Slider& slider)
    : WebControl(window, slider, "input"), slider_(slider) {
  Element().SetAttribute("type", "range");
  const auto set = [&](std::string_view name, std::int64_t position) {
    Element().SetAttribute(name, ShortText(slider.InUnits(position)));
  };
  set("min", slider.MinimumValue());
  set("max", slider.MaximumValue());
  set("step", 1);
  Update();
}

void WebSlider::ShowState() {
  Element().SetFlag("disabled", !slider_.Enabled());
  Element().SetAttribute("tabindex", TabIndex());
  const double value = slider_.InUnits(slider_.Value());
  if (shown_ != value) Element().SetValue(ShortText(value));
  shown_ = value;
}

PageAnswer WebSlider::Handle(const PageReport& report) {
  const PageAnswer answer = WebControl::Handle(report);
  switch (report.event) {
    case PageEvent::kPress:
      return slider_.Enabled() ? PageAnswer::kHandled : PageAnswer::kPassed;
    case PageEvent::kInput:
      // The page already shows this value, but it may not be accepted.
      shown_ = report.x;
      if (drag_ == Drag::kNone || drag_ == Drag::kSideways) slider_.UserSetValue(report.x);
      Update();
      return PageAnswer::kHandled;
    case PageEvent::kTouch:
      touched_ = {report.x, report.y};
      drag_ = Drag::kUndecided;
      return PageAnswer::kHandled;
    case PageEvent::kTouchMoves:
      HandleTouchMove(report);
      return PageAnswer::kHandled;
    case PageEvent::kTouchEnds:
      drag_ = Drag::kNone;
      return PageAnswer::kHandled;
    case PageEvent::kWheel:
      // With Ctrl the browser zooms, and over a slider without the focus the page scrolls.
      if (report.control || !Element().HasFocus()) return PageAnswer::kHandled;
      HandleWheel(report.y != 0 ? report.y : report.x);
      return PageAnswer::kPrevented;
    default:
      return answer;
  }
}

// If a finger first moves sideways, the browser moves the knob. If it first moves up or down, the
// page scrolls, and browsers no longer move the knob; when the finger then goes on sideways, this
// function does.
void WebSlider::HandleTouchMove(const PageReport& report) {
  constexpr double kSlop = 8;
  constexpr double kKnob = 28;  // As the style sheet has it.
  const double width = Element().Width();
  const double sideways = std::abs(report.x - touched_.first) * width;
  const double upright = std::abs(report.y - touched_.second) * Element().Height();
  if (drag_ == Drag::kUndecided && std::max(sideways, upright) > kSlop)
    drag_ = sideways > upright ? Drag::kSideways : Drag::kScrolls;
  if (drag_ == Drag::kScrolls && sideways > kSlop && sideways > upright) drag_ = Drag::kSlides;
  if (drag_ != Drag::kSlides) return;
  const auto least = static_cast<double>(slider_.MinimumValue());
  const auto greatest = static_cast<double>(slider_.MaximumValue());
  const double share = (report.x * width - kKnob / 2) / (width - kKnob);
  slider_.UserMovedTo(std::llround(least + std::clamp(share, 0.0, 1.0) * (greatest - least)));
}

// Turning a wheel to the right moves the knob to the right.
void WebSlider::HandleWheel(double turned) {
  turned_ += turned;
  const double notches = std::trunc(turned_);
  turned_ -= notches;
  if (notches != 0) slider_.UserTurnedWheel(static_cast<std::int64_t>(notches));
}

}  // namespace vamo
