#include "simtools/ImageTool.h"

#include <filesystem>
#include <iostream>
#include <string>
#include <vector>

int main(int count, char** arguments) {
  const std::vector<std::string> words(arguments + 1, arguments + count);
  return landsmith::simtools::RunImageTool(words, std::filesystem::current_path(), std::cout);
}
