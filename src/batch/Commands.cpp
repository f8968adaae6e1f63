#include "batch/Commands.h"

#include "platform/RuntimeError.h"

#include <CLI/CLI.hpp>

#include <array>
#include <iostream>
#include <string>
#include <utility>
#include <vector>

namespace landsmith {

namespace {

constexpr int ExitDone = 0;
constexpr int ExitTrouble = 1;
constexpr int ExitUsage = 2;

void DescribeOptions(CLI::App& app, BatchOptions& options) {
  app.add_option("--app", options.App, "the program folder: Landsmith.ini, tools, scenery");
  app.add_option("--fs", options.Fs, "the simulator's folder, in place of the configured one");
  app.add_option("--set", options.Settings, "KEY=VALUE, a setting for this run alone; may be repeated")
      ->allow_extra_args(false);
  app.add_flag("--yes", options.Yes, "answers every question with Yes or OK");
}

void DescribeCommands(CLI::App& app, Command& chosen) {
  app.require_subcommand(1);
  AddProjectCommands(app, chosen);
  AddEditCommand(app, chosen);
  AddCompileCommand(app, chosen);
  AddValidateCommand(app, chosen);
  AddRenderCommand(app, chosen);
  AddGridCommands(app, chosen);
  AddUnsupportedCommands(app, chosen);
}

int Carry(const Command& command, BatchRun& run, const BatchOptions& options) {
  try {
    PrepareRun(run, options);
    command(run);
  } catch (const UsageError& wrong) {
    std::cerr << "landsmith-batch: " << wrong.what() << '\n';
    return ExitUsage;
  } catch (const CommandEnded&) {
    return ExitTrouble;
  } catch (const std::exception& failure) {
    run.dialogs.Message(MessageKind::Error, failure.what());
  }
  run.out.flush();
  if (!run.out) run.dialogs.Message(MessageKind::Error, "The results could not be written.");
  return run.dialogs.TroubleShown() ? ExitTrouble : ExitDone;
}

}  // namespace

void AddUnsupportedCommands(CLI::App& app, Command& chosen) {
  constexpr std::array<std::pair<const char*, const char*>, 2> commands{{
      {"dem", "elevation grids (not in this version)"},
      {"geo", "datums and projections (not in this version)"},
  }};
  for (const auto& [name, text] : commands) {
    auto* command = app.add_subcommand(name, text)->prefix_command();
    const std::string what = std::string("The command ") + name;
    command->callback([what, &chosen] { chosen = [what](BatchRun& run) { RefuseUnsupported(run, what); }; });
  }
}

int RunBatch(int argc, char** argv) {
  CLI::App app("Scenery design without a window, for scripts.", "landsmith-batch");
  BatchOptions options;
  Command chosen;
  DescribeOptions(app, options);
  DescribeCommands(app, chosen);
  try {
    app.parse(argc, argv);
  } catch (const CLI::RequiredError& missing) {
    const std::vector<std::string> unknown = app.remaining();
    if (unknown.empty()) return app.exit(missing) == 0 ? ExitDone : ExitUsage;
    std::cerr << "landsmith-batch: there is no command " << unknown.front() << '\n';
    return ExitUsage;
  } catch (const CLI::ParseError& ended) {
    return app.exit(ended) == 0 ? ExitDone : ExitUsage;
  }
  BatchDialogs dialogs(std::cerr);
  BatchRun run{std::cin, std::cout, dialogs, {}, {}, {}};
  return Carry(chosen, run, options);
}

}  // namespace landsmith
