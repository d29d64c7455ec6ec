#pragma once
// Coding regions, the genetic code in use, and the genome attributes.

#include "core/coding_flag.h"
#include "core/coding_map.h"
#include "core/genetic_code.h"
#include "core/genetic_code_choice.h"
#include "core/genome_format.h"
#include "core/stop_codon.h"
