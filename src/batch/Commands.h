// The commands of landsmith-batch. Each file named *Command(s).cpp describes its part of the command line and
// carries it out; Commands.cpp puts them together.
#pragma once

#include "batch/BatchRun.h"

namespace CLI {
class App;
}

namespace landsmith {

/// Runs one command line and returns the exit status: 0 done, 1 a message of kind error or warning was shown
/// or the command could not be carried out, 2 the command line is wrong.
int RunBatch(int argc, char** argv);

/// Each adds its commands to the command line; the one that is typed puts its work into `chosen`.
void AddProjectCommands(CLI::App& app, Command& chosen);  ///< new, info, dump, convert, append
void AddEditCommand(CLI::App& app, Command& chosen);
void AddCompileCommand(CLI::App& app, Command& chosen);
void AddValidateCommand(CLI::App& app, Command& chosen);
void AddRenderCommand(CLI::App& app, Command& chosen);
void AddGridCommands(CLI::App& app, Command& chosen);  ///< grid, coord
/// Commands of the contract whose subject this version does not have: they say so.
void AddUnsupportedCommands(CLI::App& app, Command& chosen);

}  // namespace landsmith
