// Every compile step, once, in the order in which they run. A new compiler is plugged in here.
#pragma once

#include "compile/StepTable.h"

namespace landsmith {

const StepTable& CompileSteps();

}  // namespace landsmith
