// The program's own block (Genome, ChromosomalLocation, Oveltversion) and the CODONUSAGE block.

#include "core/genetic_code.h"
#include "core/text_case.h"
#include "formats/nexus_errors.h"
#include "formats/nexus_parts.h"
#include "formats/ovp_file.h"

namespace ovelt {

namespace {

// The value of "Key= value": the words after "=", joined by blanks as they stood.
std::string ValueText(const NexusCommand& command) {
  std::string value;
  size_t i = 0;
  if (i < command.args.size() && command.args[i].is('=')) ++i;
  for (; i < command.args.size(); ++i) {
    if (!value.empty()) value += ' ';
    value += command.args[i].text;
  }
  return value;
}

}  // namespace

void ReadOwnBlock(const NexusRawBlock& block, NexusExtras& extras) {
  for (const NexusCommand& command : block.commands) {
    if (command.name == "GENOME") {
      const std::string value = ValueText(command);
      const std::string upper = ToUpperAscii(value);
      if (upper == "DIPLOID" || upper == "HAPLOID") {
        extras.Format.GenomeState = upper == "HAPLOID" ? 1 : 0;
      } else {
        extras.Warnings.push_back(value + kNexusBadGenome);
        extras.Format.GenomeState = 0;
      }
    } else if (command.name == "CHROMOSOMALLOCATION") {
      const std::string value = ValueText(command);
      const int16_t location = ChromosomalLocationFromNexusValue(value);
      if (location < 0) {
        extras.Warnings.push_back(value + kNexusBadLocation);
        extras.Format.ChromosomalLocation = 0;
      } else {
        extras.Format.ChromosomalLocation = location;
      }
    }
    // Oveltversion: the version that wrote the file; nothing depends on it.
  }
}

void ReadCodonUsageBlock(const NexusRawBlock& block, NexusExtras& extras) {
  const int16_t code = extras.Format.GeneticCodeIndex >= 1 ? extras.Format.GeneticCodeIndex : 1;
  OVPFile parser(code);
  if (!parser.Parse(block.block.Text) && !parser.message().empty())
    extras.Warnings.push_back(parser.message());
  if (parser.tables().empty()) return;
  if (parser.GC() != code) {
    extras.Warnings.emplace_back(kNexusTableCodeDiffers);
    return;
  }
  extras.PrefTables = parser.tables();
  extras.PrefTableName = parser.nameLastTable();
}

}  // namespace ovelt
