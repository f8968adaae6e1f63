// Starting programs: the part of it that differs from system to system.
#pragma once

#include "platform/Progress.h"
#include "platform/Tools.h"

#include <filesystem>
#include <optional>
#include <string_view>

namespace landsmith {

struct ProcessRequest {
  ResolvedCommand Command;
  std::filesystem::path WorkingFolder;
  std::filesystem::path Output;  ///< takes what the program prints; empty throws it away
};

/// Exit code of a program that was ended because `progress` said stop.
inline constexpr int ProcessStopped = -1;

/// Runs the program to its end and returns its exit code; one that crashed has a code above 0. Asks
/// `progress.Wait` at least every 20 ms; on a stop the program and what it started are ended.
/// Throws RuntimeError when it cannot be started.
int RunProcess(const ProcessRequest& request, Progress& progress);

/// Starts a program and does not wait for it; what it prints is thrown away. Throws RuntimeError.
void StartProcess(const ProcessRequest& request);

/// A program that is started by its bare name ("wine"), in the folders where the system looks for programs.
std::optional<std::filesystem::path> FindOnSearchPath(std::string_view program);

/// Opens a document or web address with the program that the system has for it. Throws RuntimeError.
void OpenWithSystem(std::string_view pathOrAddress);

}  // namespace landsmith
