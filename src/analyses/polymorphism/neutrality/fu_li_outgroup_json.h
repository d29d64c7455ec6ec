#pragma once
// The result of the test as one JSON object, the significance mark with each statistic.

#include "analyses/polymorphism/neutrality/fu_li_outgroup_compute.h"
#include "output/json_text.h"

namespace ovelt {

void WriteJson(JsonText& json, const FuLiOutgroupResult& result);

}  // namespace ovelt
