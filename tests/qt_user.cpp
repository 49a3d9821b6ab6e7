// The user of the Qt display, in the program's own process: sends events through Qt's queue and
// reads what a screen reader reads.
#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QElapsedTimer>
#include <QMenuBar>
#include <QTest>
#include <QTimer>
#include <QWindow>
#include <algorithm>
#include <cmath>
#include <map>
#include <memory>

#include "displays/qt/display.h"
#include "qt_input.h"
#include "shell/startup.h"
#include "toolkit/exceptions.h"
#include "toolkit/utf8.h"
#include "user.h"

namespace vamo {
namespace {

// The role of an accessible, or nothing for one that a user has no business with.
std::optional<Role> RoleOf(QAccessibleInterface& accessible) {
  switch (accessible.role()) {
    case QAccessible::EditableText:
      return Role::kText;
    case QAccessible::Slider:
      return Role::kSlider;
    case QAccessible::Button:
      return Role::kButton;
    case QAccessible::StaticText:
      return Role::kLabel;
    default:
      return std::nullopt;
  }
}

std::string Text(QAccessibleInterface& accessible, QAccessible::Text which) {
  return accessible.text(which).toStdString();
}

// A value of a slider, counted in its steps.
std::int64_t InSteps(const QAccessibleValueInterface& slider, double value) {
  return std::llround(value / slider.minimumStepSize().toDouble());
}

ShownControl Read(QAccessibleInterface& accessible) {
  ShownControl shown;
  shown.role = RoleOf(accessible).value_or(Role::kLabel);
  shown.name = Text(accessible, QAccessible::Name);
  shown.description = Text(accessible, QAccessible::Description);
  shown.visible = !accessible.state().invisible;
  shown.enabled = !accessible.state().disabled;
  shown.text = shown.role == Role::kLabel ? shown.name : Text(accessible, QAccessible::Value);
  if (auto* value = accessible.valueInterface()) {
    shown.value = value->currentValue().toDouble();
    shown.position = InSteps(*value, shown.value);
  }
  if (auto* text = accessible.textInterface()) {
    shown.text = text->text(0, text->characterCount()).toStdString();
    int start = 0;
    int end = 0;
    text->selection(0, &start, &end);
    shown.selected_text = text->text(start, end).toStdString();
  }
  for (const auto& [other, relation] : accessible.relations(QAccessible::Label)) {
    shown.labelled_by = Text(*other, QAccessible::Name);
  }
  return shown;
}

[[noreturn]] void FailToFind(std::string_view what) {
  throw KeyNotFoundException("Not on the screen: " + std::string(what));
}

class CountingDisplay : public QtDisplay {
 public:
  explicit CountingDisplay(std::function<void(CountingDisplay&)> user)
      : QtDisplay("vamo"), user_(std::move(user)) {}

  void Run() override {
    QTimer::singleShot(0, [this] {
      user_(*this);
      Stop();
    });
    QtDisplay::Run();
  }
  void Stop() override {
    stopped_ = true;
    QtDisplay::Stop();
  }
  void Beep() override {
    ++beeps_;
    QtDisplay::Beep();
  }
  // Offscreen there is no assistive technology that could hear it.
  void Announce(std::string_view sentence) override { announcements_.emplace_back(sentence); }
  int beeps() const { return beeps_; }
  std::vector<std::string> TakeAnnouncements() { return std::exchange(announcements_, {}); }
  bool stopped() const { return stopped_; }

 private:
  std::function<void(CountingDisplay&)> user_;
  int beeps_ = 0;
  std::vector<std::string> announcements_;
  bool stopped_ = false;
};

class QtUser : public User {
 public:
  explicit QtUser(CountingDisplay& display) : display_(display) { Settle(); }

  void PressKey(const Key& key) override {
    input_.PressKey(key);
    Settle();
  }
  void Type(std::string_view text) override {
    for (std::size_t at = 0; at < text.size(); at = NextCharacter(text, at)) {
      PressKey(Key::Character(std::string(text.substr(at, NextCharacter(text, at) - at))));
    }
  }
  void Paste(std::string_view text) override {
    QGuiApplication::clipboard()->setText(QString::fromStdString(std::string(text)));
    PressKey(Key::Command("v"));
  }
  void Click(Role role, std::string_view name) override {
    ClickAt(Find(role, name).rect().center());
  }
  void DragSlider(std::string_view name, const std::vector<std::int64_t>& positions) override {
    QAccessibleInterface& slider = Find(Role::kSlider, name);
    Drag(slider, Read(slider).position, positions);
    NudgeSlider(*this, name, positions.back());
  }
  void PressGroove(std::string_view name, std::int64_t at, std::int64_t drag_to) override {
    Drag(Find(Role::kSlider, name), at, {drag_to});
  }
  void TurnWheel(std::string_view slider, std::int64_t notches) override {
    input_.MoveTo(Find(Role::kSlider, slider).rect().center());
    input_.TurnWheel(static_cast<int>(notches));
    Settle();
  }
  void PressByAssistiveTechnology(std::string_view button) override {
    Find(Role::kButton, button)
        .actionInterface()
        ->doAction(QAccessibleActionInterface::pressAction());
    Settle();
  }
  void Choose(std::string_view path) override {
    const auto [menu, item] = Open(path);
    ClickAt(menu->mapToGlobal(menu->actionGeometry(item).center()));
  }
  bool CanChoose(std::string_view path) override {
    const auto [menu, item] = Open(path);
    const bool enabled = item->isEnabled();
    menu->close();
    Settle();
    return enabled;
  }
  void Close(std::string_view title) override {
    ActivateWindow(title);
    QApplication::activeWindow()->windowHandle()->close();
    Settle();
  }
  void ActivateWindow(std::string_view title) override {
    QWidget& window = Titled(title);
    if (window.isActiveWindow()) return;
    window.windowHandle()->requestActivate();
    Settle([&] { return window.isActiveWindow() && IsSettled(); });
  }
  void Wait(std::chrono::milliseconds time) override {
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < time.count() && !display_.stopped()) QTest::qWait(10);
    Settle();
  }

  std::vector<std::string> Windows() override {
    std::vector<std::string> titles;
    for (const QWidget* window : OnScreen()) titles.push_back(Title(*window));
    std::sort(titles.begin(), titles.end());
    return titles;
  }
  std::string ActiveTitle() override {
    const QWidget* active = QApplication::activeWindow();
    return active == nullptr ? "(none)" : Title(*active);
  }
  ShownControl Sees(Role role, std::string_view name) override { return Read(Find(role, name)); }
  ShownControl SeesDescribed(std::string_view description) override {
    QAccessibleInterface* found = FirstBelow(Active(), [&](QAccessibleInterface& accessible) {
      return Text(accessible, QAccessible::Description) == description;
    });
    if (found == nullptr) FailToFind(description);
    return Read(*found);
  }
  ShownControl Focused() override {
    QAccessibleInterface* found = FirstBelow(
        Active(), [](QAccessibleInterface& accessible) { return accessible.state().focused; });
    return found == nullptr ? ShownControl{} : Read(*found);
  }
  std::string Clipboard() override { return QGuiApplication::clipboard()->text().toStdString(); }
  int Beeps() override { return display_.beeps(); }
  std::vector<std::string> Hears() override { return display_.TakeAnnouncements(); }

 private:
  using Predicate = std::function<bool(QAccessibleInterface&)>;

  static QAccessibleInterface* FirstBelow(QAccessibleInterface* accessible,
                                          const Predicate& matches) {
    if (accessible == nullptr) return nullptr;
    for (int i = 0; i < accessible->childCount(); ++i) {
      QAccessibleInterface* child = accessible->child(i);
      if (child == nullptr) continue;
      if (RoleOf(*child).has_value() && matches(*child)) return child;
      if (QAccessibleInterface* found = FirstBelow(child, matches)) return found;
    }
    return nullptr;
  }
  static QAccessibleInterface* Active() {
    return QAccessible::queryAccessibleInterface(QApplication::activeWindow());
  }
  static QAccessibleInterface& Find(Role role, std::string_view name) {
    QAccessibleInterface* found = FirstBelow(Active(), [&](QAccessibleInterface& accessible) {
      return RoleOf(accessible) == role && Text(accessible, QAccessible::Name) == name;
    });
    if (found == nullptr) FailToFind(name);
    return *found;
  }

  static std::vector<QWidget*> OnScreen() {
    std::vector<QWidget*> windows;
    for (QWidget* widget : QApplication::topLevelWidgets()) {
      const bool window = widget->windowType() == Qt::Window || widget->windowType() == Qt::Dialog;
      if (widget->isVisible() && window) windows.push_back(widget);
    }
    return windows;
  }
  // The About window has no title of its own; what a task bar shows of it does not count.
  static std::string Title(const QWidget& window) {
    return window.objectName() == "AboutWnd.AboutWnd" ? "" : window.windowTitle().toStdString();
  }
  static QWidget& Titled(std::string_view title) {
    for (QWidget* window : OnScreen()) {
      if (Title(*window) == title) return *window;
    }
    FailToFind(title);
  }

  static QPoint KnobIn(QAccessibleInterface& slider, std::int64_t position) {
    QAccessibleValueInterface& value = *slider.valueInterface();
    const QRect rect = slider.rect();
    const int offset = KnobAt(position, InSteps(value, value.minimumValue().toDouble()),
                              InSteps(value, value.maximumValue().toDouble()), rect.width());
    return {rect.left() + offset, rect.center().y()};
  }
  void Drag(QAccessibleInterface& slider, std::int64_t from,
            const std::vector<std::int64_t>& positions) {
    input_.MoveTo(KnobIn(slider, from));
    input_.Press();
    Settle();
    for (const std::int64_t position : positions) {
      input_.MoveTo(KnobIn(slider, position));
      Settle();
    }
    input_.Release();
    Settle();
  }
  void ClickAt(const QPoint& point) {
    input_.MoveTo(point);
    input_.Press();
    Settle();
    if (display_.stopped()) return;
    input_.Release();
    Settle();
  }

  // Opens the menu of a path with the mouse and gives the item in it.
  std::pair<QMenu*, QAction*> Open(std::string_view path) {
    const std::size_t slash = path.find('/');
    const QString menu_text = QString::fromStdString(std::string(path.substr(0, slash)));
    const QString item_text = QString::fromStdString(std::string(path.substr(slash + 1)));
    const auto called = [](const QList<QAction*>& actions, const QString& text) {
      for (QAction* action : actions) {
        if (action->text().remove('&').section('\t', 0, 0) == text) return action;
      }
      FailToFind(text.toStdString());
    };
    auto* bar = QApplication::activeWindow()->findChild<QMenuBar*>();
    QAction* menu = called(bar->actions(), menu_text);
    ClickAt(bar->mapToGlobal(bar->actionGeometry(menu).center()));
    if (!menu->menu()->isVisible()) FailToFind("open menu " + menu_text.toStdString());
    return {menu->menu(), called(menu->menu()->actions(), item_text)};
  }

  // Lets the program deal with what has been sent, until the window system has no more to say and,
  // unless something else is waited for, one of the program's windows has the keys.
  void Settle(const std::function<bool()>& settled = IsSettled) {
    QElapsedTimer patience;
    patience.start();
    do {
      QGuiApplication::sync();
      if (display_.stopped()) return;
    } while (patience.elapsed() < 3000 && !settled());
  }
  static bool IsSettled() {
    if (QApplication::activePopupWidget() != nullptr) return true;
    for (const QWidget* window : OnScreen()) {
      if (window->windowHandle() == nullptr || !window->windowHandle()->isExposed()) return false;
    }
    return QApplication::activeWindow() != nullptr && QApplication::activeWindow()->isVisible();
  }

  CountingDisplay& display_;
  QtInput input_;
};

}  // namespace

int RunProgram(const std::function<void(User&)>& journey) {
  return Main(std::make_unique<CountingDisplay>([&](CountingDisplay& display) {
    QtUser user(display);
    journey(user);
  }));
}

}  // namespace vamo
