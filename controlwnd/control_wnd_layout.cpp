// The working window: its state, its 22 controls in the order of their creation, and what is wired
// to them.
#include <array>

#include "controlwnd/chart_small.h"
#include "controlwnd/control_wnd.h"
#include "toolkit/events.h"
#include "toolkit/stream_tables.h"

namespace vamo {
namespace {

constexpr Colour kDarkRed{0x80, 0, 0};
constexpr Colour kLightRed{0xFF, 0x66, 0x66};
constexpr Colour kOrange{0xFF, 0x80, 0};
constexpr Colour kDarkGrey{0x66, 0x66, 0x66};
constexpr Colour kGrey{0x80, 0x80, 0x80};
constexpr Colour kLightGrey{0xE6, 0xE6, 0xE6};

constexpr WindowRow kWindow{.width = 500,
                            .height = 425,
                            .maximum_width = 500,
                            .maximum_height = 500,
                            .type = 0,
                            .title = "Vamo",
                            .has_maximize_button = false,
                            .resizeable = false,
                            .composite = false,
                            .has_background_colour = true};

constexpr TextFieldRow kREdit{.place = {"rEdit", 55, 192, 60, 20, 0},
                              .alignment = TextAlignment::kCentre,
                              .validation_mask = ".###",
                              .maximum_characters = 4,
                              .spell_checking = false,
                              .enabled = true,
                              .read_only = false};
constexpr TextFieldRow kNEdit{.place = {"nEdit", 55, 257, 60, 20, 1},
                              .alignment = TextAlignment::kDefault,
                              .validation_mask = "####",
                              .maximum_characters = 4,
                              .spell_checking = true,
                              .enabled = true,
                              .read_only = false};
constexpr RectangleRow kRectangle2{.place = {"Rectangle2", 5, 5, 100, 80, 3},
                                   .border_thickness = 1,
                                   .fill = kDarkRed,
                                   .top_left = kWhite,
                                   .bottom_right = kWhite};
constexpr CanvasRow kCanvas3{
    .place = {"Canvas3", 9, 9, 92, 72, 0, "Rectangle2"}, .tab_stop = true, .enabled = true};
constexpr LabelRow kStaticText4{.place = {"StaticText4", 115, -5, 371, 73, 4},
                                .value = "Vamo",
                                .font_size = 48,
                                .bold = true,
                                .alignment = TextAlignment::kCentre,
                                .colour = kDarkRed};
constexpr LabelRow kStaticText9{.place = {"StaticText9", 115, 66, 371, 20, 5},
                                .value = "by Halden Q. Orrin",
                                .font_size = 9,
                                .alignment = TextAlignment::kCentre,
                                .colour = kDarkRed};
constexpr RectangleRow kRectangle1{.place = {"Rectangle1", 113, 82, 371, 2, 6},
                                   .border_thickness = 1,
                                   .fill = kDarkRed,
                                   .top_left = kLightRed,
                                   .bottom_right = kDarkRed};
constexpr SliderRow kRSlider{
    .place = {"rSlider", 25, 220, 450, 15, 7}, .value = 0, .minimum = 0, .maximum = 99};
constexpr SliderRow kNSlider{
    .place = {"nSlider", 25, 285, 450, 15, 8}, .value = 4, .minimum = 4, .maximum = 1000};
constexpr LabelRow kStaticText2{
    .place = {"StaticText2", 25, 192, 20, 20, 9}, .value = "r =", .bold = true, .colour = kBlack};
constexpr LabelRow kStaticText3{
    .place = {"StaticText3", 25, 257, 20, 20, 10}, .value = "N =", .bold = true, .colour = kBlack};
constexpr LabelRow kNText{.place = {"nText", 127, 257, 129, 20, 12},
                          .value = "(4 - 1,1000)",
                          .font_size = 11,
                          .colour = kOrange,
                          .visible = false};
constexpr LabelRow kStaticText8{.place = {"StaticText8", 325, 192, 70, 20, 13},
                                .value = "Fisher's z =",
                                .bold = true,
                                .colour = kDarkGrey};
constexpr TextFieldRow kZFld{.place = {"zFld", 400, 192, 70, 20, 14},
                             .alignment = TextAlignment::kLeft,
                             .validation_mask = "",
                             .maximum_characters = 0,
                             .spell_checking = false,
                             .enabled = false,
                             .read_only = true};
constexpr PushButtonRow kQbtn{.place = {.name = "Qbtn",
                                        .left = 439,
                                        .top = 349,
                                        .width = 40,
                                        .height = 40,
                                        .tab_index = 15,
                                        .locks = {true, true, false, false}},
                              .caption = "?",
                              .font_size = 16,
                              .bold = true,
                              .is_default = true};
constexpr RectangleRow kRectangle3{.place = {.name = "Rectangle3",
                                             .left = 20,
                                             .top = 353,
                                             .width = 420,
                                             .height = 30,
                                             .tab_index = 2,
                                             .locks = {false, false, false, false}},
                                   .border_thickness = 2,
                                   .fill = kLightGrey,
                                   .top_left = kDarkGrey,
                                   .bottom_right = kGrey};
constexpr LabelRow kStaticText5{.place = {"StaticText5", 35, 358, 30, 20, 0, "Rectangle3"},
                                .value = "t =",
                                .bold = true,
                                .colour = kDarkRed};
constexpr LabelRow kStaticText1{.place = {"StaticText1", 136, 358, 40, 20, 2, "Rectangle3"},
                                .value = "p =",
                                .bold = true,
                                .colour = kDarkRed};
constexpr LabelRow kPText{.place = {"pText", 164, 358, 60, 20, 3, "Rectangle3"},
                          .tab_stop = true,
                          .alignment = TextAlignment::kCentre,
                          .colour = kBlack};
constexpr LabelRow kStaticText7{.place = {"StaticText7", 251, 358, 85, 20, 4, "Rectangle3"},
                                .value = "95% CI of r =",
                                .bold = true,
                                .colour = kDarkRed};
constexpr LabelRow kCiText{.place = {"ciText", 334, 358, 95, 20, 5, "Rectangle3"},
                           .tab_stop = true,
                           .alignment = TextAlignment::kCentre,
                           .colour = kBlack};
constexpr LabelRow kTText{
    .place = {"tText", 60, 358, 60, 20, 1, "Rectangle3"}, .tab_stop = true, .colour = kBlack};

static_assert(kStreamOf<kWindow>.length == 371);
static_assert(kStreamOf<kRSlider>.length == 388);

constexpr std::array kAccessibleTexts{
    AccessibleText{"rEdit", "r", "", "StaticText2"},
    AccessibleText{"rSlider", "r", "", "StaticText2"},
    AccessibleText{"nEdit", "N", "", "StaticText3"},
    AccessibleText{"nSlider", "N", "", "StaticText3"},
    AccessibleText{"zFld", "Fisher's z", "", "StaticText8"},
    AccessibleText{"Qbtn", "Info", "", ""},
    AccessibleText{"tText", "", "Student's t", ""},
    AccessibleText{"pText", "", "two-tailed p", ""},
    AccessibleText{"ciText", "", "95% confidence interval of r", ""},
    AccessibleText{"nText", "", "range of N", ""},
};

// Makes a control, enters it in the window under its name, and then sets its properties.
template <class ControlClass, const auto& kRow>
void Create(Window& window) {
  window._AddControl(kRow.place.name, window.__New<ControlClass>());
  _SetProperties(*window.ControlNamed<ControlClass>(kRow.place.name), kStreamOf<kRow>);
}

}  // namespace

const ClassInfo ControlWnd::kClass{
    "ControlWnd.ControlWnd", &Window::kClass, {}, ImplementsWindowEvent<class ControlWnd>};

void ControlWnd::Layout() {
  SetMenuBar(Menu());
  _SetProperties(*this, kStreamOf<kWindow>);
}

void ControlWnd::CreateControls() { _CreateControls0(); }

// Events are wired after the properties of their control, so that setting a property calls no
// handler.
void ControlWnd::_CreateControls0() {
  Create<TextField, kREdit>(*this);
  AddHandler(rEdit()->TextChange, this, &ControlWnd::rEdit_TextChange);
  AddHandler(rEdit()->KeyDown, this, &ControlWnd::rEdit_KeyDown);
  Create<TextField, kNEdit>(*this);
  AddHandler(nEdit()->TextChange, this, &ControlWnd::nEdit_TextChange);
  AddHandler(nEdit()->KeyDown, this, &ControlWnd::nEdit_KeyDown);
  Create<Rectangle, kRectangle2>(*this);
  _AddControl("Canvas3", __New<Canvas>());
  Canvas3()->SetBackdrop(_x_ChartSmall::ChartSmall());
  _SetProperties(*Canvas3(), kStreamOf<kCanvas3>);
  Create<Label, kStaticText4>(*this);
  Create<Label, kStaticText9>(*this);
  Create<Rectangle, kRectangle1>(*this);
  Create<Slider, kRSlider>(*this);
  AddHandler(rSlider()->ValueChanged, this, &ControlWnd::rSlider_ValueChanged);
  Create<Slider, kNSlider>(*this);
  AddHandler(nSlider()->ValueChanged, this, &ControlWnd::nSlider_ValueChanged);
  Create<Label, kStaticText2>(*this);
  Create<Label, kStaticText3>(*this);
  Create<Label, kNText>(*this);
  Create<Label, kStaticText8>(*this);
  Create<TextField, kZFld>(*this);
  Create<PushButton, kQbtn>(*this);
  AddHandler(Qbtn()->MouseDown, this, &ControlWnd::Qbtn_MouseDown);
  Create<Rectangle, kRectangle3>(*this);
  Create<Label, kStaticText5>(*this);
  Create<Label, kStaticText1>(*this);
  Create<Label, kPText>(*this);
  Create<Label, kStaticText7>(*this);
  Create<Label, kCiText>(*this);
  Create<Label, kTText>(*this);
}

std::span<const AccessibleText> ControlWnd::AccessibleTexts() const { return kAccessibleTexts; }

Ref<TextField> ControlWnd::rEdit() { return ControlNamed<TextField>("rEdit"); }
Ref<TextField> ControlWnd::nEdit() { return ControlNamed<TextField>("nEdit"); }
Ref<Rectangle> ControlWnd::Rectangle2() { return ControlNamed<Rectangle>("Rectangle2"); }
Ref<Canvas> ControlWnd::Canvas3() { return ControlNamed<Canvas>("Canvas3"); }
Ref<Label> ControlWnd::StaticText4() { return ControlNamed<Label>("StaticText4"); }
Ref<Label> ControlWnd::StaticText9() { return ControlNamed<Label>("StaticText9"); }
Ref<Rectangle> ControlWnd::Rectangle1() { return ControlNamed<Rectangle>("Rectangle1"); }
Ref<Slider> ControlWnd::rSlider() { return ControlNamed<Slider>("rSlider"); }
Ref<Slider> ControlWnd::nSlider() { return ControlNamed<Slider>("nSlider"); }
Ref<Label> ControlWnd::StaticText2() { return ControlNamed<Label>("StaticText2"); }
Ref<Label> ControlWnd::StaticText3() { return ControlNamed<Label>("StaticText3"); }
Ref<Label> ControlWnd::nText() { return ControlNamed<Label>("nText"); }
Ref<Label> ControlWnd::StaticText8() { return ControlNamed<Label>("StaticText8"); }
Ref<TextField> ControlWnd::zFld() { return ControlNamed<TextField>("zFld"); }
Ref<PushButton> ControlWnd::Qbtn() { return ControlNamed<PushButton>("Qbtn"); }
Ref<Rectangle> ControlWnd::Rectangle3() { return ControlNamed<Rectangle>("Rectangle3"); }
Ref<Label> ControlWnd::StaticText5() { return ControlNamed<Label>("StaticText5"); }
Ref<Label> ControlWnd::StaticText1() { return ControlNamed<Label>("StaticText1"); }
Ref<Label> ControlWnd::pText() { return ControlNamed<Label>("pText"); }
Ref<Label> ControlWnd::StaticText7() { return ControlNamed<Label>("StaticText7"); }
Ref<Label> ControlWnd::ciText() { return ControlNamed<Label>("ciText"); }
Ref<Label> ControlWnd::tText() { return ControlNamed<Label>("tText"); }

}  // namespace vamo
