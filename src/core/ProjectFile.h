// The binary project file, extension .LSP: a header and the records of each collection one after the other,
// little-endian, packed, with no index and no checksum.
#pragma once

#include "core/Project.h"

#include <filesystem>
#include <string>
#include <string_view>

namespace landsmith {

inline constexpr std::string_view ProjectTag = "LS205";

/// What a file says of itself in its first bytes.
enum class ProjectFormat { Current, LS204, LS203, LS202, Unknown };

/// Looks at the tag alone; a file too short for one is `Unknown`.
ProjectFormat FormatOfProject(std::string_view bytes);
/// The text that the question about conversion names it by: "LS204", "LS202 or lower".
std::string FormatName(ProjectFormat format);

/// Reads the content of a current file. `file` goes into messages. Counts are checked against what is left
/// before anything is allocated. Throws RuntimeError that names the file, the offset and what was found.
/// ProjectFile, Dirty and ProjectOpen of the result are as fresh; folders are as stored.
ProjectState ReadProject(std::string_view bytes, const std::string& file);

/// The content of the file. `defaultFolder`: AppPath + "\Scenery"; a project folder that equals it exactly
/// is written as empty, so that the project stays portable.
std::string WriteProject(const ProjectState& project, std::string_view defaultFolder);

}  // namespace landsmith
