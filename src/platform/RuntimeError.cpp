#include "platform/RuntimeError.h"

namespace landsmith {

RuntimeError RuntimeError::At(const std::string& doing, const std::string& file, const std::string& place,
                              const std::string& found) {
  std::string where = file;
  if (!place.empty()) where += (where.empty() ? "" : ", ") + place;
  std::string text = doing;
  for (const std::string& piece : {where, found}) {
    if (piece.empty()) continue;
    if (!text.empty()) text += ": ";
    text += piece;
  }
  return RuntimeError(text);
}

}  // namespace landsmith
