// The runs of a Cell lie wherever their lines left them in memory, and with a country's roads that is far
// apart.
#pragma once

namespace landsmith {

/// Asks for memory that is read soon, so that the wait for it passes while other work is done. Changes
/// nothing else, whatever `address` is.
inline void Prefetch(const void* address) {
#ifdef __GNUC__
  __builtin_prefetch(address);
#else
  static_cast<void>(address);
#endif
}

}  // namespace landsmith
