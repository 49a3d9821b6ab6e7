// The user of the Qt display inside the program's process: sends events through Qt's queue and
// reads what a screen reader reads.
#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QElapsedTimer>
#include <QKeySequence>
#include <QTest>
#include <QTimer>
#include <QWheelEvent>
#include <QWindow>
#include <map>
#include <memory>

#include "displays/qt/display.h"
#include "journeys/journey_steps.h"
#include "screen_user.h"
#include "shell/startup.h"

namespace vamo {
namespace {

// An accessible element of the program, with the role names that AT-SPI uses.
class QtElement {
 public:
  explicit QtElement(QAccessibleInterface* accessible) : accessible_(accessible) {}

  std::string RoleName() const {
    static const std::map<QAccessible::Role, std::string> kNames{
        {QAccessible::EditableText, "text"},  {QAccessible::Slider, "slider"},
        {QAccessible::Button, "button"},      {QAccessible::StaticText, "label"},
        {QAccessible::Window, "frame"},       {QAccessible::MenuBar, "menu bar"},
        {QAccessible::MenuItem, "menu item"}, {QAccessible::Dialog, "dialog"},
        {QAccessible::Chart, "chart"},
    };
    const auto found = kNames.find(accessible_->role());
    return found == kNames.end() ? "" : found->second;
  }
  std::string Name() const { return Told(QAccessible::Name); }
  std::string Description() const { return Told(QAccessible::Description); }
  std::vector<QtElement> Children() const {
    std::vector<QtElement> children;
    for (int i = 0; i < accessible_->childCount(); ++i) {
      if (QAccessibleInterface* child = accessible_->child(i)) children.emplace_back(child);
    }
    return children;
  }
  bool IsShowing() const { return !accessible_->state().invisible; }
  bool IsEnabled() const { return !accessible_->state().disabled; }
  bool IsFocused() const { return accessible_->state().focused; }
  bool IsActive() const { return accessible_->state().active; }
  std::string Text() const {
    QAccessibleTextInterface* text = accessible_->textInterface();
    return text != nullptr ? text->text(0, text->characterCount()).toStdString() : Name();
  }
  std::string SelectedText() const {
    int start = 0;
    int end = 0;
    accessible_->textInterface()->selection(0, &start, &end);
    return accessible_->textInterface()->text(start, end).toStdString();
  }
  std::string LabelledBy() const {
    std::string name;
    for (const auto& [other, relation] : accessible_->relations(QAccessible::Label)) {
      name = QtElement(other).Name();
    }
    return name;
  }
  Scale ReadScale() const {
    QAccessibleValueInterface& value = *accessible_->valueInterface();
    return {value.currentValue().toDouble(), value.minimumValue().toDouble(),
            value.maximumValue().toDouble(), value.minimumStepSize().toDouble()};
  }
  Place Extents() const {
    const QRect rect = accessible_->rect();
    return {rect.x(), rect.y(), rect.width(), rect.height()};
  }
  QWindow& Window() const { return *accessible_->window(); }
  void Press() const { accessible_->actionInterface()->doAction("Press"); }

 private:
  std::string Told(QAccessible::Text which) const { return accessible_->text(which).toStdString(); }

  QAccessibleInterface* accessible_;
};

// Runs the user in the loop of the display and records what the user cannot see.
struct RecordingDisplay : QtDisplay {
  explicit RecordingDisplay(std::function<void(RecordingDisplay&)> its_user)
      : QtDisplay("vamo"), user(std::move(its_user)) {}

  void Run() override {
    QTimer::singleShot(0, [this] {
      user(*this);
      Stop();
    });
    QtDisplay::Run();
  }
  void Stop() override {
    stopped = true;
    QtDisplay::Stop();
  }
  void Beep() override {
    ++beeps;
    QtDisplay::Beep();
  }
  // Offscreen no assistive technology can receive the announcement.
  void Announce(std::string_view sentence) override { announcements.emplace_back(sentence); }

  const std::function<void(RecordingDisplay&)> user;
  int beeps = 0;
  std::vector<std::string> announcements;
  bool stopped = false;
};

class QtUser final : public ScreenUser<QtElement> {
 public:
  explicit QtUser(RecordingDisplay& display) : display_(display) { Settle(); }

  void SetClipboard(std::string_view text) override {
    QGuiApplication::clipboard()->setText(QString::fromStdString(std::string(text)));
  }
  void Close(std::string_view title) override {
    ActivateWindow(title);
    Act([] { QApplication::activeWindow()->windowHandle()->close(); });
  }
  void ActivateWindow(std::string_view title) override {
    if (ActiveTitle() == title) return;
    for (const QtElement& window : Application()->Children()) {
      if (window.IsShowing() && TitleOf(window) == title) window.Window().requestActivate();
    }
    if (!QTest::qWaitFor([&] { return ActiveTitle() == title; })) FailToFind(title);
    Settle();
  }
  void LetTimePass(std::chrono::milliseconds time) override {
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < time.count() && Running()) QTest::qWait(10);
    Settle();
  }
  std::string Clipboard() override { return QGuiApplication::clipboard()->text().toStdString(); }
  int Beeps() override { return display_.beeps; }
  std::vector<std::string> Hears() override { return std::exchange(display_.announcements, {}); }

 private:
  void PressCombination(const std::string& keys) override {
    QString name = QString::fromStdString(keys).replace('_', ' ');
    const QKeyCombination pressed =
        QKeySequence::fromString(name.replace("plus", "+").replace("minus", "-"))[0];
    QChar text = QLatin1Char(QTest::keyToAscii(pressed.key()));
    if (pressed.keyboardModifiers() & Qt::ControlModifier) text = QChar(text.unicode() & 0x1F);
    SendKey(pressed.key(), text.isNull() ? QString() : QString(text), pressed.keyboardModifiers());
  }
  void TypePrintable(std::string_view text) override {
    for (const QChar character : QString::fromStdString(std::string(text))) {
      SendKey(Qt::Key(character.toUpper().unicode()), character, Qt::NoModifier);
    }
  }
  static void SendKey(Qt::Key key, const QString& text, Qt::KeyboardModifiers modifiers) {
    for (const auto action : {QTest::Press, QTest::Release}) {
      // No window receives the release of a key that has closed the last window.
      if (QWindow* window = QGuiApplication::focusWindow()) {
        QTest::sendKeyEvent(action, window, key, text, modifiers);
      }
    }
  }
  void MoveTo(int x, int y) override {
    mouse_ = {x, y};
    Mouse(QTest::MouseMove, Qt::NoButton);
  }
  void PressMouse() override { Mouse(QTest::MousePress, Qt::LeftButton); }
  void ReleaseMouse() override { Mouse(QTest::MouseRelease, Qt::LeftButton); }
  void Scroll(int notches) override {
    QWidget* widget = QApplication::widgetAt(mouse_);
    QWheelEvent event(widget->mapFromGlobal(QPointF(mouse_)), mouse_, {}, {0, 120 * notches},
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(widget, &event);
  }
  void Mouse(QTest::MouseAction action, Qt::MouseButton button) {
    QWindow* window = QGuiApplication::topLevelAt(mouse_);
    if (window == nullptr) return;
    QTest::mouseEvent(action, window, button, {}, window->mapFromGlobal(mouse_));
  }
  std::optional<QtElement> Application() override {
    return QtElement(QAccessible::queryAccessibleInterface(qApp));
  }
  bool Running() override { return !display_.stopped; }
  void Settle() override {
    QElapsedTimer patience;
    patience.start();
    do {
      QGuiApplication::sync();
    } while (Running() && patience.elapsed() < 3000 && !IsSettled());
  }
  // Whether all windows are on the screen and one of them has the focus.
  static bool IsSettled() {
    if (QApplication::activePopupWidget() != nullptr) return true;
    for (const QWindow* window : QGuiApplication::topLevelWindows()) {
      if (window->isVisible() && !window->isExposed()) return false;
    }
    const QWidget* active = QApplication::activeWindow();
    return active != nullptr && active->isVisible();
  }

  RecordingDisplay& display_;
  QPoint mouse_;
};

}  // namespace

int RunProgram(const std::function<void(User&)>& journey) {
  bool running = false;
  const int status = Main(std::make_unique<RecordingDisplay>([&](RecordingDisplay& display) {
    QtUser user(display);
    journey(user);
    running = !display.stopped;
  }));
  return running ? kStillRunning : status;
}

}  // namespace vamo
