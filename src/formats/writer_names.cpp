#include "formats/writer_names.h"

namespace ovelt {
namespace {

bool DroppedInNexusNames(unsigned char c) {
  return (c >= 33 && c <= 47) || c == 96 || c == 146 || c == 180;
}

}  // namespace

std::string TrimmedName(const std::string& field) {
  const auto last = field.find_last_not_of(' ');
  return last == std::string::npos ? std::string() : field.substr(0, last + 1);
}

std::string CleanName(const std::string& field, NameMode mode) {
  std::string name;
  for (char c : TrimmedName(field)) {
    if (mode == NameMode::kPlain) {
      name += c == ' ' ? '_' : c;
    } else if (c == ' ' || c == '\t') {
      name += '_';
    } else if (!DroppedInNexusNames(static_cast<unsigned char>(c))) {
      name += c;
    }
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
  std::string name = CleanName(field, NameMode::kPlain).substr(0, 10);
  name.resize(10, ' ');
  return name;
}

}  // namespace ovelt
