#pragma once
// "The Coalescent" (frmArbolDLL): the fields of a coalescent run, "Run", and the results area
// that follows the statistic chosen. The checks, the replicates and the report are those of
// coalescent/coalescent_run.h; the report goes to the output channel, so "Save Output", "Print
// Output" and the session file get it as they get any analysis.

#include <QDialog>
#include <QTime>

#include <functional>

#include "coalescent/simulation_input.h"
#include "ui/qt/tool_windows_print.h"

class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;

namespace ovelt {

class Workbench;

inline constexpr const char* kCoalescentCaption = "The Coalescent";

// The next suggested seed: the integer part of a uniform deviate times 1e7.
using SeedSuggestion = std::function<int32_t()>;
[[nodiscard]] int32_t SuggestSeedFromClock();

// What a finished run does last: wait until the clock's second differs from the one at which
// the run began, so that two runs never begin in the same second.
using SecondWait = std::function<void(const QTime& started)>;
void WaitForTheNextSecond(const QTime& started);

class CoalescentWindow : public QDialog {
  Q_OBJECT
 public:
  CoalescentWindow(Workbench& wb, SeedSuggestion suggest_seed, QWidget* parent = nullptr);

  // The fields, named as the form names them.
  [[nodiscard]] QRadioButton* ThetaOption() const { return theta_option_; }
  [[nodiscard]] QRadioButton* SegSitesOption() const { return segsites_option_; }
  [[nodiscard]] QLineEdit* GivenBox() const { return given_; }        // txttheta
  [[nodiscard]] QLabel* GivenLabel() const { return given_label_; }
  [[nodiscard]] QLineEdit* SampleSizeBox() const { return sample_size_; }
  [[nodiscard]] QLineEdit* ReplicatesBox() const { return replicates_; }
  [[nodiscard]] QLineEdit* ObservedBox() const { return observed_; }  // txtTajima
  [[nodiscard]] QLineEdit* PercentBox() const { return percent_; }    // txtPerTajima
  [[nodiscard]] QRadioButton* RecombinationOption(int choice) const {
    return recombination_[choice];
  }
  [[nodiscard]] QLineEdit* RBox() const { return r_; }                // TextRec
  [[nodiscard]] QLineEdit* SitesBox() const { return sites_; }        // TextSites
  [[nodiscard]] QLineEdit* SeedBox() const { return seed_; }          // txtActualSeed
  [[nodiscard]] QComboBox* Statistics() const { return statistic_; }  // Combo1
  [[nodiscard]] QPushButton* RunButton() const { return run_; }
  [[nodiscard]] QPushButton* SaveButton() const { return save_; }
  [[nodiscard]] QPushButton* PrintButton() const { return print_; }
  [[nodiscard]] QPushButton* CancelButton() const { return cancel_; }
  void SetPrinterChooser(PrinterChooser choose) { choose_printer_ = std::move(choose); }
  void SetSecondWait(SecondWait wait) { wait_second_ = std::move(wait); }

  // The results area.
  [[nodiscard]] QString HeadingText() const;
  [[nodiscard]] QString ObservedLabel() const;
  [[nodiscard]] QString ProbabilityLabel() const;
  [[nodiscard]] QString AverageLabel() const;
  [[nodiscard]] QString FrameCaption() const;
  [[nodiscard]] QString Probability() const;  // txtResTajima
  [[nodiscard]] QString Average() const;
  [[nodiscard]] QString AveragePi() const;    // txtMediaPI
  [[nodiscard]] QString LowerLimit() const;   // txtPerTajimaInf
  [[nodiscard]] QString UpperLimit() const;   // txtPerTajimaSup
  [[nodiscard]] QString Effective() const;    // txtCanTajima

 private:
  [[nodiscard]] SimulationForm Form() const;
  [[nodiscard]] int16_t ChosenCode() const;
  void OnGivenMode();
  void OnRecombination();
  void OnStatistic();
  void Relabel();
  void ClearResults();
  void OnRun();
  void RunAndShow();
  void OnSave();
  void OnPrint();

  Workbench& wb_;
  SeedSuggestion suggest_seed_;
  PrinterChooser choose_printer_ = ChoosePrinterByDialog;
  SecondWait wait_second_ = WaitForTheNextSecond;

  QRadioButton* theta_option_;
  QRadioButton* segsites_option_;
  QLabel* given_label_;
  QLineEdit* given_;
  QLineEdit* sample_size_;
  QLineEdit* replicates_;
  QRadioButton* recombination_[3];
  QLineEdit* r_;
  QLineEdit* sites_;
  QLineEdit* seed_;
  QComboBox* statistic_;
  QLineEdit* observed_;
  QLineEdit* percent_;

  QGroupBox* results_;
  QLabel* heading_;
  QLabel* observed_label_;
  QGroupBox* limits_;
  QLabel* probability_label_;
  QLabel* average_label_;
  QLineEdit* probability_;
  QLineEdit* average_;
  QLineEdit* average_pi_;
  QLineEdit* lower_;
  QLineEdit* upper_;
  QLineEdit* effective_;

  QPushButton* run_;
  QPushButton* save_;
  QPushButton* print_;
  QPushButton* cancel_;
  bool filling_ = false;  // the window itself writes a field: the results stay
};

}  // namespace ovelt
