// How a user with a mouse takes a slider to a position.
#include "user.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace vamo {

int KnobAt(std::int64_t position, std::int64_t least, std::int64_t greatest, int width) {
  // 15 pixels of 450, and at each size of the windows the same share.
  const int knob = width / 30;
  const auto offset = (position - least) * (width - knob) / (greatest - least);
  return knob / 2 + static_cast<int>(offset);
}

void NudgeSlider(User& user, std::string_view name, std::int64_t position) {
  const std::int64_t reached = user.Sees(Role::kSlider, name).position;
  EXPECT_LE(std::abs(position - reached), 3) << "the knob did not follow the mouse";
  for (std::int64_t i = reached; i != position; i += i < position ? 1 : -1) {
    user.PressKey({i < position ? KeyCode::kRight : KeyCode::kLeft, "", false, false});
  }
}

}  // namespace vamo
