#include "ui/qt/qt_platform.h"

#include <QApplication>
#include <QCoreApplication>
#include <QDateTime>
#include <QFileDialog>
#include <QLabel>
#include <QMessageBox>
#include <QProgressBar>
#include <QStandardPaths>
#include <QStringList>

#include "ui/qt/mega_dialog.h"

namespace ovelt {

namespace {
QString Q(const std::string& text) { return QString::fromStdString(text); }
}  // namespace

QString QtFilterFrom(const std::string& filter) {
  // The classic filter pairs a label and its patterns, all separated by "|".
  const QStringList parts = Q(filter).split('|');
  QStringList filters;
  for (int i = 0; i + 1 < parts.size(); i += 2) {
    QString label = parts[i].trimmed();
    QString patterns = parts[i + 1].trimmed();
    patterns.replace(';', ' ');
    if (!label.contains('(')) label += " (" + patterns + ")";
    else label = label.left(label.indexOf('(')).trimmed() + " (" + patterns + ")";
    filters << label;
  }
  return filters.join(";;");
}

void QtPlatform::Attach(QWidget* parent, QLabel* status, QProgressBar* gauge) {
  parent_ = parent;
  status_ = status;
  gauge_ = gauge;
}

MsgAnswer QtPlatform::MessageBox(const std::string& text, MsgIcon icon, MsgButtons buttons,
                                 const std::string& title, bool default_second) {
  QMessageBox box(parent_);
  box.setWindowTitle(Q(title));
  box.setText(Q(text));
  switch (icon) {
    case MsgIcon::kInformation: box.setIcon(QMessageBox::Information); break;
    case MsgIcon::kWarning: box.setIcon(QMessageBox::Warning); break;
    case MsgIcon::kCritical: box.setIcon(QMessageBox::Critical); break;
    case MsgIcon::kQuestion: box.setIcon(QMessageBox::Question); break;
    case MsgIcon::kNone: break;
  }
  QMessageBox::StandardButton first = QMessageBox::Ok, second = QMessageBox::NoButton;
  if (buttons == MsgButtons::kOkCancel) second = QMessageBox::Cancel;
  if (buttons == MsgButtons::kYesNo) {
    first = QMessageBox::Yes;
    second = QMessageBox::No;
  }
  box.setStandardButtons(second == QMessageBox::NoButton ? first : (first | second));
  box.setDefaultButton(default_second && second != QMessageBox::NoButton ? second : first);
  switch (box.exec()) {
    case QMessageBox::Yes: return MsgAnswer::kYes;
    case QMessageBox::No: return MsgAnswer::kNo;
    case QMessageBox::Cancel: return MsgAnswer::kCancel;
    default: return MsgAnswer::kOk;
  }
}

std::optional<std::string> QtPlatform::OpenFileName(const std::string& title,
                                                    const std::string& filter) {
  const QString name = QFileDialog::getOpenFileName(parent_, Q(title), QString(),
                                                    QtFilterFrom(filter));
  if (name.isEmpty()) return std::nullopt;
  return name.toStdString();
}

std::optional<std::string> QtPlatform::SaveFileName(const std::string& title,
                                                    const std::string& filter,
                                                    const std::string& default_name) {
  QString initial = Q(default_name);
  if (initial.startsWith("*")) initial.clear();
  const QString name =
      QFileDialog::getSaveFileName(parent_, Q(title), initial, QtFilterFrom(filter));
  if (name.isEmpty()) return std::nullopt;
  return name.toStdString();
}

bool QtPlatform::ShowDialog(const std::string& form_name) {
  return dialogs_ ? dialogs_(form_name) : false;
}

std::optional<MegaOptions> QtPlatform::AskMegaOptions(const std::string& file_name) {
  MegaDialog dialog(Q(file_name), parent_);
  if (dialog.exec() != QDialog::Accepted) return std::nullopt;
  return dialog.Options();
}

void QtPlatform::SetStatusText(const std::string& text) {
  if (status_) status_->setText(Q(text));
  QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void QtPlatform::SetProgress(int percent) {
  if (!gauge_) return;
  gauge_->setVisible(percent >= 0);
  if (percent >= 0) gauge_->setValue(percent);
  QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void QtPlatform::SetWindowTitle(const std::string& title) {
  if (parent_) parent_->setWindowTitle(Q(title));
}

Platform::DateTime QtPlatform::Now() {
  const QDateTime now = QDateTime::currentDateTime();
  return {now.date().year(), now.date().month(), now.date().day(),
          now.time().hour(), now.time().minute(), now.time().second()};
}

std::string QtPlatform::ProgramDirectory() {
  if (const char* home = std::getenv("OVELT_HOME")) return home;
  return QCoreApplication::applicationDirPath().toStdString();
}

std::string QtPlatform::ConfigDirectory() {
  if (const char* home = std::getenv("OVELT_HOME")) return home;
  return QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation).toStdString();
}

}  // namespace ovelt
