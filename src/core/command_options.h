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
#include <vector>

namespace ovelt {

struct OptionField {
  std::string key;      // command-line flag, without "--"
  std::string label;    // the dialog's words
  std::string help;     // one line for --help
  std::string invalid = " Invalid Selection ";  // what a value out of range gets
};

// Checks every Integer, Real and Choice field against its limits; the first failure's message.
class OptionRangeCheck {
 public:
  void Region(int32_t&, int32_t&) {}
  void SetIndex(int16_t&, const OptionField&) {}
  void Flag(bool&, const OptionField&) {}
  void Text(std::string&, const OptionField&) {}
  void Integer(int32_t& value, const OptionField& field, int64_t min, int64_t max) {
    if (!failure && (value < min || value > max)) failure = field.invalid;
  }
  void Real(double& value, const OptionField& field, double min, double max) {
    if (!failure && !(value >= min && value <= max)) failure = field.invalid;
  }
  void Choice(int16_t& value, const OptionField& field, const std::vector<std::string>& texts,
              int16_t first_value) {
    if (!failure && (value < first_value ||
                     value >= first_value + static_cast<int16_t>(texts.size())))
      failure = field.invalid;
  }
  std::optional<std::string> failure;
};

template <class Options>
[[nodiscard]] std::optional<std::string> CheckOptionRanges(Options& options) {
  OptionRangeCheck check;
  options.Visit(check);
  return check.failure;
}

}  // namespace ovelt
