#pragma once
// The shape of a NEXUS file as it was read: its blocks in file order, each with the text that
// stood before it, so that "Update NEXUS Data File" can write the file back with the blocks it
// does not understand in their places and the comments where they stood.
//
// Kept text is stored with "\n" between lines, whatever the file's line ends were; a writer
// turns each "\n" into the delimiter it writes (LineDelimiter). Nothing else is changed: case,
// blanks and comments are as in the file.
//
// How a writer in update mode walks it:
//
//   "#NEXUS"  (the token itself is not kept)
//   for each block b of Blocks, in order:
//     b.Leading                      text between the previous block's end (or the #NEXUS token)
//                                    and b's "BEGIN": blank lines and comments
//     if b.Read:    new text for b.Kind (DATA, TAXA, CHARACTERS, SETS, CODONS are rewritten from
//                   the active data; OVELT and CODONUSAGE as the writer's rules say); the
//                   statements of b.KeptStatements may be written back inside the new block
//     else:         b.Text as it is (from "BEGIN" through its "END;")
//   blocks of the active data that the file did not have, as the plain writer adds them
//   Trailing                         text after the last block
//
// A block is Read when its content went into the data. A block of a known name can be kept
// unread: a second TAXA or CHARACTERS block that the matrix did not come from (files of
// Mesquite tie several of them by TITLE and LINK), a CHARACTERS block of another data type.

#include <string>
#include <vector>

namespace ovelt {

enum class NexusBlockKind {
  kData,        // BEGIN DATA: dimensions, format and matrix in one block
  kTaxa,        // BEGIN TAXA
  kCharacters,  // BEGIN CHARACTERS
  kCodons,      // BEGIN CODONS: CODONPOSSET, CODESET, GENCODE
  kSets,        // BEGIN SETS: TAXSET, CHARSET, other statements kept
  kOwn,         // BEGIN OVELT: Genome, ChromosomalLocation, Oveltversion
  kCodonUsage,  // BEGIN CODONUSAGE: preferred/unpreferred codon tables
  kOther,       // any other name: never interpreted
};

struct NexusBlock {
  NexusBlockKind Kind = NexusBlockKind::kOther;
  // The block's name as the file spells it ("Characters", "mrbayes", "st_Assumptions").
  std::string Name;
  // Blank lines and comments between the end of the previous block (or the #NEXUS token) and
  // this block's "BEGIN".
  std::string Leading;
  // The whole block as it stands in the file, from "BEGIN" through "END;" (or "ENDBLOCK;").
  // A last block that the file ends without its END runs to the end of the file. Empty for the
  // DATA or CHARACTERS block whose matrix was read: it is written anew from the data.
  std::string Text;
  // True when the reader took the block's content into the active data.
  bool Read = false;
  // Statements of a Read block that the reader did not interpret, each whole with its ";", in
  // file order: in SETS "STATESET", "CHANGESET", "TREESET", "CHARPARTITION", "TAXPARTITION",
  // "TREEPARTITION" and anything else; in TAXA, DATA and CHARACTERS statements such as
  // "CHARLABELS", "CHARSTATELABELS", "STATELABELS", "OPTIONS", "TITLE", "LINK"; in CODONS any
  // statement other than the codon positions and the genetic code. Labels that were too big to
  // keep (the reader warned about them) are not here.
  std::vector<std::string> KeptStatements;
};

struct NexusDocument {
  std::vector<NexusBlock> Blocks;  // in file order
  // Everything after the end of the last block.
  std::string Trailing;
  // Each taxon's name as the file writes it, in taxon order: an update writes these rather than
  // the names of the 20-character field, which may have been cut or cleaned, so that it never
  // changes a name in the user's own file.
  std::vector<std::string> TaxonNames;

  [[nodiscard]] bool empty() const { return Blocks.empty() && Trailing.empty(); }
};

}  // namespace ovelt
