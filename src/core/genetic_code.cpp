#include "core/genetic_code.h"

#include <string_view>

#include "core/text_case.h"

namespace ovelt {

namespace {

// The nuclear universal code in codon-index order (T, C, A, G).
constexpr std::string_view kUniversalCode =
    "FFLLSSSSYY**CC*W"
    "LLLLPPPPHHQQRRRR"
    "IIIMTTTTNNKKSSRR"
    "VVVVAAAADDEEGGGG";

// Departures of codes 2..10 from the universal code, one codon each.
struct CodonChange {
  int16_t code;
  const char* codon;
  char amino_acid;
};

constexpr CodonChange kChanges[] = {
    {2, "TGA", 'W'},  {2, "ATA", 'M'},  {2, "AGA", '*'},  {2, "AGG", '*'},
    {3, "TGA", 'W'},  {3, "ATA", 'M'},  {3, "AGA", 'S'},  {3, "AGG", 'S'},
    {4, "TGA", 'W'},  {4, "CTT", 'T'},  {4, "CTC", 'T'},  {4, "CTA", 'T'},
    {4, "CTG", 'T'},  {4, "ATA", 'M'},
    {5, "TGA", 'W'},
    {6, "AAA", 'N'},  {6, "AGA", 'S'},  {6, "AGG", 'S'},  {6, "TGA", 'W'},
    {7, "AAA", 'N'},  {7, "AGA", 'S'},  {7, "AGG", 'S'},  {7, "TAA", 'Y'},  {7, "TGA", 'W'},
    {8, "TAA", 'Q'},  {8, "TAG", 'Q'},
    {9, "CTG", 'S'},
    {10, "TGA", 'W'}, {10, "ATA", 'M'}, {10, "AGA", 'G'}, {10, "AGG", 'G'},
};

struct CodeNames {
  std::string text;
  std::string nexus;
  std::string table;
  std::string alias;
};

const CodeNames& NamesOf(int16_t index) {
  static const CodeNames kNames[] = {
      {"", "", "", ""},
      {"Nuclear Universal", "Universal", "UNIVERSAL.EXT", "UNIVNUC"},
      {"mtDNA Mammals", "mtDNA.Mam", "MTDNA.MAM.EXT", "UNIVmtDNA"},
      {"mtDNA Drosophila", "mtDNA.Dros", "MTDNA.DROS.EXT", ""},
      {"mtDNA Yeast", "mtDNA.Yeast", "MTDNA.YEAST.EXT", ""},
      {"mtDNA Mold-Protozoan", "mtDNA.MoldProt", "mtDNA.MoldProt.EXT", ""},
      {"mtDNA Echinoderm", "mtDNA.Echinoderm", "mtDNA.Echinoderm.EXT", ""},
      {"mtDNA Flatworm", "mtDNA.Flatworm", "mtDNA.Flatworm.EXT", ""},
      {"Nuclear Ciliate", "Nuclear.Ciliate", "Nuclear.Ciliate.EXT", ""},
      {"Nuclear Candida (Table 12)", "Nuclear.Candida", "Nuclear.Candida.EXT", ""},
      {"mtDNA Ascidian", "mtDNA.Ascidian", "mtDNA.Ascidian.EXT", ""},
  };
  return index >= 1 && index <= kGeneticCodeCount ? kNames[index] : kNames[0];
}

struct LocationNames {
  std::string text;
  std::string nexus;
};

const LocationNames kLocations[] = {
    {"Autosome", "Autosome"},           {"X chromosome", "Xchromosome"},
    {"Y chromosome", "Ychromosome"},    {"Z chromosome", "Zchromosome"},
    {"W chromosome", "Wchromosome"},    {"Prokaryotic", "Prokaryotic"},
    {"Mitochondrial", "Mitochondrial"}, {"Chloroplast", "Chloroplast"},
};

const std::string kEmpty;

}  // namespace

int NucleotideRank(char cell) {
  switch (cell) {
    case 'T':
    case 'U':
      return 1;
    case 'C':
      return 2;
    case 'A':
      return 3;
    case 'G':
      return 4;
    default:
      return 0;
  }
}

int CodonIndex(char a, char b, char c) {
  const int ra = NucleotideRank(a), rb = NucleotideRank(b), rc = NucleotideRank(c);
  if (ra == 0 || rb == 0 || rc == 0) return 0;
  return (ra - 1) * 16 + (rb - 1) * 4 + rc;
}

GeneticCodeTable BuildGeneticCode(int16_t index) {
  GeneticCodeTable table;
  for (size_t i = 0; i < kUniversalCode.size(); ++i) table.AminoAcid[i + 1] = kUniversalCode[i];
  if (index < 1 || index > kGeneticCodeCount) index = 1;
  for (const auto& change : kChanges) {
    if (change.code != index) continue;
    const int codon = CodonIndex(change.codon[0], change.codon[1], change.codon[2]);
    table.AminoAcid[static_cast<size_t>(codon)] = change.amino_acid;
  }
  table.NuclearCodeFlag = (index == 1 || index == 8 || index == 9) ? 1 : 0;
  return table;
}

const std::string& GeneticCodeText(int16_t index) { return NamesOf(index).text; }
const std::string& GeneticCodeNexusName(int16_t index) { return NamesOf(index).nexus; }
const std::string& GeneticCodeTableName(int16_t index) { return NamesOf(index).table; }

int16_t GeneticCodeIndexFromName(const std::string& name) {
  const std::string wanted = ToLowerAscii(TrimBlanks(name));
  if (wanted.empty()) return 0;
  auto columns = [](int16_t index) {
    const CodeNames& n = NamesOf(index);
    return std::array<std::string, 4>{ToLowerAscii(n.text), ToLowerAscii(n.nexus),
                                      ToLowerAscii(n.table), ToLowerAscii(n.alias)};
  };
  for (int16_t index = 1; index <= kGeneticCodeCount; ++index) {
    for (const auto& column : columns(index)) {
      if (column == wanted) return index;
    }
  }
  for (int16_t index = 1; index <= kGeneticCodeCount; ++index) {
    for (const auto& column : columns(index)) {
      if (!column.empty() && column.compare(0, wanted.size(), wanted) == 0) return index;
    }
  }
  return 0;
}

const std::string& AminoAcidThreeLetter(char one_letter) {
  static const std::string kAla = "Ala", kCys = "Cys", kAsp = "Asp", kGlu = "Glu", kPhe = "Phe",
                           kGly = "Gly", kHis = "His", kIle = "Ile", kLys = "Lys", kLeu = "Leu",
                           kMet = "Met", kAsn = "Asn", kPro = "Pro", kGln = "Gln", kArg = "Arg",
                           kSer = "Ser", kThr = "Thr", kVal = "Val", kTrp = "Trp", kTyr = "Tyr",
                           kStop = "Stop";
  switch (one_letter) {
    case 'A': return kAla;
    case 'C': return kCys;
    case 'D': return kAsp;
    case 'E': return kGlu;
    case 'F': return kPhe;
    case 'G': return kGly;
    case 'H': return kHis;
    case 'I': return kIle;
    case 'K': return kLys;
    case 'L': return kLeu;
    case 'M': return kMet;
    case 'N': return kAsn;
    case 'P': return kPro;
    case 'Q': return kGln;
    case 'R': return kArg;
    case 'S': return kSer;
    case 'T': return kThr;
    case 'V': return kVal;
    case 'W': return kTrp;
    case 'Y': return kTyr;
    case '*': return kStop;
    default: return kEmpty;
  }
}

const std::string& ChromosomalLocationText(int16_t code) {
  return code >= 0 && code < kChromosomalLocationCount ? kLocations[code].text : kEmpty;
}

const std::string& ChromosomalLocationNexusValue(int16_t code) {
  return code >= 0 && code < kChromosomalLocationCount ? kLocations[code].nexus : kEmpty;
}

int16_t ChromosomalLocationFromNexusValue(const std::string& value) {
  const std::string wanted = ToLowerAscii(TrimBlanks(value));
  for (int16_t code = 0; code < kChromosomalLocationCount; ++code) {
    if (ToLowerAscii(kLocations[code].nexus) == wanted) return code;
  }
  return -1;
}

const std::string& GenomeStateText(int16_t state) {
  static const std::string kDiploid = "Diploid", kHaploid = "Haploid";
  if (state == 0) return kDiploid;
  if (state == 1) return kHaploid;
  return kEmpty;
}

const std::string& NucleotideTypeText(int16_t type) {
  static const std::string kDna = "DNA", kRna = "RNA";
  if (type == 0) return kDna;
  if (type == 1) return kRna;
  return kEmpty;
}

}  // namespace ovelt
