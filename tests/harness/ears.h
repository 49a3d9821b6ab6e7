// The ears of a user who works with a screen reader.
#ifndef VAMO_TESTS_HARNESS_EARS_H_
#define VAMO_TESTS_HARNESS_EARS_H_

#include <atspi/atspi.h>

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace vamo {

// Takes down what programs tell assistive technology of their own accord, as long as it lives. To
// miss nothing it is there before the program.
class Ears {
 public:
  Ears();
  ~Ears();
  Ears(const Ears&) = delete;
  Ears& operator=(const Ears&) = delete;

  // The notices that have come up, and what has been announced, since the last call.
  std::vector<std::string> Notices();
  // What has gone from and come into the text that bears a name since the last call: "-5", "+5".
  std::vector<std::string> Edits(std::string_view text);

 private:
  static void Take(AtspiEvent* event, void* ears);
  static void Listen();
  void Note(const AtspiEvent& event);

  AtspiEventListener* const listener_;
  std::vector<std::string> notices_;
  // With the name of the text.
  std::vector<std::pair<std::string, std::string>> edits_;
};

}  // namespace vamo

#endif  // VAMO_TESTS_HARNESS_EARS_H_
