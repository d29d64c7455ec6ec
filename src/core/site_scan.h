#pragma once
// Site scanning: site classes, per-site diversity, the selection of the sequences of a run,
// region counts, the report head and the region check of option dialogs.

#include "core/gap_settings.h"
#include "core/gap_update.h"
#include "core/identical_lines.h"
#include "core/minimum_sequences.h"
#include "core/net_sites.h"
#include "core/region_check.h"
#include "core/report_head.h"
#include "core/selection.h"
#include "core/site_class.h"
#include "core/site_diversity.h"
