// A run time for one test, on the headless display.
#ifndef VAMO_TESTS_TEST_PROGRAM_H_
#define VAMO_TESTS_TEST_PROGRAM_H_

#include <memory>
#include <utility>

#include "displays/headless/user.h"
#include "toolkit/runtime/runtime.h"
#include "toolkit/window/window.h"

namespace vamo {

// Created at the start of a test and destroyed at its end, with everything in it.
class TestProgram {
 public:
  TestProgram() : TestProgram(std::make_unique<HeadlessDisplay>()) {}

  HeadlessDisplay& display() { return user_.Display(); }
  HeadlessUser& user() { return user_; }
  Runtime& runtime() { return runtime_; }

 private:
  explicit TestProgram(std::unique_ptr<HeadlessDisplay> display)
      : user_(*display), runtime_(std::move(display)) {}

  HeadlessUser user_;
  Runtime runtime_;
};

}  // namespace vamo

#endif  // VAMO_TESTS_TEST_PROGRAM_H_
