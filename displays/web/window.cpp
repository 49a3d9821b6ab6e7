#include "displays/web/window.h"

#include <cmath>
#include <optional>
#include <string>
#include <utility>

#include "displays/web/controls.h"
#include "displays/web/display.h"
#include "displays/web/keys.h"
#include "displays/web/text.h"

namespace vamo {
namespace {

// The splash has the same title as the control window.
std::string NameOf(const Window& window) {
  return (window.IsSplash() ? "About " : "") + window.ListedTitle();
}

bool IsText(WebControl* control) { return dynamic_cast<WebText*>(control) != nullptr; }

}  // namespace

WebWindow::WebWindow(WebDisplay& display, Window& window)
    : display_(display),
      window_(window),
      touched_([this](const PageReport& report) {
        if (report.event == PageEvent::kPressBegins) return BeginPress(report);
        if (report.event != PageEvent::kPress) return PageAnswer::kPassed;
        BringToFront();
        // The focus stays where it is.
        return PageAnswer::kPrevented;
      }),
      pressed_([this](const PageReport& report) { return HandlePress(report); }),
      closed_([this](const PageReport& report) {
        if (report.event != PageEvent::kClick) return PageAnswer::kPassed;
        window_.UserAskedToClose();
        return PageAnswer::kHandled;
      }),
      frame_(display.Page(), "section", &touched_),
      content_(frame_, "div", &pressed_) {
  const Window::State& state = window.InitialState();
  frame_.SetAttribute("aria-label", NameOf(window));
  if (window.IsSplash()) frame_.SetAttribute("role", "dialog");
  if (!window.AccessibleDescription().empty()) {
    frame_.SetAttribute("aria-description", window.AccessibleDescription());
  }
  frame_.SetAttribute("tabindex", "-1");
  frame_.SetAttribute("class", window.IsSplash() ? "window splash" : "window");
  frame_.SetFlag("hidden", true);
  frame_.SetStyle("--width", std::to_string(state.width));
  frame_.SetStyle("--height", std::to_string(state.height));
  content_.SetAttribute("class", "content");
  content_.SetStyle("background-color",
                    state.has_background_colour ? ToCss(state.background_colour) : "#fff");
  if (window.IsSplash()) {
    MakeHiddenHeading();
  } else {
    MakeTitleBar();
  }
  if (window.MenuBar()) menu_bar_ = std::make_unique<WebMenuBar>(*this, frame_, *window.MenuBar());
  content_.BringToEnd();
  if (const Pane* pane = window.SidePane()) {
    pane_ = std::make_unique<WebPane>(frame_, *pane, static_cast<double>(state.height));
  }
  display_.Order().Add(*this);
}

WebWindow::~WebWindow() {
  display_.Order().Remove(*this);
  display_.ActivateLater();
}

// For screen reader users, who go from heading to heading.
void WebWindow::MakeHiddenHeading() {
  title_bar_.push_back(std::make_unique<PageElement>(frame_, "h1"));
  title_bar_.back()->SetAttribute("class", "unseen");
  title_bar_.back()->SetText(NameOf(window_));
}

void WebWindow::MakeTitleBar() {
  const auto add = [this](const PageElement& parent, std::string_view tag, PageListener* listener) {
    title_bar_.insert(title_bar_.begin(), std::make_unique<PageElement>(parent, tag, listener));
    return title_bar_.front().get();
  };
  PageElement* bar = add(frame_, "header", nullptr);
  add(*bar, "h1", nullptr)->SetText(window_.ListedTitle());
  if (!window_.InitialState().has_close_button) return;
  close_button_ = add(*bar, "button", &closed_);
  close_button_->SetAttribute("type", "button");
  close_button_->SetAttribute("aria-label", "Close");
  close_button_->SetText("×");
}

std::unique_ptr<ControlView> WebWindow::CreateControl(AnyControl control) {
  using View = std::unique_ptr<ControlView>;
  const Overloaded create{
      [this](Canvas* canvas) -> View { return std::make_unique<WebCanvas>(*this, *canvas); },
      [this](Label* label) -> View { return std::make_unique<WebLabel>(*this, *label); },
      [this](PushButton* button) -> View { return std::make_unique<WebButton>(*this, *button); },
      [this](Rectangle* shape) -> View { return std::make_unique<WebRectangle>(*this, *shape); },
      [this](Slider* slider) -> View { return std::make_unique<WebSlider>(*this, *slider); },
      [this](TextArea* area) -> View { return std::make_unique<WebArea>(*this, *area); },
      [this](TextField* field) -> View { return std::make_unique<WebField>(*this, *field); },
  };
  return std::visit(create, control);
}

// A caption can be the label of only one control: the first one. It is the description of the
// others.
void WebWindow::LinkCaptions() {
  for (WebControl* control : controls_) {
    const Ref<Label> caption = control->Control().LabelledBy();
    PageElement* element = caption ? ElementOf(*caption) : nullptr;
    if (element == nullptr) continue;
    if (element->HasAttribute("for")) {
      control->Element().SetAttribute("aria-describedby", element->Id());
    } else {
      element->SetAttribute("for", control->Element().Id());
    }
  }
}

// Some window of the page is always active, so this one may always be activated.
void WebWindow::Show(bool /*activate*/) {
  if (!std::exchange(has_been_shown_, true)) {
    LinkCaptions();
    arrangement_ = std::make_unique<Arrangement>(content_, controls_);
  }
  frame_.SetFlag("hidden", false);
  display_.Order().Show(*this);
  display_.ActivateLater();
  // The page may be scrolled to the chart.
  if (close_button_ != nullptr) close_button_->ComeIntoView();
}

void WebWindow::Hide() {
  frame_.SetFlag("hidden", true);
  display_.ActivateLater();
}

bool WebWindow::IsInFront() const { return display_.Front() == this; }

void WebWindow::BringToFront() {
  if (menu_bar_ != nullptr) menu_bar_->Leave();
  display_.Activate(*this);
}

void WebWindow::UpdateOrder(int depth) {
  frame_.SetStyle("z-index", std::to_string(depth));
  frame_.SetFlag("data-active", IsInFront());
  if (close_button_ != nullptr) close_button_->SetAttribute("tabindex", IsInFront() ? "0" : "-1");
  if (menu_bar_ != nullptr) menu_bar_->UpdateOrder(IsInFront());
  for (WebControl* control : controls_) control->Update();
}

void WebWindow::ShowFocus() {
  const WebControl* control = FocusedControl();
  if (control == nullptr || !control->OpensKeyboard()) {
    GiveFocus();
  } else if (IsInFront()) {
    frame_.Focus();
  }
}

// If the pane does not fit the page, the user scrolls to it.
bool WebWindow::ShowPane() {
  pane_->Update();
  const bool open = window_.SidePane()->IsOpen();
  display_.Page().SetFlag("data-pane", open);
  frame_.SetFlag("data-pane", open);
  return true;
}

// Scrolls the focused control into view.
void WebWindow::UpdateFocus() {
  GiveFocus();
  WebControl* control = FocusedControl();
  if (control != nullptr && control->Element().HasFocus()) control->Element().ComeIntoView();
}

void WebWindow::GiveFocus() {
  if (!IsInFront()) return;
  showing_focus_ = true;
  if (WebControl* control = FocusedControl()) {
    control->ShowFocus();
  } else {
    frame_.Focus();
  }
  showing_focus_ = false;
}

WebControl* WebWindow::FocusedControl() const {
  for (WebControl* control : controls_) {
    if (window_.Focus() && &control->Control() == &*window_.Focus()) return control;
  }
  return nullptr;
}

PageElement* WebWindow::ElementOf(const RectControl& control) const {
  for (WebControl* known : controls_) {
    if (&known->Control() == &control) return &known->Element();
  }
  return nullptr;
}

void WebWindow::ReportSelection() {
  if (WebControl* control = FocusedControl()) control->ReportSelection();
}

void WebWindow::Flash() {
  WebControl* control = FocusedControl();
  (control != nullptr ? control->Element() : content_).Flash();
}

PageAnswer WebWindow::HandleKey(const PageReport& report) {
  const std::optional<Key> key = ToKey(report, page::IsMac());
  if (!key.has_value()) return PageAnswer::kPassed;
  const bool with_command = key->command && key->code == KeyCode::kCharacter && !key->shift;
  // The browser's own events for these keys bring the clipboard.
  if (with_command && (key->text == "c" || key->text == "x" || key->text == "v")) {
    return PageAnswer::kPassed;
  }
  ReportSelection();
  const Ref<Window> window = Self(&window_);
  if (window->UserPressedKey(*key) || !window->IsLive()) return PageAnswer::kPrevented;
  if (report.text == "F10" && !report.shift && menu_bar_ != nullptr) {
    menu_bar_->Focus();
    return PageAnswer::kPrevented;
  }
  // Nothing else on the page can be selected.
  const bool selects_all = with_command && key->text == "a" && !IsText(FocusedControl());
  const bool types = key->code == KeyCode::kCharacter && !key->command && key->text[0] != kTab;
  return types || selects_all ? PageAnswer::kPrevented : PageAnswer::kPassed;
}

void WebWindow::HandleCommand(std::string_view letter) {
  ReportSelection();
  window_.UserPressedKey(Key::Command(std::string(letter)));
}

PageAnswer WebWindow::BeginPress(const PageReport& report) {
  const Ref<Window> window = Self(&window_);
  if (!window->UserBeginsPress(report.x != 0)) return PageAnswer::kPrevented;
  if (window->Visible()) display_.Activate(*this);
  return PageAnswer::kHandled;
}

PageAnswer WebWindow::HandlePress(const PageReport& report) {
  const bool by_other_button = report.event == PageEvent::kOtherPress;
  if (report.event != PageEvent::kPress && !by_other_button) return PageAnswer::kPassed;
  BringToFront();
  const Window::State& state = window_.InitialState();
  window_.UserPressedMouse(std::llround(report.x * static_cast<double>(state.width)),
                           std::llround(report.y * static_cast<double>(state.height)));
  // The other buttons are left to the browser too; a press of the main button does not move the
  // focus.
  return by_other_button ? PageAnswer::kHandled : PageAnswer::kPrevented;
}

}  // namespace vamo
