// The commands of landsmith-batch.
#pragma once

namespace landsmith {

/// Runs one command line and returns the exit status: 0 done, 1 a message of kind error or warning was shown
/// or the command could not be carried out, 2 the command line is wrong.
int RunBatch(int argc, char** argv);

}  // namespace landsmith
