#ifndef VAMO_TESTS_HARNESS_PLACE_H_
#define VAMO_TESTS_HARNESS_PLACE_H_

namespace vamo {

// The position and size of an element, in logical pixels of the program's window or of the page.
struct Place {
  int x = 0;
  int y = 0;
  int width = 0;
  int height = 0;
};

}  // namespace vamo

#endif  // VAMO_TESTS_HARNESS_PLACE_H_
