#include "objects/ObjectKind.h"

#include <array>

namespace landsmith {

namespace {

struct KindLabel {
  std::int32_t Type;
  std::string_view Label;
};

constexpr std::array<KindLabel, 9> KindLabels{{{1, "FS8 Library Object"},
                                               {2, "FS9 Library Object"},
                                               {3, "Rwy12 Object"},
                                               {4, "API Macro Object"},
                                               {5, "ASD Macro Object"},
                                               {8, "Taxiway Sign"},
                                               {16, "Effect Object"},
                                               {32, "Beacon Object"},
                                               {64, "Windsock Object"}}};

}  // namespace

std::string_view ObjectKindLabel(std::int32_t type) {
  for (const KindLabel& kind : KindLabels)
    if (kind.Type == type) return kind.Label;
  return {};
}

}  // namespace landsmith
