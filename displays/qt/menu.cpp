#include "displays/qt/menu.h"

#include <QAction>
#include <QMenu>
#include <vector>

#include "displays/qt/convert.h"
#include "toolkit/window/menu_service.h"

namespace vamo {
namespace {

QString Escaped(const QString& title) { return QString(title).replace(u'&', QStringLiteral("&&")); }

// Where to look for the letter of an entry. On every desktop T is Cut, since C is Copy, and A is
// Select All.
qsizetype FirstCandidate(const QString& title) {
  if (title == QStringLiteral("Cut")) return 2;
  return title == QStringLiteral("Select All") ? 7 : 0;
}

QAction::MenuRole Role(const MenuItem& item) {
  if (dynamic_cast<const QuitMenuItem*>(&item) != nullptr) return QAction::QuitRole;
  const bool about = dynamic_cast<const AppleMenuItem*>(&item) != nullptr;
  return about && !item.Value().empty() ? QAction::AboutRole : QAction::NoRole;
}

// One menu and the items that its entries stand for.
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
    action->setShortcut(QKeySequence(
        ToQString(item->Shortcut()).replace(QStringLiteral("Cmd"), QStringLiteral("Ctrl"))));
    // Only to be seen: the toolkit knows what the key does, and a key must not act twice.
    action->setShortcutContext(Qt::WidgetShortcut);
    connect(action, &QAction::triggered, this, [item] { UserChose(item); });
    entries_.push_back({action, item});
  }

  void Refresh() {
    QString letters_in_use;
    for (const auto& [action, item] : entries_) {
      action->setSeparator(IsSeparator(*item));
      action->setVisible(item->Visible() && !item->Value().empty());
      action->setEnabled(item->Enabled());
      // A style may write a separator's text beside its line.
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

void FillMenuBar(QMenuBar& bar, const MenuBar& tree) {
  QString letters_in_use;
  for (const DrawnMenu& drawn : DrawnMenus(tree)) {
    auto* menu = new Menu(bar);
    for (const Ref<MenuItem>& item : drawn.items) menu->Add(item);
    menu->Refresh();
    menu->setTitle(WithMnemonic(ToQString(drawn.text), letters_in_use));
    bar.addMenu(menu);
  }
}

}  // namespace vamo
