#pragma once
// Helpers of the writer tests: a written file as text, and the open data of a file read back.

#include <sstream>
#include <string>
#include <vector>

#include "core/active_data.h"
#include "core/alignment_fixture.h"
#include "formats/read_file.h"
#include "formats/writer_lines.h"
#include "formats/writer_stamp.h"

namespace ovelt::testing {

inline const WriterStamp kStamp{"Ver. 4.00.5", "sample.fas", "Mar 5, 2004"};

// What `write` puts out through a line sink with `delimiter`.
template <class Write>
std::string Written(Write write, const std::string& delimiter = "\r\n") {
  std::ostringstream text;
  WriterLines out(text, delimiter);
  write(out);
  out.Finish();
  return text.str();
}

// Lines joined with CR + LF, the last one ended too.
inline std::string CrLf(const std::vector<std::string>& lines) {
  std::string text;
  for (const std::string& line : lines) text += line + "\r\n";
  return text;
}

// The open data of a file that was read, as the shell leaves it after an open.
inline ActiveData DataOf(const LoadedFile& file, const std::string& file_name = "sample.fas") {
  std::vector<std::string> rows, names;
  for (int s = 1; s <= file.NumSeqs(); ++s) {
    rows.emplace_back(file.Matrix.sequence(s), static_cast<size_t>(file.Matrix.sites()));
    names.push_back(file.Names[static_cast<size_t>(s)]);
  }
  ActiveData ad = test::MakeAlignment(rows, names);
  ad.FileName = file_name;
  ad.Format.Interleaved = file.Interleaved;
  ad.Format.BlockLength = file.BlockLength;
  return ad;
}

}  // namespace ovelt::testing
