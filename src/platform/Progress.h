// What long work tells its user, and how the user stops it.
#pragma once

#include <string_view>

namespace landsmith {

class Progress {
public:
  virtual ~Progress() = default;

  /// `fraction` of the whole from 0 to 1, `phrase` what is being done. False: the user asked to stop, and
  /// the work ends as soon as it can without leaving anything half written.
  virtual bool Step(double fraction, std::string_view phrase) = 0;

  /// Lets the window breathe while the program waits for a tool; no news. False as above.
  virtual bool Wait() { return true; }
};

/// For callers that show nothing.
class NoProgress final : public Progress {
public:
  bool Step(double, std::string_view) override { return true; }
};

}  // namespace landsmith
