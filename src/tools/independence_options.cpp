#include "tools/independence_options.h"

namespace ovelt {

IndependenceOptions F12DefectValues() { return {}; }

}  // namespace ovelt
