#include "displays/web/control.h"

#include <cmath>

#include "displays/web/window.h"
#include "toolkit/control/label.h"
#include "toolkit/window/window.h"

namespace vamo {
namespace {

// The luminance relative to white, in sRGB. std::pow would make the page 4 KB larger.
double Luminance(Colour colour) {
  const auto linear = [](std::uint8_t part) {
    const double share = part / 255.0;
    return share <= 0.04045 ? share / 12.92 : std::exp(2.4 * std::log((share + 0.055) / 1.055));
  };
  return 0.2126 * linear(colour.red) + 0.7152 * linear(colour.green) + 0.0722 * linear(colour.blue);
}

}  // namespace

std::string ShortText(double number) {
  std::string text = std::to_string(number);
  text.erase(text.find_last_not_of('0') + 1);
  if (text.back() == '.') text.pop_back();
  return text;
}

std::string Units(double length) { return "calc(var(--unit) * " + ShortText(length) + ")"; }

std::string ToCss(Colour colour) {
  const auto part = [](std::uint8_t number) { return std::to_string(number); };
  return "rgb(" + part(colour.red) + "," + part(colour.green) + "," + part(colour.blue) + ")";
}

Colour Legible(Colour colour) {
  constexpr double kGreatest = 1.05 / 4.5 - 0.05;
  while (Luminance(colour) > kGreatest) {
    for (std::uint8_t* part : {&colour.red, &colour.green, &colour.blue}) {
      *part = static_cast<std::uint8_t>(*part * 31 / 32);
    }
  }
  return colour;
}

std::string ToCss(const Font& font) {
  const std::string family = font.name == "System" ? "" : "\"" + font.name + "\",";
  return std::string(font.italic ? "italic " : "") + (font.bold ? "bold " : "") +
         std::to_string(font.size) + "px " + family + "system-ui,sans-serif";
}

std::string_view ClassOf(TextAlignment alignment) {
  switch (alignment) {
    case TextAlignment::kCentre:
      return "centre";
    case TextAlignment::kRight:
      return "right";
    case TextAlignment::kDefault:
    case TextAlignment::kLeft:
      break;
  }
  return "left";
}

WebControl::WebControl(WebWindow& window, RectControl& control, std::string_view tag)
    : window_(window), control_(control), element_(window.Content(), tag, this) {
  window_.Add(*this);
  element_.SetAttribute("class", "control");
  const Bounds& box = control_.Bounds();
  element_.SetStyle("--left", std::to_string(box.left));
  element_.SetStyle("--top", std::to_string(box.top));
  element_.SetStyle("--width", std::to_string(box.width));
  element_.SetStyle("--height", std::to_string(box.height));
}

WebControl::~WebControl() { window_.Remove(*this); }

void WebControl::SetFont(const Font& font) {
  element_.SetStyle("font", ToCss(font));
  element_.SetStyle("--font", ShortText(font.size));
  element_.SetStyle("font-size", "");
  // The CSS font sets a line height too, but that of the style sheet must apply.
  element_.SetStyle("line-height", "");
  if (font.underline) element_.SetStyle("text-decoration", "underline");
}

std::string_view WebControl::TabIndex() const {
  return window_.IsInFront() && control_.CanTakeFocus() && control_.TabStop() ? "0" : "-1";
}

void WebControl::ShowFocus() {
  if (!element_.HasFocus()) element_.Focus();
}

void WebControl::Update() {
  element_.SetOptionalAttribute("aria-label", control_.AccessibleName());
  element_.SetOptionalAttribute("aria-description", control_.AccessibleDescription());
  element_.SetOptionalAttribute("title", control_.Tooltip());
  element_.SetFlag("hidden", !control_.Visible());
  ShowState();
}

// A press on a control brings its window to the front, and so does focus that the browser moves
// into it.
PageAnswer WebControl::Handle(const PageReport& report) {
  if (report.event != PageEvent::kPress && report.event != PageEvent::kFocus) {
    return PageAnswer::kPassed;
  }
  window_.BringToFront();
  if (report.event == PageEvent::kPress) return PageAnswer::kPassed;
  if (!window_.IsShowingFocus()) window_.Shown().UserFocused(Self(&control_));
  return PageAnswer::kHandled;
}

}  // namespace vamo
