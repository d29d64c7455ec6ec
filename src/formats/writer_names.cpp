#include "formats/writer_names.h"

#include "core/utf8_text.h"

namespace ovelt {
namespace {

// The punctuation both formats give a meaning, and the two quote bytes of Windows code pages,
// which can only stand alone: inside a UTF-8 letter the same bytes are part of the letter.
bool DroppedInNexusNames(unsigned char c) {
  return (c >= 33 && c <= 47) || c == 96 || c == 146 || c == 180;
}

}  // namespace

std::string TrimmedName(const std::string& field) {
  const auto last = field.find_last_not_of(' ');
  return last == std::string::npos ? std::string() : field.substr(0, last + 1);
}

std::string CleanName(const std::string& field, NameMode mode) {
  const std::string trimmed = TrimmedName(field);
  std::string name;
  for (size_t at = 0; at < trimmed.size();) {
    const size_t length = Utf8CharLength(trimmed, at);
    const char c = trimmed[at];
    if (length > 1) {
      name.append(trimmed, at, length);  // a letter of several bytes stays whole
    } else if (mode == NameMode::kPlain) {
      name += c == ' ' ? '_' : c;
    } else if (c == ' ' || c == '\t') {
      name += '_';
    } else if (!DroppedInNexusNames(static_cast<unsigned char>(c))) {
      name += c;
    }
    at += length;
  }
  if (mode == NameMode::kNexusMega && name.empty()) name = kEmptyNameStandIn;
  return name;
}

std::string NexusName(const std::string& field) {
  const std::string name = CleanName(field, NameMode::kNexusMega);
  const bool reserved = name.find_first_of("[]{}\\;:=<>") != std::string::npos;
  return reserved ? "'" + name + "'" : name;
}

std::string PhylipNameField(const std::string& field) {
  return FitToCharacters(CleanName(field, NameMode::kPlain), 10);
}

}  // namespace ovelt
