#pragma once
// Names of sequence sets: what may be typed in the name box, and which names are refused.
// Set names are written into NEXUS files, so NEXUS command words are refused.

#include <optional>
#include <string>
#include <vector>

#include "core/sequence_set.h"

namespace ovelt {

inline const std::string kSetNamePrompt = "Please write the Sequence Set name: ";
inline const std::string kInvalidSetName =
    "Invalid sequence set name\nInvalid name, please enter another name";
inline const std::string kDuplicateSetName = "Can not create two Sequence Sets with the same name";

// A key typed into the name box: a blank becomes "_", letters and digits pass, anything else is
// dropped (nullopt).
[[nodiscard]] std::optional<char> FilterTypedKey(char key);

// The same filter over a whole text, as if typed key by key.
[[nodiscard]] std::string FilterTypedName(const std::string& typed);

// nullopt when `name` may name a new set. Otherwise the message to show: `kInvalidSetName` for
// a reserved NEXUS word (in any case) or a first character that is not a letter,
// `kDuplicateSetName` for a name already in use (compared without regard to case, as NEXUS
// does), and "" for an empty name, which is refused without a message.
[[nodiscard]] std::optional<std::string> ValidateSetName(
    const std::string& name, const std::vector<std::string>& names_in_use);

// The same against the sets of a store (1-based, index 0 unused).
[[nodiscard]] std::optional<std::string> ValidateSetName(
    const std::string& name, const std::vector<PoblacionSecuencias>& sets);

}  // namespace ovelt
