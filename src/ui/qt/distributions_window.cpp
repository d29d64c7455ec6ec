#include "ui/qt/distributions_window.h"

#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QTabBar>
#include <QTabWidget>

#include <algorithm>

#include "shell/workbench.h"
#include "tools/distribution_run.h"
#include "tools/ewens_fs_source.h"

namespace ovelt {
namespace {

// Makes one labelled box per text field of a tab's options.
struct TabBuilder {
  QFormLayout* form;
  std::function<void(const OptionField&, std::string&, QLineEdit*)> bind;

  void Text(std::string& value, const OptionField& field) {
    auto* edit = new QLineEdit(QString::fromStdString(value));
    edit->setObjectName(QString::fromStdString(field.key));
    edit->setToolTip(QString::fromStdString(field.help));
    edit->setMaximumWidth(160);
    form->addRow(new QLabel(QString::fromStdString(field.label)), edit);
    bind(field, value, edit);
  }
};

}  // namespace

DistributionsWindow::DistributionsWindow(Workbench& wb, QWidget* parent)
    : ToolReportWindow(wb, kDistributionsCaption, "Compute", parent), tabs_(new QTabWidget) {
  AddTab(DistributionTab::kBinomial, boxes_.Binomial);
  AddTab(DistributionTab::kHypergeometric, boxes_.Hypergeometric);
  AddTab(DistributionTab::kPoisson, boxes_.Poisson);
  AddTab(DistributionTab::kEwens, boxes_.Ewens);
  Inputs()->addWidget(tabs_);
  // Wide enough for the four tab captions side by side.
  resize(std::max(width(), tabs_->tabBar()->sizeHint().width() + 40), height());
}

template <class Options>
void DistributionsWindow::AddTab(DistributionTab tab, Options& options) {
  auto* page = new QWidget;
  auto* form = new QFormLayout(page);
  TabBuilder builder{form, [this, tab](const OptionField& field, std::string& value,
                                       QLineEdit* edit) {
                       bound_.push_back({tab, field.key, edit, &value});
                     }};
  options.Visit(builder);
  tabs_->addTab(page, kDistributionTabCaptions[static_cast<size_t>(tab)]);
}

QLineEdit* DistributionsWindow::Box(DistributionTab tab, const std::string& key) const {
  for (const BoundBox& box : bound_)
    if (box.tab == tab && box.key == key) return box.edit;
  return nullptr;
}

void DistributionsWindow::ReadBoxes() {
  for (const BoundBox& box : bound_) *box.value = box.edit->text().toStdString();
}

std::optional<ToolMessage> DistributionsWindow::RunTab() {
  ReadBoxes();
  OutputChannel& channel = Bench().Output();
  switch (static_cast<DistributionTab>(tabs_->currentIndex())) {
    case DistributionTab::kBinomial:
      return RunBinomial(channel, boxes_.Binomial);
    case DistributionTab::kHypergeometric:
      return RunHypergeometric(channel, boxes_.Hypergeometric);
    case DistributionTab::kPoisson:
      return RunPoisson(channel, boxes_.Poisson);
    case DistributionTab::kEwens:
      return RunEwens(channel, boxes_.Ewens, FsEwensTail);
  }
  return std::nullopt;
}

bool DistributionsWindow::Compute() {
  const auto refusal = RunTab();
  if (!refusal) return true;
  Bench().Ui().MessageBox(refusal->Text, MsgIcon::kWarning, MsgButtons::kOk, refusal->Title,
                          false);
  return false;
}

}  // namespace ovelt
