// Hears what a user of a screen reader hears.
#ifndef VAMO_TESTS_HARNESS_EARS_H_
#define VAMO_TESTS_HARNESS_EARS_H_

#include <atspi/atspi.h>

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace vamo {

// Records the events that programs send to assistive technology while this object lives. Create it
// before the program, so that it misses nothing.
class Ears {
 public:
  Ears();
  ~Ears();
  Ears(const Ears&) = delete;
  Ears& operator=(const Ears&) = delete;

  // The notifications and announcements since the last call.
  std::vector<std::string> Notices();
  // The edits of the text of that name since the last call: "-5" for a removed, "+5" for an
  // inserted text.
  std::vector<std::string> Edits(std::string_view text);

 private:
  static void Listen();
  void Note(const AtspiEvent& event);

  AtspiEventListener* const listener_;
  std::vector<std::string> notices_;
  // With the name of the text.
  std::vector<std::pair<std::string, std::string>> edits_;
};

}  // namespace vamo

#endif  // VAMO_TESTS_HARNESS_EARS_H_
