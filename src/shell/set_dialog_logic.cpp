#include "shell/set_dialog_logic.h"

#include <algorithm>

#include "core/active_sets.h"
#include "core/set_name.h"

namespace ovelt {

namespace {

bool Contains(const std::vector<int32_t>& list, int32_t value) {
  return std::find(list.begin(), list.end(), value) != list.end();
}

// forms_class keeps its records private; a set is removed or renamed by a round trip through a
// store of the same shape.
std::vector<PoblacionSecuencias> StoreOf(const forms_class& work) {
  std::vector<PoblacionSecuencias> sets;
  work.setValues(sets);
  return sets;
}

std::vector<std::string> NamesExcept(const forms_class& work, int32_t skipped) {
  std::vector<std::string> names;
  for (int32_t i = 1; i <= work.count(); ++i)
    if (i != skipped) names.push_back(work.record(i).name);
  return names;
}

}  // namespace

DefineSetsSession::DefineSetsSession(const ActiveData& ad) : total_seqs_(ad.TotalSeqs) {
  work_.initValues(ad.SequenceSets);
}

std::vector<int32_t> DefineSetsSession::ExcludedList() const {
  std::vector<int32_t> left;
  for (int32_t seq = 1; seq <= total_seqs_; ++seq)
    if (!Contains(included_, seq)) left.push_back(seq);
  return left;
}

bool DefineSetsSession::Dirty() const {
  if (current_ == 0) return !included_.empty();
  return work_.IsModified(current_, included_);
}

std::string DefineSetsSession::SaveButtonCaption() const {
  return current_ > 0 && Dirty() ? kUpdateSetButton : kModifySetButton;
}

void DefineSetsSession::Include(const std::vector<int32_t>& seqs) {
  for (const int32_t seq : seqs)
    if (seq >= 1 && seq <= total_seqs_ && !Contains(included_, seq)) included_.push_back(seq);
}

void DefineSetsSession::Exclude(const std::vector<int32_t>& seqs) {
  std::erase_if(included_, [&seqs](int32_t seq) { return Contains(seqs, seq); });
}

bool DefineSetsSession::Choose(int32_t index) {
  if (index < 0 || index > work_.count()) return false;
  current_ = index;
  included_ = index == 0 ? std::vector<int32_t>{} : work_.copyToList(index);
  return true;
}

std::optional<std::string> DefineSetsSession::SaveQuestion() const {
  if (current_ == 0 || !Dirty()) return std::nullopt;
  return UpdateSetCaption(work_.record(current_).name);
}

SetDialogMessage DefineSetsSession::SaveCurrent() {
  if (!work_.copyFromList(current_, included_)) return {kSetTransferError};
  return {SetModifiedMessage(work_.record(current_).name), kSetsDialogTitle};
}

std::optional<std::string> DefineSetsSession::AddNew(const std::string& name) {
  if (auto refusal = work_.newPoblation(name, included_)) return refusal;
  current_ = work_.count();
  return std::nullopt;
}

std::optional<std::string> DefineSetsSession::Rename(int32_t index, const std::string& name) {
  if (index < 1 || index > work_.count()) return kSetTransferError;
  if (auto refusal = ValidateSetName(name, NamesExcept(work_, index))) return refusal;
  std::vector<PoblacionSecuencias> sets = StoreOf(work_);
  sets[static_cast<size_t>(index)].nombrePop(name);
  work_.initValues(sets);
  return std::nullopt;
}

std::string DefineSetsSession::RemoveQuestion(int32_t index) const {
  if (index < 1 || index > work_.count()) return "";
  return "Remove the Sequence Set " + work_.record(index).name + " ?";
}

bool DefineSetsSession::Remove(int32_t index) {
  if (index < 1 || index > work_.count()) return false;
  std::vector<PoblacionSecuencias> sets = StoreOf(work_);
  sets.erase(sets.begin() + index);
  work_.initValues(sets);
  if (current_ == index) {
    Choose(0);
  } else if (current_ > index) {
    --current_;
  }
  return true;
}

void DefineSetsSession::Apply(ActiveData& ad) const { work_.setValues(ad.SequenceSets); }

ActivePopulationsSession::ActivePopulationsSession(const ActiveData& ad) {
  work_.initValues(ad.SequenceSets);
  active_.assign(static_cast<size_t>(work_.count()) + 1, false);
  for (const int32_t i : work_.copyToListPob(true)) active_[static_cast<size_t>(i)] = true;
}

std::vector<int32_t> ActivePopulationsSession::IncludedPopulations() const {
  std::vector<int32_t> sets;
  for (int32_t i = 1; i <= work_.count(); ++i)
    if (active_[static_cast<size_t>(i)]) sets.push_back(i);
  return sets;
}

std::vector<int32_t> ActivePopulationsSession::ExcludedPopulations() const {
  std::vector<int32_t> sets;
  for (int32_t i = 1; i <= work_.count(); ++i)
    if (!active_[static_cast<size_t>(i)]) sets.push_back(i);
  return sets;
}

void ActivePopulationsSession::Include(const std::vector<int32_t>& sets) {
  for (const int32_t i : sets)
    if (i >= 1 && i <= work_.count()) active_[static_cast<size_t>(i)] = true;
}

void ActivePopulationsSession::Exclude(const std::vector<int32_t>& sets) {
  for (const int32_t i : sets)
    if (i >= 1 && i <= work_.count()) active_[static_cast<size_t>(i)] = false;
}

std::optional<std::string> ActivePopulationsSession::Confirm(ActiveData& ad) {
  forms_class flipped = work_;
  if (!flipped.activeFromList(active_)) return kSetTransferError;
  if (auto refusal = CheckActivePopulations(ad, flipped)) return refusal;
  work_ = flipped;
  work_.setValues(ad.SequenceSets);
  return std::nullopt;
}

}  // namespace ovelt
