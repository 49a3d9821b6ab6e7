// The user of the display without pixels.
#include <algorithm>
#include <memory>

#include "shell/startup.h"
#include "user.h"

namespace vamo {
namespace {

class HeadlessUser : public User {
 public:
  explicit HeadlessUser(HeadlessDisplay& display) : display_(display) {}

  void PressKey(const Key& key) override { display_.PressKey(key); }
  void Type(std::string_view text) override { display_.Type(text); }
  void Paste(std::string_view text) override {
    display_.SetClipboard(text);
    display_.PressKey(Key::Command("v"));
  }
  void Click(Role role, std::string_view name) override { display_.Click(role, name); }
  void DragSlider(std::string_view name, const std::vector<std::int64_t>& positions) override {
    display_.DragSlider(name, positions);
  }
  void PressGroove(std::string_view name, std::int64_t at, std::int64_t drag_to) override {
    display_.DragSlider(name, {at, drag_to});
  }
  void TurnWheel(std::string_view slider, std::int64_t notches) override {
    display_.TurnWheel(slider, notches);
  }
  void PressByAssistiveTechnology(std::string_view button) override {
    display_.PressByAssistiveTechnology(button);
  }
  void Choose(std::string_view path) override { display_.Choose(path); }
  bool CanChoose(std::string_view path) override { return display_.CanChoose(path); }
  void Close(std::string_view title) override { display_.Close(title); }
  void ActivateWindow(std::string_view title) override { display_.ActivateWindow(title); }
  void Wait(std::chrono::milliseconds time) override { display_.LetTimePass(time); }

  std::vector<std::string> Windows() override {
    std::vector<std::string> titles = display_.Windows();
    std::sort(titles.begin(), titles.end());
    return titles;
  }
  std::string ActiveTitle() override { return display_.ActiveTitle(); }
  ShownControl Sees(Role role, std::string_view name) override { return display_.Sees(role, name); }
  ShownControl SeesDescribed(std::string_view description) override {
    return display_.SeesDescribed(description);
  }
  ShownControl Focused() override {
    const ShownControl* focused = display_.Focused();
    return focused == nullptr ? ShownControl{} : *focused;
  }
  std::string Clipboard() override { return display_.Clipboard(); }
  int Beeps() override { return display_.Beeps(); }
  std::vector<std::string> Hears() override { return display_.Hears(); }

 private:
  HeadlessDisplay& display_;
};

}  // namespace

int RunProgram(const std::function<void(User&)>& journey) {
  return Main(std::make_unique<HeadlessDisplay>([&](HeadlessDisplay& display) {
    HeadlessUser user(display);
    journey(user);
  }));
}

}  // namespace vamo
