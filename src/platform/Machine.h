// What only the machine can tell, kept apart because each system tells it in another way.
#pragma once

#include <string>

namespace landsmith {

/// The simulator's folder as its installation noted it, UTF-8; empty where nothing is noted.
std::string InstalledSimulator();

}  // namespace landsmith
