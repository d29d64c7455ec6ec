#include "formats/cell_faults.h"

#include "formats/read_file.h"
#include "formats/read_messages.h"

namespace ovelt {

void ThrowCellFault(const std::string& path, const WalkResult& walk, int sequence) {
  switch (walk.end) {
    case WalkEnd::kRefused:
      throw ReadError(DataFileErrorText(path, InvalidCharacterSentence(walk.ch)));
    case WalkEnd::kDotInFirst:
      throw ReadError(DataFileErrorText(path, kDotInFirstSequence));
    case WalkEnd::kFull:
      if (sequence <= 1) throw ReadError(BadFormatText(path));
      throw ReadError(DataFileErrorText(path, kUnequalLengths));
    case WalkEnd::kLineEnd:
    case WalkEnd::kStop:
      break;
  }
  throw ReadError(BadFormatText(path));
}

}  // namespace ovelt
