#pragma once
// Sequence sets (populations): names, the working copy of the set dialogs, the included
// sequences, and sets written as text.

#include "core/active_sets.h"
#include "core/forms_class.h"
#include "core/include_sequences.h"
#include "core/sequence_set.h"
#include "core/set_definition.h"
#include "core/set_name.h"
