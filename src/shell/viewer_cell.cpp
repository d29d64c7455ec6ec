#include "shell/viewer_cell.h"

#include "core/active_data.h"

namespace ovelt {

namespace {

bool IsNucleotide(char c) { return c == 'A' || c == 'C' || c == 'G' || c == 'T'; }

}  // namespace

char ViewerCellText(char cell, char first_cell, int32_t seq, int16_t site_class,
                    const ViewerDisplayOptions& options) {
  if (!IsNucleotide(cell)) return cell;
  if (options.DotForFirstSequence && seq > 1 && cell == first_cell) return '.';
  const bool polymorphic = site_class >= kSingletonSite && site_class <= kFourVariants;
  if (options.LowerCasePolymorphic && polymorphic) return static_cast<char>(cell - 'A' + 'a');
  return cell;
}

}  // namespace ovelt
