// What an operation is refused with, for tests that read the message.
#pragma once

#include "platform/RuntimeError.h"

#include <string>

namespace landsmith::test {

/// The message of the RuntimeError that ends `work`, "(accepted)" without one.
template <class Work>
std::string ErrorOf(const Work& work) {
  try {
    work();
  } catch (const RuntimeError& error) {
    return error.what();
  }
  return "(accepted)";
}

}  // namespace landsmith::test
