// The hand of a user, at the keyboard and the mouse.
#ifndef VAMO_TESTS_HARNESS_HAND_H_
#define VAMO_TESTS_HARNESS_HAND_H_

#include <memory>
#include <string>

// The library's, whose header names more than others bear.
struct xdo;

namespace vamo {

// Keys and mouse of the X server that every desktop here has at its bottom. An act returns when the
// server has the events, not when a program has dealt with them.
class Hand {
 public:
  // Throws where DISPLAY names no server.
  Hand();

  // A combination of keys by their X names.
  void Press(const std::string& keys) const;
  void Type(const std::string& text) const;
  // To a pixel of the screen.
  void MoveTo(int x, int y) const;
  void PressButton() const;
  void ReleaseButton() const;
  void Click(int button, int times = 1) const;

 private:
  const std::shared_ptr<xdo> xdo_;
};

}  // namespace vamo

#endif  // VAMO_TESTS_HARNESS_HAND_H_
