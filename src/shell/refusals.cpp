#include "shell/refusals.h"

#include <algorithm>
#include <cctype>

namespace ovelt {

namespace {

std::string Upper(std::string text) {
  std::transform(text.begin(), text.end(), text.begin(),
                 [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
  return text;
}

bool SetHasIncludedSequence(const PoblacionSecuencias& set, const ActiveData& data) {
  for (double member : set.members()) {
    const auto seq = static_cast<int32_t>(member);
    if (seq >= 1 && seq < static_cast<int32_t>(data.SeqIncluded.size()) &&
        data.SeqIncluded[static_cast<size_t>(seq)])
      return true;
  }
  return false;
}

// The dialogs a refusal offers on Yes.
constexpr const char* kSetsDialog = "dlgDefPop";
constexpr const char* kCodingDialog = "Form14";
constexpr const char* kPrefTableDialog = "PrefUnprefTable";

// 1 when what the dialog defines is still missing (the command stops), else 0.
int Stops(bool missing, const char* form_name, Platform& platform) {
  if (!missing) return 0;
  platform.DefinitionMissing(form_name);
  return 1;
}

}  // namespace

std::string InputFileLine(const ActiveData& data) {
  return "Input data file: " + data.FilePath;
}

int SetsWithIncludedSequences(const ActiveData& data, bool only_active) {
  int count = 0;
  for (int32_t s = 1; s <= data.SetCount(); ++s) {
    const PoblacionSecuencias& set = data.SequenceSets[static_cast<size_t>(s)];
    if (only_active && set.active() != 1) continue;
    if (SetHasIncludedSequence(set, data)) ++count;
  }
  return count;
}

int MensajeNoPobsDefined(const std::string& question, ActiveData& data, Platform& platform) {
  if (data.SetCount() >= 2) return 0;
  std::string text = data.SetCount() == 0 ? "No Sequence Sets (Populations) defined !"
                                          : "Only one Sequence Set (Population) defined !";
  if (!question.empty()) {
    text += "\n" + question;
  } else {
    text +=
        "\nThe present analysis requires, at least, the definition of 2 Sets of Sequences. Do "
        "you want to define them?";
  }
  if (platform.MessageBox(text, MsgIcon::kQuestion, MsgButtons::kYesNo) == MsgAnswer::kYes)
    platform.ShowDialog(kSetsDialog);
  return Stops(data.SetCount() < 2, kSetsDialog, platform);
}

int MensajeNoPobsDefined2(ActiveData& data, Platform& platform) {
  if (data.SetCount() >= 1) return 0;
  const std::string text =
      "No Sequence Sets (Populations) defined !\nThe present analysis requires, at least, one "
      "Set of Sequences.\nDo you want to define the Sequences Sets now ?";
  if (platform.MessageBox(text, MsgIcon::kQuestion, MsgButtons::kYesNo) == MsgAnswer::kYes)
    platform.ShowDialog(kSetsDialog);
  return Stops(data.SetCount() < 1, kSetsDialog, platform);
}

int MensajeNoCodingRegionDefined(ActiveData& data, Platform& platform) {
  if (data.Format.CodingAssigned >= 1) return 0;
  const std::string text =
      "No Protein Coding Region Defined !\nDo you want to define the Protein Coding Region now ?";
  if (platform.MessageBox(text, MsgIcon::kQuestion, MsgButtons::kYesNo) == MsgAnswer::kYes)
    platform.ShowDialog(kCodingDialog);
  return Stops(data.Format.CodingAssigned < 1, kCodingDialog, platform);
}

int MensajeNoPrefUnPrefTablaDefined(ActiveData& data, Platform& platform) {
  auto unassigned = [&data] {
    const std::string name = Upper(data.PrefTableName);
    return name == "UNKNOWN" || name == "NONE";
  };
  if (!unassigned()) return 0;
  const std::string text =
      "There is no any Preferred/Unpreferred Codons Table assigned!\nDo you want to assign the "
      "table now?";
  if (platform.MessageBox(text, MsgIcon::kQuestion, MsgButtons::kYesNo) == MsgAnswer::kYes)
    platform.ShowDialog(kPrefTableDialog);
  return Stops(unassigned(), kPrefTableDialog, platform);
}

bool PassesCheck(Check check, const CommandFacts& facts, ActiveData& data, Platform& platform) {
  const std::string file_line = "\n" + InputFileLine(data);
  switch (check) {
    case Check::kOneSequence: {
      if (data.NumSeqs != 1) return true;
      const std::string words = facts.OneSequenceWords.empty()
                                    ? "Can't compute " + facts.Title + "."
                                    : facts.OneSequenceWords;
      const std::string first = "Only one sequence in the Data File. " + words;
      platform.MessageBox(first + file_line, MsgIcon::kWarning);
      return false;
    }
    case Check::kFourSequences:
      if (data.NumSeqs >= 4) return true;
      platform.MessageBox(
          "Four or more sequences are needed to compute the " + facts.Title + "." + file_line,
          MsgIcon::kWarning);
      return false;
    case Check::kTwoSequences:
      if (data.NumSeqs != 2) return true;
      platform.MessageBox("Only two sequences in the Data File. Can't compute " + facts.Title + ".",
                          MsgIcon::kWarning);
      return false;
    case Check::kTwoSets:
      return MensajeNoPobsDefined(facts.TwoSetsQuestion, data, platform) == 0;
    case Check::kOneSet:
      return MensajeNoPobsDefined2(data, platform) == 0;
    case Check::kCodingRegion:
      return MensajeNoCodingRegionDefined(data, platform) == 0;
    case Check::kPrefTable:
      return MensajeNoPrefUnPrefTablaDefined(data, platform) == 0;
    case Check::kCodingNotice:
      // OK runs the command with every site taken as noncoding: a face that cannot ask answers
      // Cancel unless the user agreed beforehand.
      if (data.Format.CodingAssigned >= 1) return true;
      return platform.AskBeforeChange(
                 "No Protein Coding region defined. All sites will be considered as noncoding "
                 "positions." +
                     file_line,
                 MsgIcon::kInformation) == MsgAnswer::kOk;
    case Check::kActiveSets: {
      const std::string tail = " Can't compute the Gene Flow between/among populations.";
      if (data.SetCount() == 0) {
        platform.MessageBox("There are 0 defined populations." + tail, MsgIcon::kWarning);
        return false;
      }
      if (data.SetCount() == 1) {
        platform.MessageBox("There is only one defined population." + tail, MsgIcon::kWarning);
        return false;
      }
      const int active = SetsWithIncludedSequences(data, true);
      if (active == 0) {
        platform.MessageBox("There are 0 active populations with included sequences." + tail,
                            MsgIcon::kWarning);
        return false;
      }
      if (active == 1) {
        platform.MessageBox("There is only 1 active populations with included sequences." + tail,
                            MsgIcon::kWarning);
        return false;
      }
      return true;
    }
    case Check::kSetsWithSeqs:
      if (SetsWithIncludedSequences(data, false) >= 2) return true;
      platform.MessageBox(
          "There are less than 2 populations with included sequences. Can't analyse the data.",
          MsgIcon::kWarning);
      return false;
    case Check::kNoOpenFile:
      return data.OpenFiles == 0;
  }
  return false;
}

}  // namespace ovelt
