#include "formats/update_nexus.h"

#include <filesystem>
#include <optional>
#include <system_error>

#include "files/whole_file.h"
#include "formats/data_file_writer.h"
#include "formats/nexus_writer.h"
#include "formats/nexus_writer_blocks.h"
#include "formats/read_file.h"

namespace ovelt {
namespace {

// What the read blocks of the file leave to the blocks written in their places.
struct ReadBlocks {
  bool taxa = false;  // the names came from a TAXA block of their own
  KeptStatements taxa_kept, characters_kept, sets_kept, codons_kept;
};

// The names of the included sequences as the file wrote them; empty (the cleaned names of the
// included layer then) when the recorded names are not those of the open file's sequences.
std::vector<std::string> NamesAsWritten(const ActiveData& ad, const NexusDocument& document) {
  const std::vector<std::string>& all = document.TaxonNames;
  if (static_cast<int32_t>(all.size()) != ad.TotalSeqs ||
      ad.SeqIncluded.size() != all.size() + 1)
    return {};
  std::vector<std::string> names;
  for (size_t seq = 1; seq <= all.size(); ++seq)
    if (ad.SeqIncluded[seq]) names.push_back(all[seq - 1]);
  return names;
}

ReadBlocks Survey(const NexusDocument& document) {
  ReadBlocks read;
  for (const NexusBlock& block : document.Blocks) {
    if (!block.Read) continue;
    const KeptStatements kept = SortKeptStatements(block.KeptStatements);
    switch (block.Kind) {
      case NexusBlockKind::kTaxa:
        read.taxa = true;
        read.taxa_kept = kept;
        break;
      case NexusBlockKind::kData:
      case NexusBlockKind::kCharacters:
        read.characters_kept = kept;
        break;
      case NexusBlockKind::kSets:
        read.sets_kept = kept;
        break;
      case NexusBlockKind::kCodons:
        read.codons_kept = kept;
        break;
      default:
        break;
    }
  }
  return read;
}

// Writes the blocks of the data in the places of the file's blocks that held them; like the
// block it replaces, each ends without a line end of its own. A block written once is not
// written again (a DATA block stands for both TAXA and CHARACTERS).
class UpdateWriter {
 public:
  UpdateWriter(const ActiveData& ad, const ReadBlocks& read, const WriterStamp& stamp,
               const std::vector<std::string>& codon_usage, std::vector<std::string> names,
               WriterLines& out)
      : ad_(ad),
        read_(read),
        stamp_(stamp),
        codon_usage_(codon_usage),
        names_(std::move(names)),
        out_(out) {}

  void ReadBlock(NexusBlockKind kind) {
    const bool v1 = ad_.Format.NexusVersion == 1;
    switch (kind) {
      case NexusBlockKind::kData:
      case NexusBlockKind::kTaxa:
      case NexusBlockKind::kCharacters:
        if (v1) {
          if (!data_written_) WriteNexusDataBlock(ad_, out_, read_.characters_kept, names_);
          data_written_ = true;
        } else if (kind == NexusBlockKind::kTaxa) {
          if (!taxa_written_) WriteNexusTaxaBlock(ad_, out_, read_.taxa_kept, names_);
          taxa_written_ = true;
        } else {
          if (!taxa_written_ && !read_.taxa) {
            WriteNexusTaxaBlock(ad_, out_, {}, names_);
            out_.Line("");
            taxa_written_ = true;
          }
          if (!data_written_)
            WriteNexusCharactersBlock(ad_, out_, read_.characters_kept, names_);
          data_written_ = true;
        }
        break;
      case NexusBlockKind::kSets:
        if (!sets_written_) WriteNexusSetsBlock(ad_, out_, read_.sets_kept);
        sets_written_ = true;
        break;
      case NexusBlockKind::kCodons:
        if (!codons_written_ && HasNexusCodons(ad_))
          WriteNexusCodonsBlock(ad_, out_, read_.codons_kept);
        codons_written_ = true;
        break;
      case NexusBlockKind::kOwn:
        if (!own_written_) WriteNexusOveltBlock(ad_, stamp_.Version, out_);
        own_written_ = true;
        break;
      case NexusBlockKind::kCodonUsage:
        if (!codon_usage_written_)
          for (const std::string& line : codon_usage_) out_.Line(line);
        codon_usage_written_ = true;
        break;
      case NexusBlockKind::kOther:
        break;
    }
    out_.DropLineEnd();
  }

  // Blocks the file did not have, after its last block, in the plain writer's order.
  void MissingBlocks() {
    if (!data_written_) {
      NewLine();
      WriteNexusMatrixBlocks(ad_, out_, {}, {}, names_);
    }
    if (!sets_written_ && HasNexusSets(ad_)) {
      NewLine();
      WriteNexusSetsBlock(ad_, out_);
    }
    if (!codons_written_ && HasNexusCodons(ad_)) {
      NewLine();
      WriteNexusCodonsBlock(ad_, out_);
    }
    if (!own_written_) {
      NewLine();
      WriteNexusOveltBlock(ad_, stamp_.Version, out_);
    }
    if (!codon_usage_written_ && !codon_usage_.empty()) {
      NewLine();
      for (const std::string& line : codon_usage_) out_.Line(line);
    }
    out_.DropLineEnd();
  }

 private:
  // A block added behind kept text starts on a line of its own.
  void NewLine() { out_.EndLine(); }

  const ActiveData& ad_;
  const ReadBlocks& read_;
  const WriterStamp& stamp_;
  const std::vector<std::string>& codon_usage_;
  const std::vector<std::string> names_;  // as the file wrote them
  WriterLines& out_;
  bool taxa_written_ = false, data_written_ = false, sets_written_ = false, codons_written_ = false,
       own_written_ = false, codon_usage_written_ = false;
};

}  // namespace

std::string UpdateFewerSequencesText(int32_t num_seqs, const std::string& file_name) {
  const std::string n = std::to_string(num_seqs);
  return "The active Data File contains only " + n + " sequences. Ovelt will update the " +
         file_name + " Data File with only " + n + " sequences.";
}

void WriteNexusUpdate(const ActiveData& ad, const NexusDocument& document, const WriterStamp& stamp,
                      const std::vector<std::string>& codon_usage, WriterLines& out) {
  if (document.empty()) {
    WriteNexus(ad, stamp, codon_usage, out);
    return;
  }
  const ReadBlocks read = Survey(document);
  UpdateWriter writer(ad, read, stamp, codon_usage, NamesAsWritten(ad, document), out);
  out.Kept("#NEXUS");
  for (const NexusBlock& block : document.Blocks) {
    out.Kept(block.Leading);
    // Blocks the reader left unread (unknown ones, a second TAXA block of a Mesquite file) are
    // copied as they stood.
    if (block.Read && block.Kind != NexusBlockKind::kOther) {
      writer.ReadBlock(block.Kind);
    } else {
      out.Kept(block.Text);
    }
  }
  writer.MissingBlocks();
  out.Kept(document.Trailing);
  out.Finish();
}

std::optional<std::string> NoFileToUpdate(const std::string& path) {
  if (path == kStandardInputPath)
    return "The data were read from standard input: there is no file to update.";
  std::error_code error;
  if (!std::filesystem::is_regular_file(path, error))
    return "The data were read from " + path +
           ", which is not a regular file: there is no file to update.";
  return std::nullopt;
}

bool UpdateNexusDataFile(const ActiveData& ad, const NexusDocument& document,
                         const std::string& path, Platform& platform, const std::string& version) {
  if (ad.FileKind != kNexus) return false;
  // Standard input or a pipe was read once; writing "back" would go to some other place.
  if (const std::optional<std::string> refusal = NoFileToUpdate(path)) {
    platform.MessageBox(*refusal, MsgIcon::kWarning);
    return false;
  }
  // Both questions change the user's own file: the first rewrites it, the second drops the
  // excluded sequences from it.
  if (platform.AskBeforeChange(path + " ?", MsgIcon::kQuestion, kUpdateQuestionTitle) !=
      MsgAnswer::kOk)
    return false;
  if (ad.NumSeqs != ad.TotalSeqs &&
      platform.AskBeforeChange(UpdateFewerSequencesText(ad.NumSeqs, ad.FileName),
                               MsgIcon::kInformation) != MsgAnswer::kOk)
    return false;
  platform.SetStatusText(kSavingStatus);
  platform.SetProgress(0);
  const std::vector<std::string> codon_usage = CodonUsageForNexus(ad, platform);
  const WriterStamp stamp = MakeWriterStamp(version, ad.FileName, platform);
  // The new file is made beside the old one and takes its place only when it is whole: a
  // failure, a full disk or a killed program leaves the user's file as it was.
  bool written = false;
  WholeFileWriter file(path);
  if (file.Open()) {
    WriterLines out(file.Stream(), LineDelimiterText(ad.Format.LineDelimiter),
                    [&platform](int percent) { platform.SetProgress(percent); });
    WriteNexusUpdate(ad, document, stamp, codon_usage, out);
    written = out.Good() && file.Commit();
  }
  platform.SetProgress(-1);
  if (!written) platform.MessageBox(kErrorInSaving, MsgIcon::kCritical);
  return written;
}

}  // namespace ovelt
