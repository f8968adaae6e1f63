#include "simtools/ImageTool.h"

#include "core/Text.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"
#include "simtools/BmpImage.h"

#include <algorithm>
#include <ostream>

namespace landsmith::simtools {

namespace {

/// A set of options, each as it is compared: small letters, "-e bmp" as one.
using OptionSet = std::vector<std::string>;

const OptionSet& PlainBitmapOptions() {
  static const OptionSet Options{"-batch", "-e bmp", "-nogui", "-nomip"};  // sorted
  return Options;
}

struct Command {
  OptionSet Options;  ///< sorted
  std::vector<std::string> Files;
};

Command ReadCommand(const std::vector<std::string>& arguments) {
  Command command;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    if (!arguments[i].starts_with('-')) {
      command.Files.push_back(arguments[i]);
      continue;
    }
    std::string option = ToLower(arguments[i]);
    if (option == "-e" && i + 1 < arguments.size()) option += " " + ToLower(arguments[++i]);
    command.Options.push_back(std::move(option));
  }
  std::sort(command.Options.begin(), command.Options.end());
  return command;
}

}  // namespace

int RunImageTool(const std::vector<std::string>& arguments, const std::filesystem::path& folder,
                 std::ostream& out) {
  out << "This is imagetool, the Landsmith stand-in converter.\n";
  const Command command = ReadCommand(arguments);
  if (command.Options != PlainBitmapOptions() || command.Files.size() != 1) {
    out << "These options are not known here. Known is: imagetool -nogui -batch -e bmp -nomip FILE\n";
    return 1;
  }
  try {
    const std::filesystem::path file = MapPathIn(folder, command.Files.front());
    const BmpImage image = ReadBmp(ReadWholeFile(file), command.Files.front());
    WriteWholeFile(file, WriteBmp24(image));
    out << command.Files.front() << ": " << image.Width << " by " << image.Height << " pixels, 24 bits\n";
    return 0;
  } catch (const RuntimeError& error) {
    out << error.what() << "\n";
    return 1;
  }
}

}  // namespace landsmith::simtools
