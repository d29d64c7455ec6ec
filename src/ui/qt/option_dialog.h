#pragma once
// An option dialog made from a command's option declaration (core/command_options.h): each
// field of the options struct becomes a control with the dialog's own words. OK copies the
// controls into the struct, runs the same checks as the command line, and on a failure shows
// the message and stays open.

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QVBoxLayout>

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "core/active_data.h"
#include "core/command_options.h"

namespace ovelt {

class OptionDialog : public QDialog {
  Q_OBJECT
 public:
  explicit OptionDialog(const QString& title, QWidget* parent = nullptr);

  [[nodiscard]] QFormLayout* Form() const { return form_; }
  // Copies one control's value into its field; run in order on OK.
  void AddReader(std::function<bool()> reader) { readers_.push_back(std::move(reader)); }
  // Checks the filled struct; the message of the first failure, nullopt when it may run.
  void SetValidator(std::function<std::optional<std::string>()> validator) {
    validator_ = std::move(validator);
  }
  // Whether OK found the values good (for tests: a refused OK leaves the dialog open).
  [[nodiscard]] bool LastOkRefused() const { return last_refused_; }

 public slots:
  void accept() override;

 private:
  QFormLayout* form_;
  std::vector<std::function<bool()>> readers_;
  std::function<std::optional<std::string>()> validator_;
  bool last_refused_ = false;
};

// Builds the controls of an options struct on an OptionDialog.
class QtOptionBuilder final : public OptionVisitor {
 public:
  QtOptionBuilder(OptionDialog& dialog, const ActiveData& data) : dialog_(dialog), data_(data) {}

  void Region(int32_t& from, int32_t& to) override;
  void SetIndex(int16_t& index, const OptionField& field) override;
  void Flag(bool& value, const OptionField& field) override;
  void Integer(int32_t& value, const OptionField& field, int64_t min, int64_t max) override;
  void Real(double& value, const OptionField& field, double min, double max) override;
  void Choice(int16_t& value, const OptionField& field, const std::vector<std::string>& texts,
              int16_t first_value) override;
  void Text(std::string& value, const OptionField& field) override;

 private:
  OptionDialog& dialog_;
  const ActiveData& data_;
};

// The dialog of `options`; `validate` adds the command's own checks after the range checks.
template <class Options>
void BuildOptionDialog(OptionDialog& dialog, Options& options, const ActiveData& data,
                       std::function<std::optional<std::string>()> validate = {}) {
  QtOptionBuilder builder(dialog, data);
  options.Visit(builder);
  dialog.SetValidator([&options, validate]() -> std::optional<std::string> {
    if (auto failure = CheckOptionRanges(options)) return failure;
    return validate ? validate() : std::nullopt;
  });
}

}  // namespace ovelt
