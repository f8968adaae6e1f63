#include "compile/VtpItems.h"

#include "core/Numbers.h"

namespace landsmith {

std::int32_t TextureNames::Add(const std::string& text) {
  const auto [entry, isNew] = m_places.try_emplace(text, static_cast<std::int32_t>(m_names.size()));
  if (isNew) m_names.push_back(text);
  return entry->second;
}

std::int32_t VtpLayerNumber(const std::string& field) {
  const auto layer = ParseInt16(field);
  if (!layer) throw RuntimeError("the layer \"" + field + "\" is no whole number from -32768 to 32767");
  return *layer;
}

}  // namespace landsmith
