#include "ui/qt/help_window.h"

#include <QCoreApplication>
#include <QEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSplitter>
#include <QTextBrowser>
#include <QUrl>
#include <QVBoxLayout>

#include <utility>

#include "platform/platform.h"
#include "shell/manual.h"
#include "ui/qt/help_text.h"

namespace ovelt {

namespace {

constexpr int kPageRole = Qt::UserRole;

QString Words(const std::string& text) { return QString::fromStdString(text); }

// Every page is Markdown, also the ones that a link or Back leads to; a link is taken from the
// page it stands on, so that the source is always the page's own file.
class ManualBrowser : public QTextBrowser {
 protected:
  void doSetSource(const QUrl& url, QTextDocument::ResourceType type) override {
    const QUrl target = url.isRelative() && source().isValid() ? source().resolved(url) : url;
    if (type == QTextDocument::UnknownResource && target.path().endsWith(QStringLiteral(".md")))
      type = QTextDocument::MarkdownResource;
    QTextBrowser::doSetSource(target, type);
  }
};

// Opens the page of one command on F1, in a help window that belongs to the dialog.
class HelpKeyFilter : public QObject {
 public:
  HelpKeyFilter(QWidget* dialog, Platform& ui, std::string key)
      : QObject(dialog), dialog_(dialog), ui_(ui), key_(std::move(key)) {}

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent*>(event)->matches(QKeySequence::HelpContents)) {
      Open();
      return true;
    }
    return QObject::eventFilter(watched, event);
  }

 private:
  void Open() {
    const auto root = FindManual(DesktopProgramDirectories(ui_.ProgramDirectory()));
    if (!root) {
      ui_.MessageBox(kHelpFileMissing, MsgIcon::kCritical);
      return;
    }
    if (window_ == nullptr) window_ = new HelpWindow(*root, dialog_);
    const auto page = Manual(*root).PageFor(key_);
    window_->ShowPage(page ? page->Name : "index");
    window_->show();
    window_->raise();
    window_->activateWindow();
  }

  QWidget* dialog_;
  Platform& ui_;
  std::string key_;
  HelpWindow* window_ = nullptr;  // a child of the dialog, gone with it
};

}  // namespace

HelpWindow::HelpWindow(std::filesystem::path manual_root, QWidget* parent)
    : QWidget(parent, Qt::Window),
      root_(std::filesystem::absolute(manual_root).lexically_normal()) {
  setWindowTitle(QStringLiteral("Ovelt Workbench Help"));
  browser_ = new ManualBrowser;
  browser_->setOpenExternalLinks(true);
  browser_->setSearchPaths({QString::fromStdString(root_.string())});
  contents_ = new QListWidget;
  search_ = new QLineEdit;
  search_->setPlaceholderText(QStringLiteral("Words to find"));
  search_->setClearButtonEnabled(true);
  results_ = new QListWidget;
  back_ = new QPushButton(QStringLiteral("Back"));
  forward_ = new QPushButton(QStringLiteral("Forward"));
  auto* home = new QPushButton(QStringLiteral("Contents"));
  back_->setEnabled(false);
  forward_->setEnabled(false);

  auto* side = new QWidget;
  auto* side_layout = new QVBoxLayout(side);
  side_layout->setContentsMargins(0, 0, 0, 0);
  side_layout->addWidget(new QLabel(QStringLiteral("Contents")));
  side_layout->addWidget(contents_, 3);
  side_layout->addWidget(new QLabel(QStringLiteral("Search")));
  side_layout->addWidget(search_);
  side_layout->addWidget(results_, 2);

  auto* page = new QWidget;
  auto* page_layout = new QVBoxLayout(page);
  page_layout->setContentsMargins(0, 0, 0, 0);
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(back_);
  buttons->addWidget(forward_);
  buttons->addWidget(home);
  buttons->addStretch();
  page_layout->addLayout(buttons);
  page_layout->addWidget(browser_);

  auto* splitter = new QSplitter;
  splitter->addWidget(side);
  splitter->addWidget(page);
  splitter->setStretchFactor(1, 3);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(splitter);
  resize(960, 680);

  connect(back_, &QPushButton::clicked, browser_, &QTextBrowser::backward);
  connect(forward_, &QPushButton::clicked, browser_, &QTextBrowser::forward);
  connect(home, &QPushButton::clicked, this, [this] { ShowPage("index"); });
  connect(browser_, &QTextBrowser::backwardAvailable, back_, &QPushButton::setEnabled);
  connect(browser_, &QTextBrowser::forwardAvailable, forward_, &QPushButton::setEnabled);
  connect(browser_, &QTextBrowser::sourceChanged, this, [this] { PageShown(); });
  const auto open_item = [this](QListWidgetItem* item) {
    if (item != nullptr) ShowPage(item->data(kPageRole).toString().toStdString());
  };
  connect(contents_, &QListWidget::itemActivated, this, open_item);
  connect(contents_, &QListWidget::itemClicked, this, open_item);
  connect(results_, &QListWidget::itemActivated, this, open_item);
  connect(results_, &QListWidget::itemClicked, this, open_item);
  connect(search_, &QLineEdit::textChanged, this, &HelpWindow::Search);
  FillContents();
}

void HelpWindow::FillContents() {
  for (const ManualPage& page : Manual(root_).Pages()) {
    auto* item = new QListWidgetItem(Words(page.Title.empty() ? page.Name : page.Title));
    item->setData(kPageRole, Words(page.Name));
    contents_->addItem(item);
  }
}

void HelpWindow::ShowPage(const std::string& name) {
  const QUrl url = QUrl::fromLocalFile(QString::fromStdString(Manual(root_).FileOf(name).string()));
  browser_->setSource(url, QTextDocument::MarkdownResource);
}

void HelpWindow::FocusSearch() {
  search_->setFocus(Qt::OtherFocusReason);
  search_->selectAll();
}

void HelpWindow::Search(const QString& words) {
  results_->clear();
  for (const ManualHit& hit : Manual(root_).Search(words.toStdString())) {
    auto* item = new QListWidgetItem(
        Words(hit.Page.Title.empty() ? hit.Page.Name : hit.Page.Title));
    item->setData(kPageRole, Words(hit.Page.Name));
    results_->addItem(item);
  }
}

std::string HelpWindow::CurrentPage() const {
  const QUrl source = browser_->source();
  if (!source.isLocalFile()) return "";
  const std::filesystem::path file(source.toLocalFile().toStdString());
  const std::filesystem::path relative = file.lexically_normal().lexically_relative(root_);
  if (relative.empty() || relative.native().rfind("..", 0) == 0) return "";
  return std::filesystem::path(relative).replace_extension().generic_string();
}

void HelpWindow::PageShown() {
  const QString name = QString::fromStdString(CurrentPage());
  for (int row = 0; row < contents_->count(); ++row)
    if (contents_->item(row)->data(kPageRole).toString() == name) {
      const QSignalBlocker quiet(contents_);
      contents_->setCurrentRow(row);
      return;
    }
  contents_->clearSelection();
}

std::vector<std::string> DesktopProgramDirectories(const std::string& program_dir) {
  std::vector<std::string> dirs = {program_dir};
  const std::string executable = QCoreApplication::applicationDirPath().toStdString();
  if (executable != program_dir) dirs.push_back(executable);
  return dirs;
}

void AttachHelpKey(QWidget* dialog, Platform& ui, const std::string& key) {
  dialog->installEventFilter(new HelpKeyFilter(dialog, ui, key));
}

}  // namespace ovelt
