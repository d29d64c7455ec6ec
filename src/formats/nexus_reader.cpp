#include "formats/nexus_reader.h"

#include <algorithm>
#include <cstring>
#include <map>
#include <optional>
#include <utility>

#include "core/text_case.h"
#include "formats/nexus_errors.h"
#include "formats/nexus_matrix.h"
#include "formats/nexus_parts.h"
#include "formats/read_messages.h"
#include "formats/readers.h"

namespace ovelt {

namespace {

// Label statements longer than this (all together) are not kept for writing the file back.
constexpr size_t kLabelTextLimit = 32767;

bool IsDnaType(const std::string& type) {
  return type == "DNA" || type == "RNA" || type == "NUCLEOTIDE";
}

bool SameText(const std::string& a, const std::string& b) {
  return ToUpperAscii(a) == ToUpperAscii(b);
}

bool IsDataKind(NexusBlockKind kind) {
  return kind == NexusBlockKind::kData || kind == NexusBlockKind::kCharacters;
}

// The DATA or CHARACTERS block to read: the first of DNA, else the first at all.
int ChooseDataBlock(const NexusFile& file) {
  int first = -1;
  for (size_t i = 0; i < file.blocks.size(); ++i) {
    if (!IsDataKind(file.blocks[i].block.Kind)) continue;
    if (first < 0) first = static_cast<int>(i);
    if (IsDnaType(NexusDataType(file.blocks[i]))) return static_cast<int>(i);
  }
  return first;
}

// The TAXA block that the CHARACTERS block `data` links, or -1.
int ChooseTaxaBlock(const NexusFile& file, int data) {
  const std::string link =
      NexusCommandValue(file.blocks[static_cast<size_t>(data)], "LINK", "TAXA");
  int last_before = -1;
  int first = -1;
  for (size_t i = 0; i < file.blocks.size(); ++i) {
    const NexusRawBlock& block = file.blocks[i];
    if (block.block.Kind != NexusBlockKind::kTaxa) continue;
    if (!link.empty() && SameText(NexusCommandValue(block, "TITLE"), link))
      return static_cast<int>(i);
    if (first < 0) first = static_cast<int>(i);
    if (static_cast<int>(i) < data) last_before = static_cast<int>(i);
  }
  if (!link.empty()) throw NexusFault(kNexusCharactersBlock);  // links a block that isn't there
  return last_before >= 0 ? last_before : first;
}

// A name token as a NEXUS file can hold it again: a word as it stands, a quoted name in single
// quotes (its own quotes doubled).
std::string NexusNameAsWritten(const NexusToken& token) {
  if (token.type != NexusToken::kQuoted) return token.text;
  std::string quoted = "'";
  for (char c : token.text) quoted += c == '\'' ? std::string("''") : std::string(1, c);
  return quoted + "'";
}

std::vector<std::string> KeysOf(const std::vector<NexusToken>& names) {
  std::vector<std::string> keys;
  keys.reserve(names.size());
  for (const NexusToken& name : names) keys.push_back(NexusNameKey(NexusNameText(name)));
  return keys;
}

struct TaxaInfo {
  std::optional<int32_t> ntax;
  std::vector<NexusToken> labels;
};

TaxaInfo ReadTaxaBlock(NexusRawBlock& raw, std::string_view text) {
  TaxaInfo taxa;
  for (const NexusCommand& command : raw.commands) {
    if (command.name == "DIMENSIONS") {
      taxa.ntax = ReadNexusDimensions(command).ntax;
    } else if (command.name == "TAXLABELS") {
      taxa.labels = ReadTaxLabels(command);
    } else {
      raw.block.KeptStatements.push_back(NexusCommandText(text, command));
    }
  }
  if (!taxa.ntax) throw NexusFault(kNexusNtax);
  if (static_cast<int32_t>(taxa.labels.size()) != *taxa.ntax) throw NexusFault(kNexusTaxaBlock);
  raw.block.Read = true;
  return taxa;
}

class NexusReader {
 public:
  NexusReader(std::string_view text, NexusTextRead read)
      : text_(text), read_(std::move(read)), file_(SplitNexusBlocks(text, read_)) {
    FormatAttributes& format = extras_.Format;
    format.Interleaved = 0;
    format.BlockLength = 60;
    format.MatchSymbolOn = 0;
    format.GeneticCodeIndex = 0;
    format.CodingAssigned = -1;
  }

  LoadedFile Read() {
    const int data = ChooseDataBlock(file_);
    if (data < 0) throw NexusFault(kNexusErroneousFile);
    NexusRawBlock& raw = file_.blocks[static_cast<size_t>(data)];
    old_form_ = raw.block.Kind == NexusBlockKind::kData;
    block_error_ = old_form_ ? kNexusDataBlock : kNexusCharactersBlock;
    extras_.Format.NexusVersion = old_form_ ? 1 : 2;
    if (!old_form_) {
      const int taxa = ChooseTaxaBlock(file_, data);
      if (taxa >= 0) taxa_ = ReadTaxaBlock(file_.blocks[static_cast<size_t>(taxa)], text_);
    }
    ReadDataBlock(raw);
    ReadOtherBlocks();
    return Result();
  }

 private:
  void ReadDataBlock(NexusRawBlock& raw) {
    const NexusCommand* dimensions_command = raw.Find("DIMENSIONS");
    if (dimensions_command == nullptr) throw NexusFault(old_form_ ? kNexusNtax : kNexusNchar);
    const NexusDimensions dimensions = ReadNexusDimensions(*dimensions_command);
    if (old_form_ && !dimensions.ntax) throw NexusFault(kNexusNtax);
    if (!dimensions.nchar) throw NexusFault(kNexusNchar);
    nchar_ = *dimensions.nchar;
    std::vector<NexusToken> labels;
    if (dimensions.ntax) {
      ntax_ = *dimensions.ntax;
      // A CHARACTERS block of other taxa than its TAXA block's names its rows itself.
      if (static_cast<int32_t>(taxa_.labels.size()) == ntax_) labels = taxa_.labels;
    } else if (taxa_.ntax) {
      ntax_ = *taxa_.ntax;
      labels = taxa_.labels;
    } else {
      throw NexusFault(kNexusNtax);
    }

    // Every cell takes at least one byte of the matrix: a size the file cannot hold is refused
    // before anything is sized by it.
    const NexusCommand* first_matrix = raw.Find("MATRIX");
    if (first_matrix == nullptr) throw NexusFault(block_error_);
    RefuseMatrixLargerThanItsText(*first_matrix);

    NexusFormat format;
    const NexusCommand* matrix = nullptr;
    size_t label_text = 0;
    std::vector<std::string> label_statements;
    char_keys_.clear();  // sized by the labels, when there are any
    for (const NexusCommand& command : raw.commands) {
      if (command.name == "DIMENSIONS") continue;
      if (command.name == "FORMAT") {
        format = ReadNexusFormat(command);
      } else if (command.name == "MATRIX") {
        if (matrix == nullptr) matrix = &command;
      } else if (command.name == "TAXLABELS") {
        labels = ReadTaxLabels(command);
        if (static_cast<int32_t>(labels.size()) != ntax_) throw NexusFault(block_error_);
      } else if (command.name == "CHARLABELS" || command.name == "CHARSTATELABELS" ||
                 command.name == "STATELABELS") {
        if (command.name != "STATELABELS") ReadCharLabels(command, nchar_, char_keys_);
        label_statements.push_back(NexusCommandText(text_, command));
        label_text += label_statements.back().size();
      } else {
        raw.block.KeptStatements.push_back(NexusCommandText(text_, command));
      }
    }
    if (label_text > kLabelTextLimit) {
      extras_.Warnings.emplace_back(kNexusLabelsTooBig);
    } else {
      for (std::string& statement : label_statements)
        raw.block.KeptStatements.push_back(std::move(statement));
    }
    if (matrix == nullptr) throw NexusFault(block_error_);
    if (!format.row_names && labels.empty()) throw NexusFault(block_error_);

    NexusMatrixShape shape;
    shape.ntax = ntax_;
    shape.nchar = nchar_;
    shape.interleaved = format.interleaved;
    shape.row_names = format.row_names;
    shape.gap = format.gap;
    shape.missing = format.missing;
    shape.match = format.match;
    shape.block_error = block_error_;
    const std::string_view content =
        text_.substr(matrix->matrix_begin, matrix->matrix_end - matrix->matrix_begin);
    if (read_) {
      shape.read = [this, begin = matrix->matrix_begin](size_t from, size_t to) {
        read_(begin + from, begin + to);
      };
    }
    NexusMatrix cells;
    try {
      cells = ReadNexusMatrix(content, shape);
    } catch (const NexusFault&) {
      if (shape.interleaved) throw;
      // Blocks of rows without INTERLEAVE in the FORMAT (PhyML writes them so).
      shape.interleaved = true;
      try {
        cells = ReadNexusMatrix(content, shape);
      } catch (const NexusFault&) {
        shape.interleaved = false;
        (void)ReadNexusMatrix(content, shape);  // throws the fault of the sequential reading
        throw;
      }
    }
    PlaceRows(std::move(cells), labels);
    raw.block.Read = true;

    FormatAttributes& attributes = extras_.Format;
    attributes.Interleaved = shape.interleaved ? 1 : 0;
    attributes.NucleotideType = format.rna ? 1 : 0;
    attributes.GapSymbol = format.gap;
    attributes.MissingSymbol = format.missing;
    attributes.MatchSymbolOn = format.match != '\0' ? 1 : 0;
    attributes.MatchSymbol = format.match != '\0' ? format.match : '.';
  }

  // NTAX rows of NCHAR cells need at least NTAX x NCHAR bytes; the row that cannot be
  // complete is missing characters (error 65).
  void RefuseMatrixLargerThanItsText(const NexusCommand& matrix) const {
    const auto bytes = static_cast<int64_t>(matrix.matrix_end - matrix.matrix_begin);
    if (static_cast<int64_t>(ntax_) * nchar_ <= bytes) return;
    const int64_t full_rows = bytes / nchar_;
    throw NexusFault(kNexusMissingCell, static_cast<long>(full_rows + 1));
  }

  // Rows in taxon order with their names: the labels' order and names where there are labels.
  void PlaceRows(NexusMatrix cells, const std::vector<NexusToken>& labels) {
    rows_ = std::move(cells.cells);
    if (labels.empty()) {
      for (const NexusToken& name : cells.names) {
        names_.push_back(NexusNameText(name));
        written_names_.push_back(NexusNameAsWritten(name));
      }
      taxon_keys_ = KeysOf(cells.names);
      return;
    }
    for (const NexusToken& label : labels) {
      names_.push_back(NexusNameText(label));
      written_names_.push_back(NexusNameAsWritten(label));
    }
    taxon_keys_ = KeysOf(labels);
    if (cells.names.empty()) return;
    // Rows named by the labels in another order move to the labels' places; when a name
    // repeats (names cut to 20 characters may) or names no label, the order is the file's.
    const std::vector<std::string> row_keys = KeysOf(cells.names);
    std::map<std::string, size_t> taxon_of;
    for (size_t t = 0; t < taxon_keys_.size(); ++t) {
      if (!taxon_of.emplace(taxon_keys_[t], t).second) return;
    }
    std::vector<size_t> order(row_keys.size());
    std::vector<bool> taken(row_keys.size(), false);
    for (size_t r = 0; r < row_keys.size(); ++r) {
      const auto it = taxon_of.find(row_keys[r]);
      if (it == taxon_of.end() || taken[it->second]) return;  // rows stand in the labels' order
      taken[it->second] = true;
      order[r] = it->second;
    }
    PermuteRows(rows_, order);
  }

  // Moves row r of `matrix` to row order[r] (0-based), cycle by cycle through one spare row.
  static void PermuteRows(SeqMatrix& matrix, const std::vector<size_t>& order) {
    const auto sites = static_cast<size_t>(matrix.sites());
    std::string spare(sites, '\0'), held(sites, '\0');
    std::vector<bool> done(order.size(), false);
    for (size_t start = 0; start < order.size(); ++start) {
      if (done[start] || order[start] == start) continue;
      // Carry the row of `start` to its place, the row found there to its own, and so on.
      std::memcpy(spare.data(), matrix.sequence(static_cast<int32_t>(start) + 1), sites);
      size_t r = start;
      do {
        const size_t to = order[r];
        char* place = matrix.mutable_sequence(static_cast<int32_t>(to) + 1);
        std::memcpy(held.data(), place, sites);
        std::memcpy(place, spare.data(), sites);
        spare.swap(held);
        done[r] = true;
        r = to;
      } while (r != start);
    }
  }

  void ReadOtherBlocks() {
    NexusNames names;
    names.ntax = ntax_;
    names.nchar = nchar_;
    names.taxon_keys.push_back("");
    for (const std::string& key : taxon_keys_) names.taxon_keys.push_back(key);
    names.char_keys = char_keys_;
    names.Index();
    extras_.CodonPosition.assign(static_cast<size_t>(nchar_) + 1, 0);
    // Sets first, so that codon positions may name a character set.
    for (NexusBlockKind kind : {NexusBlockKind::kSets, NexusBlockKind::kCodons,
                                NexusBlockKind::kOwn, NexusBlockKind::kCodonUsage}) {
      for (NexusRawBlock& raw : file_.blocks) {
        if (raw.block.Kind != kind) continue;
        std::vector<std::string>& kept = raw.block.KeptStatements;
        switch (kind) {
          case NexusBlockKind::kSets:
            ReadSetsBlock(raw, names, extras_, kept, text_);
            break;
          case NexusBlockKind::kCodons:
            ReadCodonsBlock(raw, names, extras_, kept, text_);
            break;
          case NexusBlockKind::kOwn:
            ReadOwnBlock(raw, extras_);
            break;
          default:
            ReadCodonUsageBlock(raw, extras_);
            break;
        }
        raw.block.Read = true;
      }
    }
  }

  LoadedFile Result() {
    LoadedFile loaded;
    loaded.FileKind = kNexus;
    loaded.NumSites = nchar_;
    loaded.Interleaved = extras_.Format.Interleaved;
    loaded.BlockLength = 60;
    loaded.Matrix = std::move(rows_);
    for (int32_t t = 0; t < ntax_; ++t) {
      loaded.Names.push_back(FixedName(names_[static_cast<size_t>(t)]));
    }
    for (NexusRawBlock& raw : file_.blocks) {
      // A DATA or CHARACTERS block left unread is written back as it stood; the one whose
      // matrix was read is written anew from the data, and its text is not kept.
      const bool data_kind =
          raw.block.Kind == NexusBlockKind::kData || raw.block.Kind == NexusBlockKind::kCharacters;
      if (data_kind && !raw.block.Read)
        raw.block.Text = std::string(text_.substr(raw.text_begin, raw.text_end - raw.text_begin));
      extras_.Document.Blocks.push_back(std::move(raw.block));
    }
    extras_.Document.Trailing = std::move(file_.trailing);
    extras_.Document.TaxonNames = std::move(written_names_);
    loaded.Nexus = std::move(extras_);
    return loaded;
  }

  std::string_view text_;
  NexusTextRead read_;
  NexusFile file_;
  NexusExtras extras_;
  TaxaInfo taxa_;
  bool old_form_ = true;
  int block_error_ = kNexusDataBlock;
  int32_t ntax_ = 0;
  int32_t nchar_ = 0;
  SeqMatrix rows_;
  std::vector<std::string> names_;
  std::vector<std::string> written_names_;  // as the file writes them, for an update
  std::vector<std::string> taxon_keys_;
  std::vector<std::string> char_keys_;
};

}  // namespace

LoadedFile ReadNexusText(std::string_view text, NexusTextRead read) {
  return NexusReader(text, std::move(read)).Read();
}

LoadedFile ReadNexus(LineReader& in, const std::string& path) {
  // A file held in memory with "\n" line ends is its own text: read where it lies, its matrix
  // given back to the system as it is read.
  const auto base = static_cast<size_t>(in.TotalBytes() - in.BytesLeft());
  if (const std::optional<std::string_view> whole = in.RestAsText()) {
    try {
      return ReadNexusText(
          *whole, [&in, base](size_t from, size_t to) { in.Release(base + from, base + to); });
    } catch (const NexusFault& fault) {
      throw ReadError(DataFileErrorText(path, fault.what()));
    }
  }
  std::string text;
  text.reserve(static_cast<size_t>(std::max<int64_t>(in.TotalBytes(), 0)));
  std::string_view line;
  while (in.Next(line)) {
    text.append(line.data(), line.size());
    text += '\n';
  }
  try {
    return ReadNexusText(text);
  } catch (const NexusFault& fault) {
    throw ReadError(DataFileErrorText(path, fault.what()));
  }
}

}  // namespace ovelt
