// The parts of the page's display that need no page.
#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <string_view>

#include "displays/web/keys.h"
#include "displays/web/reading_order.h"

namespace vamo {
namespace {

TEST(PageKeysTest, AKeyIsReadAsItsPlatformMeansIt) {
  const struct {
    std::string name;
    // Of s(hift), c(ontrol), a(lt), m(eta).
    std::string_view held;
    bool on_mac;
    std::string place;
    KeyCode code;
    std::string text;
    // Of s(hift), c(ommand), w(ord).
    std::string means;
  } kCases[] = {
      {"a", "", false, "KeyA", KeyCode::kCharacter, "a", ""},
      {"A", "sc", false, "KeyA", KeyCode::kCharacter, "a", "sc"},
      {"a", "m", true, "KeyA", KeyCode::kCharacter, "a", "c"},
      {"a", "m", false, "KeyA", KeyCode::kCharacter, "a", ""},
      {"ф", "c", false, "KeyA", KeyCode::kCharacter, "a", "c"},
      {"@", "ca", false, "KeyQ", KeyCode::kCharacter, "@", ""},
      {"a", "a", false, "KeyA", KeyCode::kOther, "", ""},
      {"å", "a", true, "KeyA", KeyCode::kCharacter, "å", ""},
      {"a", "c", true, "KeyA", KeyCode::kOther, "", ""},
      {",", "", false, "NumpadDecimal", KeyCode::kCharacter, ".", ""},
      {"Backspace", "c", false, "", KeyCode::kCharacter, "\b", "w"},
      {"Backspace", "a", true, "", KeyCode::kCharacter, "\b", "w"},
      {"Backspace", "c", true, "", KeyCode::kCharacter, "\b", ""},
      {"Delete", "", false, "", KeyCode::kDelete, "", ""},
      {"Tab", "s", false, "", KeyCode::kCharacter, "\t", "s"},
      {"ArrowLeft", "s", false, "", KeyCode::kLeft, "", "s"},
      {"F1", "", true, "", KeyCode::kHelp, "", ""},
      {"F5", "", false, "", KeyCode::kOther, "", ""},
  };
  for (const auto& [name, held, on_mac, place, code, text, means] : kCases) {
    const auto holds = [&, keys = held](char key) { return keys.find(key) != keys.npos; };
    PageReport report{.shift = holds('s'), .control = holds('c'), .alt = holds('a')};
    report.meta = holds('m');
    report.text = name;
    report.data = place;
    const std::optional<Key> key = ToKey(report, on_mac);
    ASSERT_TRUE(key.has_value()) << name;
    EXPECT_EQ(key->code, code) << name;
    EXPECT_EQ(key->text, text) << name;
    EXPECT_EQ(
        std::string(key->shift ? "s" : "") + (key->command ? "c" : "") + (key->word ? "w" : ""),
        means)
        << name << " with " << held;
  }
  PageReport bare;
  bare.text = "Shift";
  EXPECT_FALSE(ToKey(bare, false).has_value());
}

std::string Told(const Block& block) {
  if (block.parts.empty()) return std::to_string(block.box);
  std::string told;
  for (const Block& part : block.parts) {
    told += (told.empty() ? "(" : block.beside ? " " : "/") + Told(part);
  }
  return told + ")";
}

TEST(PageOrderTest, BoxesFollowEachOtherInRowsAndColumns) {
  EXPECT_EQ(Told(InReadingOrder({{5, 5, 100, 80},
                                 {115, -5, 371, 73},
                                 {115, 66, 371, 20},
                                 {25, 220, 450, 15},
                                 {55, 192, 60, 20},
                                 {25, 192, 20, 20}})),
            "((0 (1/2))/(5 4)/3)");
}

}  // namespace
}  // namespace vamo
