#include "hand.h"

extern "C" {
#include <xdo.h>
}

#include <stdexcept>

namespace vamo {
namespace {

// In microseconds.
constexpr useconds_t kBetweenKeys = 12'000;
constexpr useconds_t kBetweenLetters = 1000;
constexpr useconds_t kBetweenClicks = 100'000;

}  // namespace

Hand::Hand() : xdo_(xdo_new(nullptr), xdo_free) {
  if (xdo_ == nullptr) throw std::runtime_error("there is no X server");
}

void Hand::Press(const std::string& keys) const {
  xdo_send_keysequence_window(xdo_.get(), CURRENTWINDOW, keys.c_str(), kBetweenKeys);
  XSync(xdo_->xdpy, False);
}

void Hand::Type(const std::string& text) const {
  xdo_enter_text_window(xdo_.get(), CURRENTWINDOW, text.c_str(), kBetweenLetters);
  XSync(xdo_->xdpy, False);
}

void Hand::MoveTo(int x, int y) const {
  xdo_move_mouse(xdo_.get(), x, y, 0);
  XSync(xdo_->xdpy, False);
}

void Hand::PressButton() const {
  xdo_mouse_down(xdo_.get(), CURRENTWINDOW, 1);
  XSync(xdo_->xdpy, False);
}

void Hand::ReleaseButton() const {
  xdo_mouse_up(xdo_.get(), CURRENTWINDOW, 1);
  XSync(xdo_->xdpy, False);
}

void Hand::Click(int button, int times) const {
  xdo_click_window_multiple(xdo_.get(), CURRENTWINDOW, button, times, kBetweenClicks);
  XSync(xdo_->xdpy, False);
}

}  // namespace vamo
