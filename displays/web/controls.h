// The controls without text input.
#ifndef VAMO_DISPLAYS_WEB_CONTROLS_H_
#define VAMO_DISPLAYS_WEB_CONTROLS_H_

#include <optional>
#include <string>
#include <utility>

#include "displays/web/control.h"
#include "toolkit/control/canvas.h"
#include "toolkit/control/label.h"
#include "toolkit/control/push_button.h"
#include "toolkit/control/rectangle.h"
#include "toolkit/control/slider.h"

namespace vamo {

// An image that is part of the page.
class WebPicture : public DisplayPicture {
 public:
  explicit WebPicture(std::string name) : name_(std::move(name)) {}
  const std::string& Name() const { return name_; }

 private:
  const std::string name_;
};

class WebCanvas : public WebControl {
 public:
  WebCanvas(WebWindow& window, Canvas& canvas);

 private:
  void ShowState() override;

  Canvas& canvas_;
};

class WebRectangle : public WebControl {
 public:
  WebRectangle(WebWindow& window, Rectangle& rectangle);
};

// A label. Its text is narrowed to the room that it has.
class WebLabel : public WebControl {
 public:
  WebLabel(WebWindow& window, Label& label);

 private:
  void ShowState() override;
  void Fit();

  Label& label_;
};

class WebButton : public WebControl {
 public:
  WebButton(WebWindow& window, PushButton& button);
  PageAnswer Handle(const PageReport& report) override;

 private:
  void ShowState() override;

  PushButton& button_;
};

// A slider in the unit that assistive technology reads. The style sheet draws it.
class WebSlider : public WebControl {
 public:
  WebSlider(WebWindow& window, Slider& slider);
  PageAnswer Handle(const PageReport& report) override;

 private:
  void ShowState() override;
  void HandleWheel(double turned);
  void HandleTouchMove(const PageReport& report);

  Slider& slider_;
  // The value in the element.
  std::optional<double> shown_;
  // Where a finger touched the slider, and what its drag has become.
  std::pair<double, double> touched_;
  enum class Drag { kNone, kUndecided, kSideways, kScrolls, kSlides };
  Drag drag_ = Drag::kNone;
  // The part of a notch that the wheel has turned so far.
  double turned_ = 0;
};

}  // namespace vamo

#endif  // VAMO_DISPLAYS_WEB_CONTROLS_H_
