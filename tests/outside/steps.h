// What the tests from outside do again and again.
#ifndef VAMO_TESTS_OUTSIDE_STEPS_H_
#define VAMO_TESTS_OUTSIDE_STEPS_H_

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "outside_user.h"

namespace vamo {

// The texts of a window's results, and of Fisher's z.
struct Results {
  std::string t;
  std::string p;
  std::string interval;
  std::string z;

  bool operator==(const Results& other) const {
    return t == other.t && p == other.p && interval == other.interval && z == other.z;
  }
};
std::ostream& operator<<(std::ostream& stream, const Results& results);

// What must show for an r from 0 up to .99 and an N from 4. p is the area of Student's density,
// integrated step by step, and the limits are hyperbolic tangents: another way than the program's.
Results ExpectedResults(double r, std::int64_t n);

Results ShownResults(OutsideUser& user);
std::string FieldText(OutsideUser& user, std::string_view field);
bool Warned(OutsideUser& user);
// Takes the place of what the field holds.
void Retype(OutsideUser& user, std::string_view field, std::string_view text);

// A journey through the control window, by a user who has dismissed the splash with a key. One that
// breaks off has failed. Gives what RunProgramWith gives.
int InControlWindow(const Environment& settings, const std::function<void(OutsideUser&)>& journey,
                    const std::vector<std::string>& command = {ProgramPath()});

}  // namespace vamo

#endif  // VAMO_TESTS_OUTSIDE_STEPS_H_
