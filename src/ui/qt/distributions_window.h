#pragma once
// "Discrete Distributions" (Form20): one tab for each of the binomial, hypergeometric, Poisson
// and Ewens distributions, with the boxes that the options of tools/distribution_options.h
// declare; the button computes the tab that is showing (tools/distribution_run.h).

#include <string>
#include <utility>
#include <vector>

#include "tools/distribution_options.h"
#include "ui/qt/tool_windows_report.h"

class QLineEdit;
class QTabWidget;

namespace ovelt {

class DistributionsWindow : public ToolReportWindow {
  Q_OBJECT
 public:
  explicit DistributionsWindow(Workbench& wb, QWidget* parent = nullptr);

  [[nodiscard]] QTabWidget* Tabs() const { return tabs_; }
  // The box of a field on a tab, by the field's key ("p", "n", "k", "lambda", "sample-size",
  // "nhap", "theta", "population", "successes"); nullptr when the tab has none.
  [[nodiscard]] QLineEdit* Box(DistributionTab tab, const std::string& key) const;

 protected:
  bool Compute() override;

 private:
  // Runs the chosen tab; its refusal, if any.
  std::optional<ToolMessage> RunTab();
  struct BoundBox {
    DistributionTab tab;
    std::string key;
    QLineEdit* edit;
    std::string* value;
  };
  template <class Options>
  void AddTab(DistributionTab tab, Options& options);
  void ReadBoxes();

  DistributionBoxes boxes_ = F20DefectValues();
  QTabWidget* tabs_;
  std::vector<BoundBox> bound_;
};

}  // namespace ovelt
