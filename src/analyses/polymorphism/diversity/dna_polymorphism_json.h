#pragma once
// A DNA polymorphism result as one JSON object.

#include "analyses/polymorphism/diversity/dna_polymorphism.h"
#include "output/json_text.h"

namespace ovelt {

void WriteJson(JsonText& json, const DnaPolResult& result);

}  // namespace ovelt
