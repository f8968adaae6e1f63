// The stand-in of the bitmap converter as a function, so that its program is a few lines and tests can call
// it.
#pragma once

#include <filesystem>
#include <iosfwd>
#include <string>
#include <vector>

namespace landsmith::simtools {

/// `arguments`: "-nogui -batch -e bmp -nomip FILE", the options in any order; FILE, with either separator,
/// counts from `folder`. Makes the file a plain 24-bit bitmap in place and returns 0. Any other set of
/// options, and a file that is no bitmap known here, changes nothing: the reason goes to `out`, and the
/// result is 1.
int RunImageTool(const std::vector<std::string>& arguments, const std::filesystem::path& folder,
                 std::ostream& out);

}  // namespace landsmith::simtools
