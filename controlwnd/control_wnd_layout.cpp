// The control window: its initial state, its 22 controls in order of creation, their handlers and
// their accessibility data.
#include <array>
#include <span>
#include <string_view>

#include "controlwnd/chart_small.h"
#include "controlwnd/colours.h"
#include "controlwnd/control_wnd.h"
#include "controlwnd/streams.h"

namespace vamo {
namespace {

constexpr Colour kLightRed{0xFF, 0x66, 0x66};
constexpr Colour kOrange{0xFF, 0x80, 0};
constexpr Colour kGrey{0x80, 0x80, 0x80};
constexpr Colour kLightGrey{0xE6, 0xE6, 0xE6};

constexpr auto kWindow = WindowStream(
    {.width = 500, .height = 425, .maximum_width = 500, .maximum_height = 500, .title = "Vamo"});

constexpr auto kREdit = TextFieldStream({.place = {"rEdit", 55, 192, 60, 20, 0},
                                         .alignment = TextAlignment::kCentre,
                                         .validation_mask = ".###",
                                         .maximum_characters = 4});
constexpr auto kNEdit = TextFieldStream({.place = {"nEdit", 55, 257, 60, 20, 1},
                                         .validation_mask = "####",
                                         .maximum_characters = 4,
                                         .spell_checking = true});
constexpr auto kRectangle2 = RectangleStream({.place = {"Rectangle2", 5, 5, 100, 80, 3},
                                              .fill = kDarkRed,
                                              .top_left = kWhite,
                                              .bottom_right = kWhite});
constexpr auto kCanvas3 = CanvasStream({.place = {"Canvas3", 9, 9, 92, 72, 0, "Rectangle2"}});
constexpr auto kStaticText4 = LabelStream({.place = {"StaticText4", 115, -5, 371, 73, 4},
                                           .value = "Vamo",
                                           .font_size = 48,
                                           .bold = true,
                                           .alignment = TextAlignment::kCentre,
                                           .colour = kDarkRed});
constexpr auto kStaticText9 = LabelStream({.place = {"StaticText9", 115, 66, 371, 20, 5},
                                           .value = "by Halden Q. Orrin",
                                           .font_size = 9,
                                           .alignment = TextAlignment::kCentre,
                                           .colour = kDarkRed});
constexpr auto kRectangle1 = RectangleStream({.place = {"Rectangle1", 113, 82, 371, 2, 6},
                                              .fill = kDarkRed,
                                              .top_left = kLightRed,
                                              .bottom_right = kDarkRed});
constexpr auto kRSlider = SliderStream(
    {.place = {"rSlider", 25, 220, 450, 15, 7}, .value = 0, .minimum = 0, .maximum = 99});
constexpr auto kNSlider = SliderStream({.place = {"nSlider", 25, 285, 450, 15, 8},
                                        .value = kLowestN,
                                        .minimum = kLowestN,
                                        .maximum = kHighestN});
constexpr auto kStaticText2 =
    LabelStream({.place = {"StaticText2", 25, 192, 20, 20, 9}, .value = "r =", .bold = true});
constexpr auto kStaticText3 =
    LabelStream({.place = {"StaticText3", 25, 257, 20, 20, 10}, .value = "N =", .bold = true});
// The text is fixed, comma included.
constexpr auto kNText = LabelStream({.place = {"nText", 127, 257, 129, 20, 12},
                                     .value = "(4 - 1,1000)",
                                     .font_size = 11,
                                     .colour = kOrange,
                                     .visible = false});
constexpr auto kStaticText8 = LabelStream({.place = {"StaticText8", 325, 192, 70, 20, 13},
                                           .value = "Fisher's z =",
                                           .bold = true,
                                           .colour = kDarkGrey});
constexpr auto kZFld = TextFieldStream({.place = {"zFld", 400, 192, 70, 20, 14},
                                        .alignment = TextAlignment::kLeft,
                                        .enabled = false,
                                        .read_only = true});
constexpr auto kQbtn =
    PushButtonStream({.place = {"Qbtn", 439, 349, 40, 40, 15, "", {.left = true, .top = true}},
                      .caption = "?",
                      .font_size = 16,
                      .bold = true,
                      .is_default = true});
constexpr auto kRectangle3 =
    RectangleStream({.place = {"Rectangle3", 20, 353, 420, 30, 2, "", /*locks=*/{}},
                     .fill = kLightGrey,
                     .top_left = kDarkGrey,
                     .bottom_right = kGrey,
                     .border_thickness = 2});
constexpr auto kStaticText5 =
    LabelStream({.place = {"StaticText5", 35, 358, 30, 20, 0, "Rectangle3"},
                 .value = "t =",
                 .bold = true,
                 .colour = kDarkRed});
constexpr auto kStaticText1 =
    LabelStream({.place = {"StaticText1", 136, 358, 40, 20, 2, "Rectangle3"},
                 .value = "p =",
                 .bold = true,
                 .colour = kDarkRed});
constexpr auto kPText = LabelStream({.place = {"pText", 164, 358, 60, 20, 3, "Rectangle3"},
                                     .tab_stop = true,
                                     .alignment = TextAlignment::kCentre});
constexpr auto kStaticText7 =
    LabelStream({.place = {"StaticText7", 251, 358, 85, 20, 4, "Rectangle3"},
                 .value = "95% CI of r =",
                 .bold = true,
                 .colour = kDarkRed});
constexpr auto kCiText = LabelStream({.place = {"ciText", 334, 358, 95, 20, 5, "Rectangle3"},
                                      .tab_stop = true,
                                      .alignment = TextAlignment::kCentre});
constexpr auto kTText =
    LabelStream({.place = {"tText", 60, 358, 60, 20, 1, "Rectangle3"}, .tab_stop = true});

static_assert(kWindow.Length() == 371, "the streams are fixed to the byte");
static_assert(kRSlider.Length() == 388, "the streams are fixed to the byte");

constexpr std::array kAccessibleTexts{
    AccessibleText{"rEdit", "r", "", "StaticText2"},
    AccessibleText{.control = "rSlider",
                   .name = "r",
                   .labelled_by = "StaticText2",
                   .positions_per_unit = ControlWnd::kPositionsPerR},
    AccessibleText{"nEdit", "N", "", "StaticText3"},
    AccessibleText{"nSlider", "N", "", "StaticText3"},
    AccessibleText{.control = "Qbtn", .name = "Info", .pressed_by = KeyCode::kHelp},
    AccessibleText{.control = "tText",
                   .description = "Student's t",
                   .labelled_by = "StaticText5",
                   .announced = Announced::kAlways},
    AccessibleText{.control = "pText",
                   .description = "two-tailed p",
                   .labelled_by = "StaticText1",
                   .announced = Announced::kAlways},
    AccessibleText{.control = "ciText",
                   .description = "95% confidence interval of r",
                   .labelled_by = "StaticText7",
                   .announced = Announced::kAlways},
    AccessibleText{.control = "zFld",
                   .name = "Fisher's z",
                   .labelled_by = "StaticText8",
                   .announced = Announced::kWhenChanged},
    AccessibleText{
        .control = "nText", .description = "range of N", .announced = Announced::kAlways},
};

// Creates a control, adds it to the window under its name, and then sets its properties.
template <class ControlClass>
void Create(Window& window, std::string_view name, PropertyStream stream) {
  window._AddControl(name, window.__New<ControlClass>());
  _SetProperties(*window.ControlNamed<ControlClass>(name), stream);
}

constexpr std::string_view kEvents[] = {"Activate", "Close", "CreateControls", "EnableMenuItems",
                                        "Layout"};

}  // namespace

constinit const ClassInfo ControlWnd::kClass{"ControlWnd.ControlWnd", &Window::kClass, {}, kEvents};

void ControlWnd::Layout() {
  SetMenuBar(Menu());
  _SetProperties(*this, kWindow);
}

void ControlWnd::CreateControls() { _CreateControls0(); }

// The handlers of a control are bound after its properties are set, so that setting a property
// calls no handler.
void ControlWnd::_CreateControls0() {
  Create<TextField>(*this, "rEdit", kREdit);
  AddHandler(rEdit()->TextChange, this, &ControlWnd::rEdit_TextChange);
  AddHandler(rEdit()->KeyDown, this, &ControlWnd::rEdit_KeyDown);
  Create<TextField>(*this, "nEdit", kNEdit);
  AddHandler(nEdit()->TextChange, this, &ControlWnd::nEdit_TextChange);
  AddHandler(nEdit()->KeyDown, this, &ControlWnd::nEdit_KeyDown);
  Create<Rectangle>(*this, "Rectangle2", kRectangle2);
  _AddControl("Canvas3", __New<Canvas>());
  Canvas3()->SetBackdrop(_x_ChartSmall::ChartSmall());
  _SetProperties(*Canvas3(), kCanvas3);
  Create<Label>(*this, "StaticText4", kStaticText4);
  Create<Label>(*this, "StaticText9", kStaticText9);
  Create<Rectangle>(*this, "Rectangle1", kRectangle1);
  Create<Slider>(*this, "rSlider", kRSlider);
  AddHandler(rSlider()->ValueChanged, this, &ControlWnd::rSlider_ValueChanged);
  Create<Slider>(*this, "nSlider", kNSlider);
  AddHandler(nSlider()->ValueChanged, this, &ControlWnd::nSlider_ValueChanged);
  Create<Label>(*this, "StaticText2", kStaticText2);
  Create<Label>(*this, "StaticText3", kStaticText3);
  Create<Label>(*this, "nText", kNText);
  Create<Label>(*this, "StaticText8", kStaticText8);
  Create<TextField>(*this, "zFld", kZFld);
  Create<PushButton>(*this, "Qbtn", kQbtn);
  AddHandler(Qbtn()->MouseDown, this, &ControlWnd::Qbtn_MouseDown);
  Create<Rectangle>(*this, "Rectangle3", kRectangle3);
  Create<Label>(*this, "StaticText5", kStaticText5);
  Create<Label>(*this, "StaticText1", kStaticText1);
  Create<Label>(*this, "pText", kPText);
  Create<Label>(*this, "StaticText7", kStaticText7);
  Create<Label>(*this, "ciText", kCiText);
  Create<Label>(*this, "tText", kTText);
}

std::span<const AccessibleText> ControlWnd::AccessibleTexts() const { return kAccessibleTexts; }

}  // namespace vamo
