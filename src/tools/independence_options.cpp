#include "tools/independence_options.h"

namespace ovelt {

IndependenceOptions F12DefectValues() { return {"12", "5", "3", "10"}; }

}  // namespace ovelt
