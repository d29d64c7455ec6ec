#pragma once
// The parser of preferred/unpreferred codon tables: a ".ovp" file, or the CODONUSAGE block of a
// NEXUS file, which holds the same text. Line by line:
//
//   BEGIN CODONUSAGE;
//       PREFUNPREFCODONS GENETICCODE=Universal MyTable =
//           PREF*: TTC CTC ...,
//           PREF**: ...,
//           UNKNOWN: ...;
//   END;
//
// A table opens with the six tokens above, or with the older three "PREFUNPREFCODONS name =",
// which take the current genetic code. A class head (PREF*, PREF**, PREF*** or UNKNOWN and ":")
// may begin a line; codons (U and T alike) follow on that line and the next ones; "," closes a
// class and ";" the table. Stop codons and the codons of single-codon amino acids keep the
// status of their genetic code; any other codon not listed is unpreferred.

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "core/pref_tables.h"
#include "formats/ovp_lexer.h"

namespace ovelt {

class OVPFile {
 public:
  // `current_gc`: the genetic code of tables that name none (1..10).
  explicit OVPFile(int16_t current_gc = 1) : current_gc_(current_gc) {}

  // The code that tables without a GENETICCODE take from now on.
  void changePar(int16_t current_gc) { current_gc_ = current_gc; }

  // Reads the lines of `text` (LF, CR + LF or CR line ends). True when the block was read to
  // its END; false after the first fault, whose text message() gives. The tables closed before
  // a fault stay in tables().
  bool Parse(std::string_view text);

  [[nodiscard]] const std::vector<CodPrefUnPref>& tables() const { return tables_; }
  // Name and genetic code of the last table closed ("" and 0 when none was).
  [[nodiscard]] const std::string& nameLastTable() const { return last_name_; }
  [[nodiscard]] int16_t GC() const { return last_gc_; }
  // True once the END of the block was read.
  [[nodiscard]] bool final_fd() const { return state_ == State::kFinished; }
  // "Parser error in #12", "Lexical error in #3", or "" for a whole-file fault (nothing that
  // looks like a table block at all, see bad_content()).
  [[nodiscard]] const std::string& message() const { return message_; }
  [[nodiscard]] bool bad_content() const { return bad_content_; }

 private:
  enum class State { kStart, kBlock, kList, kFinished };

  bool Line(std::string_view line, int number);
  bool OpenTable(const std::vector<OvpToken>& tokens);
  bool ListLine(const std::vector<OvpToken>& tokens, int number);
  bool Fail(const char* kind, int number);

  int16_t current_gc_;
  State state_ = State::kStart;
  std::vector<CodPrefUnPref> tables_;
  std::string last_name_;
  int16_t last_gc_ = 0;
  std::string message_;
  bool bad_content_ = false;

  // The table being read.
  CodPrefUnPref table_;
  bool listed_[65] = {};
  int class_status_ = -1;  // status of the open class, -1 when none is open
  bool class_used_[7] = {};
};

// Reads the table file `path` into `store` (tables of the same name are replaced). Returns ""
// on success, else the text of the box: "Parser error in #n", "Lexical error in #n", the bad
// file report, or "Disk not ready. Data file: " and the name when the file can't be read.
// Tables read before a fault stay stored.
[[nodiscard]] std::string ReadOvpFile(const std::string& path, int16_t current_gc,
                                      GCPrefUnPref& store);

// The report of a file whose content is no table file at all.
[[nodiscard]] std::string OvpBadContentText(const std::string& name);

}  // namespace ovelt
