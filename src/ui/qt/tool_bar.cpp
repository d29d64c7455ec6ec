#include "ui/qt/tool_bar.h"

#include <QAction>
#include <QStyle>
#include <QToolBar>

#include <string>

#include "ui/qt/main_window.h"

namespace ovelt {

namespace {

QStyle::StandardPixmap IconOf(size_t button) {
  static constexpr QStyle::StandardPixmap kIcons[] = {
      QStyle::SP_FileDialogInfoView,      QStyle::SP_DialogOpenButton,
      QStyle::SP_FileDialogDetailedView,  QStyle::SP_DriveFDIcon,
      QStyle::SP_DialogSaveButton,        QStyle::SP_FileDialogContentsView,
      QStyle::SP_DialogCloseButton,       QStyle::SP_DialogApplyButton,
      QStyle::SP_ComputerIcon,            QStyle::SP_BrowserReload,
      QStyle::SP_DirIcon,                 QStyle::SP_DialogHelpButton};
  return kIcons[button];
}

}  // namespace

QString ToolButtonTip(const ToolButtonEntry& button, const MenuModel& menus) {
  const MenuEntry* entry = menus.Find(button.Handler);
  QString command = entry != nullptr ? QString::fromStdString(entry->text) : QString();
  command = command.remove('&').trimmed();
  const QString label = QString::fromLatin1(button.Label);
  if (entry == nullptr) return label;
  const QString path = QString::fromStdString(entry->menu) + " > " + command;
  return label.isEmpty() ? path : label + " (" + path + ")";
}

void BuildMainToolBar(MainWindow& window) {
  QToolBar* bar = window.addToolBar("Tools");
  bar->setObjectName("SSCommand1");
  bar->setToolButtonStyle(Qt::ToolButtonIconOnly);
  for (size_t i = 0; i < kToolButtons.size(); ++i) {
    const std::string handler = kToolButtons[i].Handler;
    QAction* button = bar->addAction(window.style()->standardIcon(IconOf(i)),
                                     kToolButtons[i].Label);
    button->setObjectName(QString::fromStdString(handler));
    QObject::connect(button, &QAction::triggered, &window, [&window, handler] {
      if (window.Bench().Menus().Enabled(handler)) window.Trigger(handler);
    });
  }
  auto follow = [&window, bar] {
    const MenuModel& menus = window.Bench().Menus();
    for (size_t i = 0; i < kToolButtons.size(); ++i) {
      QAction* button = bar->actions()[static_cast<qsizetype>(i)];
      const std::string handler = kToolButtons[i].Handler;
      button->setVisible(window.HasHandler(handler));
      button->setEnabled(menus.Enabled(handler));
      // The tip names the button and the menu command it runs, as the command reads now
      // ("Save Graph..." while the graph has the focus).
      const QString tip = ToolButtonTip(kToolButtons[i], menus);
      button->setToolTip(tip);
      button->setStatusTip(tip);
    }
  };
  QObject::connect(&window, &MainWindow::Refreshed, bar, follow);
  follow();
}

}  // namespace ovelt
