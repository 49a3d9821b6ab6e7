#include "shell/info_wnd.h"

#include <array>
#include <cstddef>

#include "controlwnd/streams.h"
#include "shell/rights.h"
#include "toolkit/runtime/runtime.h"

namespace vamo {
namespace {

constexpr std::string_view kPurpose =
    "Vamo simulates how the 95% confidence interval of the correlation coefficient and the "
    "statistical significance (p ≠ 0) vary as a function of sample size. Change r and N to watch "
    "t, p, and the confidence interval change accordingly.";
constexpr std::string_view kDisclaimer =
    "Author makes no warranty, expressed or implied, respecting Vamo including, but not limited "
    "to, warranties of merchantability or fitness for any particular purpose. Vamo must be used "
    "with professional care and judgment to determine the appropriateness of its outcome. The "
    "author assumes no liability to the user or any third party with respect to this software.";
constexpr std::string_view kParagraphEnd = "\r\r";

constexpr std::array kParagraphs{kPurpose, kTerms, kCitation, kDisclaimer};

constexpr std::size_t TextSize() {
  std::size_t size = kParagraphEnd.size() * (kParagraphs.size() - 1);
  for (const std::string_view paragraph : kParagraphs) size += paragraph.size();
  return size;
}

constexpr std::array<char, TextSize()> kText = [] {
  std::array<char, TextSize()> text{};
  char* out = text.data();
  for (const std::string_view paragraph : kParagraphs) {
    if (out != text.data()) {
      for (const char c : kParagraphEnd) *out++ = c;
    }
    for (const char c : paragraph) *out++ = c;
  }
  return text;
}();

constexpr auto kInfoWindow = WindowStream({.width = 450,
                                           .height = 360,
                                           .type = WindowType::kReading,
                                           .title = "Info",
                                           .has_maximize_button = true,
                                           .composite = true,
                                           .has_background_colour = false});
constexpr auto kInfoText = TextAreaStream({.place = {"StaticText1", -1, -1, 447, 358, 0},
                                           .value = std::string_view(kText.data(), kText.size())});
constexpr std::array kInfoAccessibleTexts{AccessibleText{"StaticText1", "Info", "", ""}};

static_assert(kText.size() == 911, "the text is fixed to the byte");
static_assert(kInfoText.Length() == 1592, "the streams are fixed to the byte");

constexpr std::string_view kInfoEvents[] = {"CreateControls", "EnableMenuItems", "Layout"};

}  // namespace

constinit const ClassInfo InfoWnd::kClass{"InfoWnd.InfoWnd", &Window::kClass, {}, kInfoEvents};

bool InfoWnd::IsEventImplemented(std::string_view event) const {
  return _RuntimeIsEventHandled(*this, kClass.name, event, /*user=*/true);
}

void InfoWnd::Layout() {
  SetMenuBar(Menu());
  _SetProperties(*this, kInfoWindow);
}

void InfoWnd::CreateControls() { _CreateControls0(); }

void InfoWnd::_CreateControls0() {
  _AddControl("StaticText1", __New<TextArea>());
  _SetProperties(*StaticText1(), kInfoText);
}

Ref<TextArea> InfoWnd::StaticText1() { return ControlNamed<TextArea>("StaticText1"); }

std::span<const AccessibleText> InfoWnd::AccessibleTexts() const { return kInfoAccessibleTexts; }

void InfoWnd::Event_EnableMenuItems() { EditCopy()->SetEnabled(true); }

}  // namespace vamo
