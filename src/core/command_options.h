#pragma once
// The options of a command are a plain struct that names each of its fields once, in a member
// template `Visit`. The faces walk that one declaration: the command line makes a flag of each
// field, the desktop a control of its dialog; the range check walks it too, so that both faces
// refuse a bad value with the same words. Checks that tie several fields together (a window
// longer than the region, ...) stay in the command's own `Validate`.
//
//   struct TajimaOptions {
//     int32_t RegionFrom = 1, RegionTo = 0;
//     int16_t SelSet1 = 0;
//     bool SlidingOn = false;
//     template <class V> void Visit(V& v) {
//       v.Region(RegionFrom, RegionTo);
//       v.SetIndex(SelSet1, {"set", "Sequence Set:", "Sequence set to use (default: all)"});
//       v.Flag(SlidingOn, {"sliding-window", "Sliding Window", "Run along a sliding window"});
//     }
//   };
//
// A visitor offers these members (each may ignore what it does not need):
//   Region(int32_t& from, int32_t& to)                  "From site:" / "to:", 0 = the whole file
//   SetIndex(int16_t& index, const OptionField&)        a sequence-set combo; 0 = all included
//   Flag(bool& value, const OptionField&)               a check box
//   Integer(int32_t& value, const OptionField&, int64_t min, int64_t max)
//   Real(double& value, const OptionField&, double min, double max)
//   Choice(int16_t& value, const OptionField&, const std::vector<std::string>& texts,
//          int16_t first_value)                         option buttons; value = first_value + i
//   Text(std::string& value, const OptionField&)

#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "core/region_check.h"

namespace ovelt {

struct OptionField {
  std::string key;                              // command-line flag, without "--"
  std::string label;                            // the dialog's words
  std::string help;                             // one line for --help
  std::string invalid = " Invalid Selection ";  // what a value out of range gets
  // The command line takes it as a plain argument, in the order declared, rather than a flag
  // (the four cells of a 2 x 2 table).
  bool positional = false;
};

// The members above as one interface, so that the faces and the runner can walk the options of
// any command without knowing their type.
class OptionVisitor {
 public:
  virtual ~OptionVisitor() = default;
  virtual void Region(int32_t& from, int32_t& to) = 0;
  virtual void SetIndex(int16_t& index, const OptionField& field) = 0;
  virtual void Flag(bool& value, const OptionField& field) = 0;
  virtual void Integer(int32_t& value, const OptionField& field, int64_t min, int64_t max) = 0;
  virtual void Real(double& value, const OptionField& field, double min, double max) = 0;
  virtual void Choice(int16_t& value, const OptionField& field,
                      const std::vector<std::string>& texts, int16_t first_value) = 0;
  virtual void Text(std::string& value, const OptionField& field) = 0;
};

// The options of some command, walked through OptionVisitor.
class CommandOptions {
 public:
  virtual ~CommandOptions() = default;
  virtual void Visit(OptionVisitor& visitor) = 0;
};

// The options struct of one command behind the CommandOptions interface.
template <class Options>
class TypedOptions final : public CommandOptions {
 public:
  TypedOptions() = default;
  explicit TypedOptions(Options value) : Value(std::move(value)) {}
  void Visit(OptionVisitor& visitor) override { Value.Visit(visitor); }
  Options Value;
};

// "Window Length must be from 1 to 900; it is 0.": why a field failed its limits, for a user who
// does not see the dialog (the label's closing ":" left out).
[[nodiscard]] std::string OptionRangeReason(const OptionField& field, const std::string& value,
                                            const std::string& min, const std::string& max);

// Checks every Integer, Real and Choice field against its limits; the first failure's message,
// and why.
class OptionRangeCheck final : public OptionVisitor {
 public:
  void Region(int32_t&, int32_t&) override {}
  void SetIndex(int16_t&, const OptionField&) override {}
  void Flag(bool&, const OptionField&) override {}
  void Text(std::string&, const OptionField&) override {}
  void Integer(int32_t& value, const OptionField& field, int64_t min, int64_t max) override {
    if (!failure && (value < min || value > max))
      Fail(field, std::to_string(value), std::to_string(min), std::to_string(max));
  }
  void Real(double& value, const OptionField& field, double min, double max) override {
    if (!failure && !(value >= min && value <= max))
      Fail(field, Number(value), Number(min), Number(max));
  }
  void Choice(int16_t& value, const OptionField& field, const std::vector<std::string>& texts,
              int16_t first_value) override {
    if (!failure && (value < first_value ||
                     value >= first_value + static_cast<int16_t>(texts.size())))
      Fail(field, std::to_string(value), std::to_string(first_value),
           std::to_string(first_value + static_cast<int>(texts.size()) - 1));
  }
  std::optional<std::string> failure;
  std::string reason;

 private:
  void Fail(const OptionField& field, const std::string& value, const std::string& min,
            const std::string& max) {
    failure = field.invalid;
    reason = OptionRangeReason(field, value, min, max);
  }
  [[nodiscard]] static std::string Number(double value);
};

template <class Options>
[[nodiscard]] std::optional<std::string> CheckOptionRanges(Options& options) {
  OptionRangeCheck check;
  options.Visit(check);
  return check.failure;
}

// The same check, with the reason of a failure.
template <class Options>
[[nodiscard]] std::optional<SelectionRefusal> OptionRangeRefusal(Options& options) {
  OptionRangeCheck check;
  options.Visit(check);
  if (!check.failure) return std::nullopt;
  return SelectionRefusal{*check.failure, check.reason};
}

}  // namespace ovelt
