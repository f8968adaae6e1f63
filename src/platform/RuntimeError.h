// Failures of the outside world: a bad file, a full disk, a missing tool. Caught once, at the border of the
// command, and shown as one error box.
#pragma once

#include <stdexcept>
#include <string>

namespace landsmith {

/// The message says what was being done, with which file, where in it, and what was found.
class RuntimeError : public std::runtime_error {
public:
  using std::runtime_error::runtime_error;

  /// "reading the project: FILE, offset 1265: 3 points announced, room for 2"; empty pieces fall out.
  static RuntimeError At(const std::string& doing, const std::string& file, const std::string& place,
                         const std::string& found);
};

}  // namespace landsmith
