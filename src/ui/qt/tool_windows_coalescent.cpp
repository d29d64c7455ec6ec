#include "ui/qt/tool_windows_coalescent.h"

#include <QApplication>
#include <QButtonGroup>
#include <QComboBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QRandomGenerator>
#include <QRegularExpressionValidator>
#include <QThread>
#include <QVBoxLayout>

#include <exception>
#include <variant>

#include "coalescent/coalescent_options.h"
#include "coalescent/coalescent_run.h"
#include "coalescent/simulation_report.h"
#include "coalescent/statistic_code.h"
#include "shell/command_registry.h"
#include "shell/command_runner.h"
#include "shell/workbench.h"
#include "output/format_mask.h"
#include "tools/simulation_captions.h"

namespace ovelt {
namespace {

QString Q(const std::string& text) { return QString::fromStdString(text); }

// A failure of the window's own handler, outside the simulation module.
constexpr const char* kDialogErrorText = "Error in the Coalescent Simulations Module";

// Typed numbers take digits and either separator; the observed value also a sign.
QLineEdit* NumberBox(const std::string& text, bool signed_number, QWidget* parent) {
  auto* box = new QLineEdit(Q(text));
  box->setMinimumWidth(80);
  box->setMaximumWidth(110);
  const QString pattern = signed_number ? "-?[0-9.,]*" : "[0-9.,]*";
  box->setValidator(new QRegularExpressionValidator(QRegularExpression(pattern), parent));
  return box;
}

QLineEdit* ResultBox() {
  auto* box = new QLineEdit;
  box->setReadOnly(true);
  box->setFocusPolicy(Qt::NoFocus);
  box->setMinimumWidth(100);
  box->setMaximumWidth(120);
  box->setAlignment(Qt::AlignRight);
  return box;
}

}  // namespace

int32_t SuggestSeedFromClock() {
  return static_cast<int32_t>(QRandomGenerator::global()->bounded(10000000));
}

CoalescentWindow::CoalescentWindow(Workbench& wb, SeedSuggestion suggest_seed, QWidget* parent)
    : QDialog(parent), wb_(wb), suggest_seed_(std::move(suggest_seed)) {
  setWindowTitle(kCoalescentCaption);
  const SimulationForm defaults;

  // What the simulations are given.
  auto* given_box = new QGroupBox("Simulations given");
  auto* given_layout = new QGridLayout(given_box);
  theta_option_ = new QRadioButton("Theta");
  segsites_option_ = new QRadioButton("Segregating Sites");
  theta_option_->setChecked(true);
  given_label_ = new QLabel("Theta (per gene): ");
  given_ = NumberBox(defaults.GivenText, false, this);
  given_layout->addWidget(theta_option_, 0, 0);
  given_layout->addWidget(segsites_option_, 0, 1);
  given_layout->addWidget(given_label_, 1, 0);
  given_layout->addWidget(given_, 1, 1);

  auto* sample_box = new QGroupBox("Sample and replicates");
  auto* sample_form = new QFormLayout(sample_box);
  sample_size_ = NumberBox(defaults.SampleSizeText, false, this);
  replicates_ = NumberBox(defaults.ReplicatesText, false, this);
  seed_ = NumberBox(std::to_string(suggest_seed_()), false, this);
  sample_form->addRow("Sample Size:", sample_size_);
  sample_form->addRow("Number of Replicates:", replicates_);
  sample_form->addRow("Pseudorandom Number Seed:", seed_);

  auto* recombination_box = new QGroupBox("Recombination");
  auto* recombination_layout = new QGridLayout(recombination_box);
  auto* recombination_group = new QButtonGroup(this);
  const char* const choices[3] = {"No Recombination", "Free Recombination",
                                  "Intermediate level, R (per gene):"};
  for (int i = 0; i < 3; ++i) {
    recombination_[i] = new QRadioButton(choices[i]);
    recombination_group->addButton(recombination_[i], i);
    recombination_layout->addWidget(recombination_[i], i, 0);
  }
  recombination_[0]->setChecked(true);
  r_ = NumberBox(defaults.RText, false, this);
  sites_ = NumberBox(defaults.SitesText, false, this);
  recombination_layout->addWidget(r_, 2, 1);
  recombination_layout->addWidget(new QLabel("No. Sites:"), 3, 0, Qt::AlignRight);
  recombination_layout->addWidget(sites_, 3, 1);

  statistic_ = new QComboBox;
  for (const StatisticEntry& entry : StatisticList()) statistic_->addItem(entry.Name);
  auto* statistic_row = new QHBoxLayout;
  statistic_row->addWidget(new QLabel("Statistic:"));
  statistic_row->addWidget(statistic_, 1);

  // The results area, relabelled by the statistic.
  results_ = new QGroupBox;
  auto* results_layout = new QVBoxLayout(results_);
  heading_ = new QLabel;
  QFont bold = heading_->font();
  bold.setBold(true);
  heading_->setFont(bold);
  results_layout->addWidget(heading_);
  auto* observed_form = new QFormLayout;
  observed_label_ = new QLabel;
  observed_ = NumberBox(defaults.ObservedText, true, this);
  percent_ = NumberBox(defaults.PercentText, false, this);
  observed_form->addRow(observed_label_, observed_);
  observed_form->addRow("% Confidence Interval:", percent_);
  results_layout->addLayout(observed_form);
  limits_ = new QGroupBox("Confidence Interval");
  auto* limits_form = new QFormLayout(limits_);
  lower_ = ResultBox();
  upper_ = ResultBox();
  limits_form->addRow("Lower limit:", lower_);
  limits_form->addRow("Upper limit:", upper_);
  results_layout->addWidget(limits_);
  auto* values_form = new QFormLayout;
  probability_label_ = new QLabel;
  average_label_ = new QLabel;
  probability_ = ResultBox();
  average_ = ResultBox();
  average_pi_ = ResultBox();
  effective_ = ResultBox();
  values_form->addRow(probability_label_, probability_);
  values_form->addRow(average_label_, average_);
  values_form->addRow("Average value of Pi:", average_pi_);
  values_form->addRow("Effective Number of Replicates:", effective_);
  results_layout->addLayout(values_form);

  auto* buttons = new QHBoxLayout;
  run_ = new QPushButton("Run");
  save_ = new QPushButton("Save Output");
  print_ = new QPushButton("Print Output");
  cancel_ = new QPushButton("Cancel");
  run_->setDefault(true);
  for (QPushButton* button : {run_, save_, print_, cancel_}) buttons->addWidget(button);

  auto* inputs = new QVBoxLayout;
  inputs->addWidget(given_box);
  inputs->addWidget(sample_box);
  inputs->addWidget(recombination_box);
  inputs->addLayout(statistic_row);
  inputs->addStretch(1);
  auto* columns = new QHBoxLayout;
  columns->addLayout(inputs);
  columns->addWidget(results_, 1);
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(columns);
  layout->addLayout(buttons);
  resize(760, 460);

  connect(theta_option_, &QRadioButton::toggled, this, &CoalescentWindow::OnGivenMode);
  connect(recombination_group, &QButtonGroup::idToggled, this,
          &CoalescentWindow::OnRecombination);
  connect(statistic_, &QComboBox::currentIndexChanged, this, &CoalescentWindow::OnStatistic);
  for (QLineEdit* box : {given_, sample_size_, replicates_, r_, sites_, seed_, observed_, percent_})
    connect(box, &QLineEdit::textChanged, this, &CoalescentWindow::ClearResults);
  connect(observed_, &QLineEdit::editingFinished, this, [this] {
    // A value outside the statistic's range goes back to 0.
    if (const auto value = ReadTypedNumber(observed_->text().toStdString())) {
      if (ObservedWithinBounds(ChosenCode(), *value) != *value) observed_->setText("0");
    }
  });
  connect(run_, &QPushButton::clicked, this, &CoalescentWindow::OnRun);
  connect(save_, &QPushButton::clicked, this, &CoalescentWindow::OnSave);
  connect(print_, &QPushButton::clicked, this, &CoalescentWindow::OnPrint);
  connect(cancel_, &QPushButton::clicked, this, &QDialog::reject);

  OnRecombination();
  ClearResults();
}

int16_t CoalescentWindow::ChosenCode() const {
  const auto& list = StatisticList();
  const int index = statistic_->currentIndex();
  return index >= 0 && index < static_cast<int>(list.size()) ? list[index].Code : list[0].Code;
}

SimulationForm CoalescentWindow::Form() const {
  SimulationForm form;
  form.Given = segsites_option_->isChecked() ? GivenMode::kSegSites : GivenMode::kTheta;
  form.GivenText = given_->text().toStdString();
  form.SampleSizeText = sample_size_->text().toStdString();
  form.ReplicatesText = replicates_->text().toStdString();
  form.ObservedText = observed_->text().toStdString();
  form.PercentText = percent_->text().toStdString();
  form.RecombinationChoice = recombination_[2]->isChecked() ? 2
                             : recombination_[1]->isChecked() ? 1
                                                              : 0;
  form.RText = r_->text().toStdString();
  form.SitesText = sites_->text().toStdString();
  form.SeedText = seed_->text().toStdString();
  form.Statistic = ChosenCode();
  return form;
}

void CoalescentWindow::OnGivenMode() {
  if (segsites_option_->isChecked()) {
    given_label_->setText("Segregating Sites: ");
    given_->setText(Q(SegSitesTextFromTheta(given_->text().toStdString())));
  } else {
    given_label_->setText("Theta (per gene): ");
  }
  ClearResults();
}

void CoalescentWindow::OnRecombination() {
  const bool intermediate = recombination_[2]->isChecked();
  r_->setEnabled(intermediate);
  sites_->setEnabled(intermediate);
  ClearResults();
}

void CoalescentWindow::OnStatistic() {
  const GivenMode given = segsites_option_->isChecked() ? GivenMode::kSegSites : GivenMode::kTheta;
  if (const auto notice = ThetaFromSegSitesNotice(given, ChosenCode()))
    wb_.Ui().MessageBox(notice->Text, MsgIcon::kInformation, MsgButtons::kOk, notice->Title,
                        false);
  if (const auto value = ReadTypedNumber(observed_->text().toStdString())) {
    if (ObservedWithinBounds(ChosenCode(), *value) != *value) observed_->setText("0");
  }
  ClearResults();
}

void CoalescentWindow::Relabel() {
  const StatisticEntry* entry = FindStatistic(ChosenCode());
  const SimulationCaptions captions = CaptionsForStatistic(entry->Code, entry->Name, entry->Symbol);
  heading_->setText(Q(captions.Heading));
  observed_label_->setText(Q(captions.Observed));
  probability_label_->setText(Q(captions.Probability));
  average_label_->setText(Q(captions.Average));
  limits_->setTitle("Confidence Interval");
}

void CoalescentWindow::ClearResults() {
  if (filling_) return;
  for (QLineEdit* box : {probability_, average_, average_pi_, lower_, upper_, effective_})
    box->clear();
  Relabel();
  save_->setEnabled(false);
  print_->setEnabled(false);
}

void WaitForTheNextSecond(const QTime& started) {
  while (QTime::currentTime().second() == started.second()) QThread::msleep(10);
}

void CoalescentWindow::OnRun() {
  try {
    RunAndShow();
  } catch (const std::exception&) {
    wb_.Ui().MessageBox(kDialogErrorText, MsgIcon::kCritical);
  }
}

void CoalescentWindow::RunAndShow() {
  const QTime started = QTime::currentTime();
  // The beep marks the start of a run, so a refused form stays silent.
  if (std::holds_alternative<SimulationSpec>(ReadSimulationForm(Form()))) QApplication::beep();
  TypedOptions<CoalescentOptions> options(OptionsOfForm(Form()));
  const RunOutcome outcome = RunCommand(wb_, *FindEntry(CommandId::kCoalescent), options);
  if (!outcome.Stands) return;
  const auto* held = std::any_cast<std::shared_ptr<const CoalescentRun>>(&outcome.Result);
  if (held == nullptr) return;
  const CoalescentRun& run = **held;
  const SimulationResult& r = run.Result;
  filling_ = true;
  if (observed_->text().trimmed().isEmpty()) observed_->setText("0");
  if (percent_->text().trimmed().isEmpty()) percent_->setText("95");
  probability_->setText(Q(Format(r.ProbabilityLE, "0.00000")));
  average_->setText(Q(Format(r.AverageStatistic, "0.00000")));
  average_pi_->setText(Q(Format(r.AveragePi, "0.00000")));
  lower_->setText(Q(Format(r.LowerLimit, "0.00000")));
  upper_->setText(Q(Format(r.UpperLimit, "0.00000")));
  effective_->setText(Q(NumberText(static_cast<int64_t>(r.EffectiveReplicates))));
  limits_->setTitle(Q(ConfidenceFrameCaption(run.Input.ConfidencePercent)));
  probability_label_->setText(Q(ProbabilityCaption(run.Input)));
  // The next run is offered a new seed.
  seed_->setText(QString::number(suggest_seed_()));
  filling_ = false;
  save_->setEnabled(true);
  print_->setEnabled(true);
  wait_second_(started);
}

void CoalescentWindow::OnSave() {
  OutputChannel& channel = wb_.Output();
  const FileDialogRequest request = channel.SaveOutputDialog();
  if (auto path = wb_.Ui().SaveFileName(request.Title, request.Filter, request.DefaultName))
    channel.SaveCurrentOutput(*path);
}

void CoalescentWindow::OnPrint() {
  PrintOutputText(wb_.Ui(), choose_printer_, wb_.Output().SavedFileText());
}

QString CoalescentWindow::HeadingText() const { return heading_->text(); }
QString CoalescentWindow::ObservedLabel() const { return observed_label_->text(); }
QString CoalescentWindow::ProbabilityLabel() const { return probability_label_->text(); }
QString CoalescentWindow::AverageLabel() const { return average_label_->text(); }
QString CoalescentWindow::FrameCaption() const { return limits_->title(); }
QString CoalescentWindow::Probability() const { return probability_->text(); }
QString CoalescentWindow::Average() const { return average_->text(); }
QString CoalescentWindow::AveragePi() const { return average_pi_->text(); }
QString CoalescentWindow::LowerLimit() const { return lower_->text(); }
QString CoalescentWindow::UpperLimit() const { return upper_->text(); }
QString CoalescentWindow::Effective() const { return effective_->text(); }

}  // namespace ovelt
