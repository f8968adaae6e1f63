#include "simtools/Scasm.h"

#include <filesystem>
#include <iostream>
#include <string>
#include <vector>

int main(int count, char** arguments) {
  const std::vector<std::string> words(arguments + 1, arguments + count);
  return landsmith::simtools::RunScasm(words, std::filesystem::current_path(), std::cout);
}
