#include <iostream>
#include <new>

#include "ui/cli/cli_app.h"

int main(int argc, char** argv) {
  try {
    return ovelt::RunCli(argc, argv, std::cout, std::cerr);
  } catch (const std::bad_alloc&) {
    // The out-of-memory message was shown where it happened; the program ends.
    return 1;
  } catch (const std::exception& error) {
    std::cerr << "Ovelt:\n" << error.what() << "\n";
    return 1;
  }
}
