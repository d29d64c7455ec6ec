#include "ui/cli/data_options.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <cctype>
#include <ostream>

#include "core/coding_regions.h"
#include "core/genetic_code.h"
#include "core/region_check.h"
#include "core/sequence_sets.h"
#include "core/site_scan.h"
#include "formats/mega_dialog_check.h"
#include "shell/refusals.h"
#include "shell/workbench.h"
#include "ui/cli/console_platform.h"

namespace ovelt {

namespace {

bool AllDigits(const std::string& text) {
  return !text.empty() && text.size() < 9 &&
         std::all_of(text.begin(), text.end(), [](unsigned char c) { return std::isdigit(c); });
}

// "FROM-TO" or "FROM-TO:FIRST".
bool ParseRegion(const std::string& text, int32_t& from, int32_t& to, int& first, std::ostream& err) {
  std::string range = text;
  first = 1;
  if (const auto colon = text.find(':'); colon != std::string::npos) {
    range = text.substr(0, colon);
    const std::string pos = text.substr(colon + 1);
    if (pos != "1" && pos != "2" && pos != "3") {
      err << "Invalid codon position \"" << pos << "\" in \"" << text
          << "\": the first site takes position 1, 2 or 3\n";
      return false;
    }
    first = pos[0] - '0';
  }
  const auto dash = range.find('-');
  if (dash == std::string::npos || !AllDigits(range.substr(0, dash)) ||
      !AllDigits(range.substr(dash + 1))) {
    err << "Invalid region \"" << text << "\": write FROM-TO, for example 1-300\n";
    return false;
  }
  from = std::stoi(range.substr(0, dash));
  to = std::stoi(range.substr(dash + 1));
  return true;
}

std::string Lower(std::string text) {
  std::transform(text.begin(), text.end(), text.begin(),
                 [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  return text;
}

bool ApplySets(const DataOptions& o, Workbench& wb, std::ostream& err) {
  ActiveData& d = wb.Data();
  for (const std::string& def : o.set_defs) {
    const ParsedSetDefinition parsed = ParseSetDefinition(def, d.TotalSeqs);
    if (!parsed.ok()) {
      wb.Ui().MessageBox(parsed.error, MsgIcon::kWarning);
      return false;
    }
    if (auto refusal = AddSequenceSet(d, parsed.name, parsed.members)) {
      wb.Ui().MessageBox(*refusal, MsgIcon::kWarning);
      return false;
    }
  }
  for (const std::string& name : o.inactive_sets) {
    bool found = false;
    for (int32_t s = 1; s <= d.SetCount(); ++s) {
      if (d.SequenceSets[static_cast<size_t>(s)].nombre() == name) {
        d.SequenceSets[static_cast<size_t>(s)].activePop(0);
        found = true;
      }
    }
    if (!found) {
      err << "No sequence set is named \"" << name << "\"\n";
      return false;
    }
  }
  return true;
}

bool ApplyInclusion(const DataOptions& o, Workbench& wb) {
  ActiveData& d = wb.Data();
  const int16_t gaps = o.gaps_in_sets != 0 ? static_cast<int16_t>(o.gaps_in_sets) : d.GapsInSets;
  if (o.include.empty() && o.exclude.empty()) {
    if (gaps != d.GapsInSets) ApplyForm17(d, kGapsInSetsCommand, gaps);
    return true;
  }
  std::vector<bool> ticks(static_cast<size_t>(d.TotalSeqs) + 1, o.include.empty());
  ticks[0] = false;
  for (const auto& [list, value] : {std::pair{o.include, true}, std::pair{o.exclude, false}}) {
    if (list.empty()) continue;
    const ParsedSequenceList parsed = ParseSequenceList(list, d.TotalSeqs);
    if (!parsed.ok()) {
      wb.Ui().MessageBox(parsed.error, MsgIcon::kWarning);
      return false;
    }
    for (int32_t seq : parsed.members) ticks[static_cast<size_t>(seq)] = value;
  }
  return wb.IncludeSequences(ticks, gaps);
}

bool ApplyCoding(const DataOptions& o, Workbench& wb, std::ostream& err) {
  ActiveData& d = wb.Data();
  if (o.coding.empty() && o.noncoding.empty()) return true;
  bool changed = false;
  for (const auto& [list, coding] : {std::pair{&o.coding, true}, std::pair{&o.noncoding, false}}) {
    for (const std::string& text : *list) {
      int32_t from = 0, to = 0;
      int first = 1;
      if (!ParseRegion(text, from, to, first, err)) return false;
      if (!coding && text.find(':') != std::string::npos) {
        err << "A noncoding region takes no codon position: \"" << text << "\"\n";
        return false;
      }
      if (!RegionIsValid(from, to, d.NumSites)) {
        wb.Ui().MessageBox(kInvalidSelection, MsgIcon::kWarning);
        wb.Ui().ExplainRefusal(RegionFaultReason(from, to, d.NumSites));
        return false;
      }
      changed = (coding ? AssignCodingRegion(d, from, to, first)
                        : AssignNonCodingRegion(d, from, to)) ||
                changed;
    }
  }
  if (auto question = STOPenelFinal(d)) {
    if (wb.Ui().MessageBox(question->text, MsgIcon::kQuestion, MsgButtons::kYesNo) ==
        MsgAnswer::kYes)
      changed = ApplyStopAsNonCoding(d, question->a, question->b, question->c) || changed;
  }
  LeaveForm14(d, changed);
  return true;
}

bool ApplyAttributes(const DataOptions& o, Workbench& wb, std::ostream& err) {
  ActiveData& d = wb.Data();
  if (!o.genetic_code.empty()) {
    const int16_t index = AllDigits(o.genetic_code)
                              ? static_cast<int16_t>(std::stoi(o.genetic_code))
                              : GeneticCodeIndexFromName(o.genetic_code);
    if (index < 1 || index > kGeneticCodeCount) {
      err << "Unknown genetic code \"" << o.genetic_code << "\": give 1 to 10 or a name such as "
          << "Universal or mtDNA.Mam (see `ovelt genetic-codes`)\n";
      return false;
    }
    ChangeGeneticCode(d, index);
  }
  FormatAttributes f = d.Format;
  if (!o.location.empty()) {
    int16_t code = -1;
    if (AllDigits(o.location) && std::stoi(o.location) < kChromosomalLocationCount) {
      code = static_cast<int16_t>(std::stoi(o.location));
    } else {
      for (int16_t c = 0; c < kChromosomalLocationCount; ++c)
        if (Lower(o.location) == Lower(ChromosomalLocationNexusValue(c)) ||
            Lower(o.location) == Lower(ChromosomalLocationText(c)))
          code = c;
    }
    if (code < 0) {
      err << "Unknown chromosomal location \"" << o.location
          << "\": give 0 to 7 or one of Autosome, Xchromosome, Ychromosome, Zchromosome, "
             "Wchromosome, Prokaryotic, Mitochondrial, Chloroplast\n";
      return false;
    }
    f.ChromosomalLocation = code;
  }
  if (o.haploid) f.GenomeState = 1;
  if (o.rna) f.NucleotideType = 1;
  if (NeedsDiploidConfirmation(f.ChromosomalLocation, f.GenomeState) &&
      (f.ChromosomalLocation != d.Format.ChromosomalLocation ||
       f.GenomeState != d.Format.GenomeState)) {
    if (wb.Ui().AskBeforeChange(kDiploidQuestion + "\n" + InputFileLine(d), MsgIcon::kQuestion) !=
        MsgAnswer::kOk)
      return false;
  }
  d.Format = f;
  if (o.gaps_in_window) ApplyForm17(d, kGapsInWindowCommand, 1);
  if (o.use_mutations) ApplyForm17(d, kSegSitesMutationsCommand, 2);
  return true;
}

}  // namespace

void AddDataOptions(CLI::App& app, DataOptions& o) {
  const char* data = "Data settings";
  app.add_option("--mega-layout", o.mega_layout,
                 "MEGA Data File: Format (sequential or interleaved)")
      ->check(CLI::IsMember({"sequential", "interleaved"}, CLI::ignore_case))
      ->group(data);
  app.add_option("--mega-match", o.mega_match, "MEGA Data File: Matching Symbol")->group(data);
  app.add_option("--mega-gap", o.mega_gap, "MEGA Data File: Gap Symbol")->group(data);
  app.add_option("--mega-missing", o.mega_missing, "MEGA Data File: Missing Symbol")->group(data);
  app.add_option("--set-def", o.set_defs,
                 "Define a sequence set: NAME=LIST of file sequence numbers, e.g. Pop1=1-5,8")
      ->group(data);
  app.add_option("--inactive-set", o.inactive_sets, "Exclude the named set from analyses")
      ->group(data);
  app.add_option("--include", o.include, "Include only these sequences (LIST, e.g. 1-5,8)")
      ->group(data);
  app.add_option("--exclude", o.exclude, "Exclude these sequences (LIST)")->group(data);
  app.add_option("--gaps-in-sets", o.gaps_in_sets,
                 "1: sites with gaps are excluded if present in the active subset; 2: sites with "
                 "gaps anywhere in the data file are excluded in all subsets")
      ->check(CLI::IsMember({1, 2}))
      ->group(data);
  app.add_flag("--gaps-in-window", o.gaps_in_window,
               "Sites with alignment gaps count in the length of sliding windows")
      ->group(data);
  app.add_flag("--use-mutations", o.use_mutations,
               "Use the total number of mutations instead of segregating sites")
      ->group(data);
  app.add_option("--coding", o.coding,
                 "Assign a protein coding region FROM-TO[:FIRST] (FIRST: codon position 1, 2 or "
                 "3 of site FROM)")
      ->group(data);
  app.add_option("--noncoding", o.noncoding, "Assign a noncoding region FROM-TO (after --coding)")
      ->group(data);
  app.add_option("--genetic-code", o.genetic_code,
                 "Genetic code: 1 to 10 or its name (see `ovelt genetic-codes`)")
      ->group(data);
  app.add_option("--location", o.location, "Chromosomal location (0-7 or its name)")->group(data);
  app.add_flag("--haploid", o.haploid, "Haploid genome (default diploid)")->group(data);
  app.add_flag("--rna", o.rna, "RNA sequences (default DNA)")->group(data);
  app.add_flag("--yes,-y", o.yes, "Answer Yes to the program's questions (default No)");
  app.add_flag("--progress", o.progress, "Show the status line on standard error");
}

bool PrepareDataOptions(const DataOptions& o, ConsolePlatform& platform, std::ostream& err) {
  if (const auto refusal = CheckMegaSymbols(o.mega_match, o.mega_gap, o.mega_missing)) {
    // The dialog's own answer, whatever the kind of the file: one rule for every command.
    static_cast<Platform&>(platform).MessageBox(refusal->Text, MsgIcon::kWarning,
                                                MsgButtons::kOk, refusal->Title);
    if (refusal->Text == kMissingSymbolText) err << "(each MEGA symbol must be one character)\n";
    return false;
  }
  platform.mega.Layout = Lower(o.mega_layout) == "interleaved" ? 1 : 0;
  platform.mega.MatchSymbol = o.mega_match[0];
  platform.mega.GapSymbol = o.mega_gap[0];
  platform.mega.MissingSymbol = o.mega_missing[0];
  platform.answer_yes = o.yes;
  platform.show_status = o.progress;
  return true;
}

bool ApplyDataOptions(const DataOptions& o, Workbench& wb, std::ostream& err) {
  return ApplySets(o, wb, err) && ApplyInclusion(o, wb) && ApplyCoding(o, wb, err) &&
         ApplyAttributes(o, wb, err);
}

}  // namespace ovelt
