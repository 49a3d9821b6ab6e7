// A user's hand on keyboard and mouse.
#ifndef VAMO_TESTS_HARNESS_HAND_H_
#define VAMO_TESTS_HARNESS_HAND_H_

#include <memory>
#include <string>

// From libxdo. Its header is included only in sources, because its names clash with others.
struct xdo;

namespace vamo {

// Keyboard and mouse of the X server, which also underlies the Wayland compositor. An act returns
// when the server has received the events, not when a program has handled them.
class Hand {
 public:
  // Throws if DISPLAY names no server.
  Hand();

  // Presses a combination of keys, given by their X names.
  void Press(const std::string& keys) const;
  void Type(const std::string& text) const;
  // Moves the mouse to a pixel of the screen.
  void MoveTo(int x, int y) const;
  void PressButton() const;
  void ReleaseButton() const;
  void Click(int button, int times = 1) const;

 private:
  const std::shared_ptr<xdo> xdo_;
};

}  // namespace vamo

#endif  // VAMO_TESTS_HARNESS_HAND_H_
