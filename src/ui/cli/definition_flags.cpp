#include "ui/cli/definition_flags.h"

namespace ovelt {

namespace {

class SetKeyCollector final : public OptionVisitor {
 public:
  void Region(int32_t&, int32_t&) override {}
  void SetIndex(int16_t&, const OptionField& field) override { keys.push_back(field.key); }
  void Flag(bool&, const OptionField&) override {}
  void Integer(int32_t&, const OptionField&, int64_t, int64_t) override {}
  void Real(double&, const OptionField&, double, double) override {}
  void Choice(int16_t&, const OptionField&, const std::vector<std::string>&, int16_t) override {}
  void Text(std::string&, const OptionField&) override {}
  std::vector<std::string> keys;
};

}  // namespace

std::vector<std::string> SetFlagKeys(CommandOptions& options) {
  SetKeyCollector collector;
  options.Visit(collector);
  return collector.keys;
}

std::string DefinitionFlagsLine(const std::string& form_name,
                                const std::vector<std::string>& set_keys) {
  if (form_name == "dlgDefPop") {
    std::string line =
        "On the command line, --set-def NAME=LIST defines a sequence set (one flag for each set)";
    for (size_t i = 0; i < set_keys.size(); ++i)
      line += (i == 0 ? "; " : " and ") + std::string("--") + set_keys[i] + " NAME";
    if (!set_keys.empty())
      line += set_keys.size() == 1 ? " takes it for the run" : " take them for the run";
    return line + ".";
  }
  if (form_name == "Form14")
    return "On the command line, --coding FROM-TO[:FIRST] defines a protein coding region.";
  return "";
}

}  // namespace ovelt
