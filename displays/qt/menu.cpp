#include "displays/qt/menu.h"

#include <QAction>
#include <QMenu>
#include <array>
#include <vector>

#include "displays/qt/convert.h"
#include "displays/qt/zoom.h"
#include "toolkit/window/menu_service.h"
#include "toolkit/window/view_menu.h"

namespace vamo {
namespace {

QString Escaped(const QString& title) { return QString(title).replace(u'&', QStringLiteral("&&")); }

// Where to start looking for the mnemonic of an item. On every desktop T is Cut, because C is Copy,
// and A is Select All.
qsizetype FirstCandidate(const QString& title) {
  if (title == QStringLiteral("Cut")) return 2;
  return title == QStringLiteral("Select All") ? 7 : 0;
}

QAction::MenuRole Role(const MenuItem& item) {
  if (dynamic_cast<const QuitMenuItem*>(&item) != nullptr) return QAction::QuitRole;
  const bool about = dynamic_cast<const AppleMenuItem*>(&item) != nullptr;
  return about && !item.Value().empty() ? QAction::AboutRole : QAction::NoRole;
}

// The commands that this display adds to the View menu. The toolkit's items there take the letter
// C.
struct ZoomCommand {
  const char* title;
  const char* shortcut;
  void (Zoom::*act)();
  bool (Zoom::*can_act)() const;
};
constexpr std::array kZoomCommands{
    ZoomCommand{"&Larger", "Ctrl++", &Zoom::Enlarge, &Zoom::CanEnlarge},
    ZoomCommand{"&Smaller", "Ctrl+-", &Zoom::Reduce, &Zoom::CanReduce},
    ZoomCommand{"&Original Size", "Ctrl+0", &Zoom::Restore, &Zoom::CanRestore},
};

// Only shows the shortcut: the key is handled elsewhere and must not act twice.
void ShowShortcut(QAction& action, const QString& shortcut) {
  action.setShortcut(QKeySequence(shortcut));
  action.setShortcutContext(Qt::WidgetShortcut);
}

// A menu, and the items that its entries stand for.
class Menu : public QMenu {
 public:
  explicit Menu(QMenuBar& bar) : QMenu(&bar) {
    connect(this, &QMenu::aboutToShow, this, [this] {
      UserOpensMenu();
      Refresh();
    });
  }

  void Add(const Ref<MenuItem>& item) {
    QAction* action = addAction(QString());
    action->setMenuRole(Role(*item));
    ShowShortcut(
        *action,
        ToQString(item->Shortcut()).replace(QStringLiteral("Cmd"), QStringLiteral("Ctrl")));
    connect(action, &QAction::triggered, this, [item] { UserChose(item); });
    entries_.push_back({action, item});
  }

  void Add(const ZoomCommand& command, Zoom& zoom) {
    QAction* action = addAction(QLatin1String(command.title));
    ShowShortcut(*action, QLatin1String(command.shortcut));
    connect(action, &QAction::triggered, this, [&zoom, act = command.act] { (zoom.*act)(); });
    connect(this, &QMenu::aboutToShow, action,
            [action, &zoom, can_act = command.can_act] { action->setEnabled((zoom.*can_act)()); });
  }

  void Refresh() {
    QString letters_in_use;
    for (const auto& [action, item] : entries_) {
      action->setSeparator(IsSeparator(*item));
      action->setVisible(IsDrawn(*item));
      action->setEnabled(item->Enabled());
      action->setCheckable(item->Checked().has_value());
      action->setChecked(item->Checked().value_or(false));
      // A style may draw a separator's text beside its line.
      const bool has_text = action->isVisible() && !action->isSeparator();
      action->setText(has_text ? WithMnemonic(ToQString(item->Value()), letters_in_use)
                               : QString());
    }
  }

 private:
  struct Entry {
    QAction* action;
    Ref<MenuItem> item;
  };
  std::vector<Entry> entries_;
};

}  // namespace

QString WithMnemonic(const QString& title, QString& letters_in_use) {
  for (qsizetype i = FirstCandidate(title); i < title.size(); ++i) {
    if (!title[i].isLetter() || letters_in_use.contains(title[i], Qt::CaseInsensitive)) continue;
    letters_in_use += title[i];
    return Escaped(title.left(i)) + u'&' + Escaped(title.mid(i));
  }
  return Escaped(title);
}

void FillMenuBar(QMenuBar& bar, const MenuBar& tree, Zoom& zoom) {
  QString letters_in_use;
  for (const DrawnMenu& drawn : DrawnMenus(tree)) {
    auto* menu = new Menu(bar);
    for (const Ref<MenuItem>& item : drawn.items) menu->Add(item);
    menu->Refresh();
    if (drawn.text == kViewMenu) {
      menu->addSeparator();
      for (const ZoomCommand& command : kZoomCommands) menu->Add(command, zoom);
    }
    menu->setTitle(WithMnemonic(ToQString(drawn.text), letters_in_use));
    bar.addMenu(menu);
  }
}

}  // namespace vamo
