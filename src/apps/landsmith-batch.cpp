#include "batch/Commands.h"

int main(int argc, char** argv) {
  return landsmith::RunBatch(argc, argv);
}
