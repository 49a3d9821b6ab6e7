#include "shell/about_wnd.h"

#include <array>

#include "controlwnd/chart_small.h"
#include "controlwnd/colours.h"
#include "controlwnd/control_wnd.h"
#include "controlwnd/streams.h"
#include "shell/rights.h"
#include "toolkit/runtime/runtime.h"

namespace vamo {
namespace {

constexpr auto kWindow = WindowStream({.width = 300,
                                       .height = 200,
                                       .type = WindowType::kSplash,
                                       .has_maximize_button = true,
                                       .resizeable = true});
constexpr auto kStaticText5 = LabelStream({.place = {"StaticText5", 0, 181, 298, 15, 0},
                                           .tab_stop = true,
                                           .value = kRightsNotice,
                                           .font_size = 9,
                                           .alignment = TextAlignment::kCentre,
                                           .colour = kDarkRed});
constexpr auto kCanvas1 =
    CanvasStream({.place = {"Canvas1", 104, 60, 92, 72, 1}, .tab_stop = false, .enabled = false});
constexpr auto kStaticText1 = LabelStream({.place = {"StaticText1", 0, 0, 298, 55, 3},
                                           .value = "Vamo",
                                           .font_size = 42,
                                           .bold = true,
                                           .alignment = TextAlignment::kCentre,
                                           .colour = kDarkRed});
constexpr auto kTimer1 = TimerStream({.run_mode = RunMode::kSingle, .period = 4000});

static_assert(kCanvas1.Length() == 322, "the streams are fixed to the byte");
static_assert(kTimer1.Length() == 31, "the streams are fixed to the byte");

constexpr std::array kAccessibleTexts{
    AccessibleText{.control = "StaticText5", .describes_window = true}};

// Reaches both windows through their accessors, not through the object that received the event.
void HandOver() {
  vamo::AboutWnd()->Hide();
  ControlWnd()->Show();
}

constexpr std::string_view kEvents[] = {"CreateControls", "KeyDown", "Layout", "MouseDown"};

}  // namespace

constinit const ClassInfo AboutWnd::kClass{"AboutWnd.AboutWnd", &Window::kClass, {}, kEvents};

bool AboutWnd::IsEventImplemented(std::string_view event) const {
  return _RuntimeIsEventHandled(*this, kClass.name, event, /*user=*/true);
}

void AboutWnd::Layout() { _SetProperties(*this, kWindow); }

void AboutWnd::CreateControls() { _CreateControls0(); }

void AboutWnd::_CreateControls0() {
  _AddControl("StaticText5", __New<Label>());
  _SetProperties(*StaticText5(), kStaticText5);
  _AddControl("Canvas1", __New<Canvas>());
  Canvas1()->SetBackdrop(_x_ChartSmall::ChartSmall());
  _SetProperties(*Canvas1(), kCanvas1);
  _AddControl("StaticText1", __New<Label>());
  _SetProperties(*StaticText1(), kStaticText1);
  _AddControl("Timer1", __New<_wrapper_Timer1>());
  _SetProperties(*Timer1(), kTimer1);
  AddHandler(Timer1()->Action, this, &AboutWnd::Timer1_Action);
}

Ref<Label> AboutWnd::StaticText5() { return ControlNamed<Label>("StaticText5"); }
Ref<Canvas> AboutWnd::Canvas1() { return ControlNamed<Canvas>("Canvas1"); }
Ref<Label> AboutWnd::StaticText1() { return ControlNamed<Label>("StaticText1"); }
Ref<Timer> AboutWnd::Timer1() { return ControlNamed<Timer>("Timer1"); }

std::span<const AccessibleText> AboutWnd::AccessibleTexts() const { return kAccessibleTexts; }

void AboutWnd::Timer1_Action(Ref<Timer> /*timer*/) { HandOver(); }

bool AboutWnd::Event_KeyDown(std::string /*key*/) {
  HandOver();
  return false;
}

bool AboutWnd::Event_MouseDown(std::int64_t /*x*/, std::int64_t /*y*/) {
  HandOver();
  return false;
}

}  // namespace vamo
