#include "toolkit/window/view_menu.h"

#include "toolkit/runtime/runtime.h"
#include "toolkit/window/pane.h"
#include "toolkit/window/window.h"

namespace vamo {

// Created at its first use and destroyed by the finalisers.
struct ViewMenuFields {
  Ref<MenuItem> pane;
};

namespace {

const Ref<MenuItem>& PaneItem() {
  Ref<MenuItem>& item = Runtime::Current().ModuleFields<ViewMenuFields>().pane;
  if (!item) {
    item = New<MenuItem>();
    item->Constructor();
    item->SetName(Pane::kName);
    item->SetValue(Pane::kName);
    item->SetShortcut("F9");
    item->SetChecked(false);
  }
  return item;
}

// The window whose pane the item opens, or nil: the visible window that has a pane, even if another
// window is active.
Ref<Window> WindowWithPane() {
  const Ref<Window>& active = Runtime::Current().ActiveWindow();
  if (active && active->IsSplash()) return nullptr;
  for (const Ref<Window>& window : Runtime::Current().LiveWindows()) {
    if (window->Visible() && window->SidePane() != nullptr) return window;
  }
  return nullptr;
}

}  // namespace

std::vector<Ref<MenuItem>> ViewItems() { return {PaneItem()}; }

void EnableViewItems() {
  const Ref<Window> window = WindowWithPane();
  PaneItem()->SetEnabled(bool(window));
  PaneItem()->SetChecked(window && window->SidePane()->IsOpen());
}

bool ChooseViewItem(const MenuItem& item) {
  if (&item != &*PaneItem()) return false;
  if (const Ref<Window> window = WindowWithPane()) window->SidePane()->Toggle();
  return true;
}

}  // namespace vamo
