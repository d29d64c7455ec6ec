// ovelt-gui: the desktop face of Ovelt Workbench.

#include <QApplication>
#include <QSettings>

#include "ui/qt/main_window.h"
#include "ui/qt/qt_platform.h"

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  QApplication::setApplicationName("ovelt");
  ovelt::QtPlatform platform;
  ovelt::MainWindow window(platform, &platform);
  // The window's place and the layout of its workspace, from one run of the program to the next.
  QSettings layout("Ovelt", "Ovelt Workbench");
  window.RememberLayout(layout);
  window.show();
  if (argc > 1) {
    window.Bench().OpenPath(argv[1]);
    window.Refresh();
  }
  return QApplication::exec();
}
