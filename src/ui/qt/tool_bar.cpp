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

void BuildMainToolBar(MainWindow& window) {
  QToolBar* bar = window.addToolBar("Tools");
  bar->setObjectName("SSCommand1");
  bar->setToolButtonStyle(Qt::ToolButtonIconOnly);
  for (size_t i = 0; i < kToolButtons.size(); ++i) {
    const std::string handler = kToolButtons[i].Handler;
    QAction* button = bar->addAction(window.style()->standardIcon(IconOf(i)),
                                     kToolButtons[i].Label);
    button->setObjectName(QString::fromStdString(handler));
    if (button->text().isEmpty()) button->setToolTip(QString());
    QObject::connect(button, &QAction::triggered, &window, [&window, handler] {
      if (window.Bench().Menus().Enabled(handler)) window.Trigger(handler);
    });
  }
  auto follow = [&window, bar] {
    for (QAction* button : bar->actions()) {
      const std::string handler = button->objectName().toStdString();
      button->setVisible(window.HasHandler(handler));
      button->setEnabled(window.Bench().Menus().Enabled(handler));
    }
  };
  QObject::connect(&window, &MainWindow::Refreshed, bar, follow);
  follow();
}

}  // namespace ovelt
