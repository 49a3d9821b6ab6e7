#include "journeys/journey_steps.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace vamo {

Key Arrow(KeyCode code, bool shift) { return {code, "", shift, false}; }

std::string ResultLine(User& user) {
  return user.SeesDescribed("Student's t").text + " | " + user.SeesDescribed("two-tailed p").text +
         " | " + user.SeesDescribed("95% confidence interval of r").text;
}

std::string FieldText(User& user, std::string_view name) {
  return user.Sees(Role::kText, name).text;
}

bool Warned(User& user) { return user.SeesDescribed("range of N").visible; }

bool Heard(User& user, const std::string& sentence) {
  const std::vector<std::string> heard = user.Hears();
  return std::find(heard.begin(), heard.end(), sentence) != heard.end();
}

void Retype(User& user, std::string_view field, std::string_view text) {
  user.Click(Role::kText, field);
  user.PressKey(Key::Command("a"));
  user.PressKey(Key::Character(std::string(1, kBackspace)));
  user.Type(text);
}

void PasteOver(User& user, std::string_view field, std::string_view text) {
  Retype(user, field, "");
  user.Paste(text);
}

int FromTheStart(const std::function<void(User&)>& journey) {
  bool completed = false;
  const int status = RunProgram([&](User& user) {
    journey(user);
    completed = true;
  });
  EXPECT_TRUE(completed);
  return status;
}

int InControlWindow(const std::function<void(User&)>& journey) {
  return FromTheStart([&](User& user) {
    user.PressKey(Key::Character(std::string(1, kEscape)));
    ASSERT_EQ(user.ActiveTitle(), "Vamo");
    journey(user);
  });
}

}  // namespace vamo
